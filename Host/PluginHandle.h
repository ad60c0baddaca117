// A tool plug-in in the host's hands: loads the library, gives its interface, follows its signals.
//
// What it asks of the library is the contract of VondPluginInterface.h and nothing else. The two
// signals are connected by name, since a host doesn't know the class of the root object.
// The root object is deleted and the library released with the handle, so the handle must go before
// the application object does. GUI thread.
//
//     CPluginHandle plugin;
//     QString error;
//     if (!plugin.Load("plugins/libQuorlinRf.so", error))
//         return Complain(error);
//     plugin.Tool().ShowPlugin();
#pragma once

#include <QJsonObject>
#include <QObject>
#include <QPluginLoader>

#include "PluginInterface/VondPluginInterface.h"

class CPluginHandle : public QObject
{
    Q_OBJECT

public:
    explicit CPluginHandle(QObject *parent = nullptr);
    ~CPluginHandle() override;

    // Once only. On failure, error says in a sentence what is wrong with which file.
    bool Load(const QString &file, QString &error);

    // After a good Load only.
    VondPluginInterface &Tool() const { return *m_tool; }
    QObject *RootObject() { return m_loader.instance(); }
    // What the library carries as Qt plug-in: IID, className, version, debug, MetaData.
    QJsonObject MetaData() const { return m_loader.metaData(); }
    QString File() const { return m_loader.fileName(); }

    bool IsActivated() const { return m_isActivated; }
    bool IsBusy() const { return m_isBusy; }

signals:
    // After the state above has changed; the name is the one that the plug-in gave.
    void Signal_Activated(const QString &pluginName, bool isActivated);
    void Signal_Busy(const QString &pluginName, bool isBusy);

private slots:
    void Slot_PluginIsActivated(QString pluginName, bool isActivated);
    void Slot_PluginIsBusy(QString pluginName, bool isBusy);

private:
    bool CheckMetaData(QString &error) const;
    bool ConnectSignals(QString &error);

    QPluginLoader m_loader;
    VondPluginInterface *m_tool = nullptr;
    bool m_isActivated = false;
    bool m_isBusy = false;
};
