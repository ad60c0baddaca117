// The plug-in in the hands of a host: loaded through QPluginLoader, spoken to through its
// interface, its window found among the application's windows and worked by object names.
//
// Each session starts the simulated DUT anew with a profile and, at its end, destroys the plug-in
// object; the next session gets a new one. GUI thread.
//
//   CPluginSession session("handset");
//   session.ShowAndWait();
//   session.Press("m_start");
//   QVERIFY(WaitUntil([&] { return session.StatusBar() == "Cont Rx start..."; }));
#pragma once

#include <memory>

#include <QMainWindow>
#include <QPluginLoader>
#include <QVector>

#include "PluginInterface/VondPluginInterface.h"

QString PluginFile();

class CPluginSession : public QObject
{
    Q_OBJECT

public:
    // profile: name or file of a profile, or the JSON text of one.
    explicit CPluginSession(const QString &profile = "handset", uint32_t handle = 1);
    ~CPluginSession() override;

    VondPluginInterface *operator->() const { return m_tool; }
    QObject *Object() const { return m_object; }
    // Destroys the plug-in object and unloads the library, as a host does at its end.
    void Unload();

    QMainWindow *Window() const;
    QString StatusBar() const;
    // Shows the tool and waits for the end of its init flow.
    bool ShowAndWait();
    // A widget of the window by object name.
    template <typename Widget = QWidget>
    Widget *Find(const QString &name) const
    {
        return Window() ? Window()->findChild<Widget *>(name) : nullptr;
    }
    // Presses a button of the window, as the left mouse button does.
    void Press(const QString &button) const;
    bool WaitForStatus(const QString &text) const;

    QVector<bool> activations;  // what Signal_PluginIsActivated carried
    QVector<bool> busy;         // what Signal_PluginIsBusy carried
    QStringList names;          // the plug-in name of every signal

private slots:
    void OnActivated(QString name, bool isActivated);
    void OnBusy(QString name, bool isBusy);

private:
    QPluginLoader m_loader;
    QObject *m_object = nullptr;
    VondPluginInterface *m_tool = nullptr;
};
