// The plug-in in the hands of a host: loaded through QPluginLoader, spoken to through its
// interface, its window found among the application's windows and worked by object names.
//
// A session is about one page, which stands in front: widgets of the same name stand on others too.
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

#include <QDockWidget>
#include <QMainWindow>
#include <QPluginLoader>
#include <QPointer>
#include <QVector>

#include "PluginInterface/VondPluginInterface.h"

QString PluginFile();

class CPluginSession : public QObject
{
    Q_OBJECT

public:
    // profile: name or file of a profile, or the JSON text of one. page: class of the session's
    // page.
    explicit CPluginSession(const QString &profile = "handset", uint32_t handle = 1,
                            const QString &page = "CNrContRxDockWidgetV7");
    ~CPluginSession() override;

    VondPluginInterface *operator->() const { return m_tool; }
    QObject *Object() const { return m_object; }
    // Destroys the plug-in object and unloads the library, as a host does at its end.
    void Unload();

    QMainWindow *Window() const;
    QString StatusBar() const;
    QDockWidget *Page() const;
    // Shows the tool, waits for the end of its init flow, and turns to the page, whose cells are all
    // there then.
    bool ShowAndWait();
    // A widget of the page, or else of the window, by object name.
    template <typename Widget = QWidget>
    Widget *Find(const QString &name) const
    {
        Widget *widget = Page() ? Page()->findChild<Widget *>(name) : nullptr;
        return widget || !Window() ? widget : Window()->findChild<Widget *>(name);
    }
    // Presses a button of the page, as the left mouse button does.
    void Press(const QString &button) const;
    // Clicks the tab of a page, by its title, and waits until that page is in front.
    bool ClickTab(const QString &title) const;
    bool WaitForStatus(const QString &text) const;

    QVector<bool> activations;  // what Signal_PluginIsActivated carried
    QVector<bool> busy;         // what Signal_PluginIsBusy carried
    QStringList names;          // the plug-in name of every signal

private slots:
    void OnActivated(QString name, bool isActivated);
    void OnBusy(QString name, bool isBusy);

private:
    const QString m_page;
    QPluginLoader m_loader;
    QObject *m_object = nullptr;
    VondPluginInterface *m_tool = nullptr;
    // As last found: to look through all widgets takes long, and a wait looks often.
    mutable QPointer<QMainWindow> m_window;
    mutable QPointer<QDockWidget> m_shown;
};
