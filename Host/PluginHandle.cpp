#include "Host/PluginHandle.h"

#include <QFileInfo>

CPluginHandle::CPluginHandle(QObject *parent) : QObject(parent) {}

CPluginHandle::~CPluginHandle()
{
    // Deletes the root object; its window hides on the way, which nobody needs to hear any more.
    if (QObject *root = m_tool ? m_loader.instance() : nullptr)
        root->disconnect(this);
    m_loader.unload();
}

bool CPluginHandle::Load(const QString &file, QString &error)
{
    const QFileInfo info(file);
    if (!info.isFile()) {
        error = QString("There is no plug-in file %1.").arg(file);
        return false;
    }
    m_loader.setFileName(info.absoluteFilePath());
    if (!CheckMetaData(error))
        return false;
    QObject *root = m_loader.instance();
    if (!root) {
        error = QString("Can't load %1: %2").arg(file, m_loader.errorString());
        return false;
    }
    VondPluginInterface *tool = qobject_cast<VondPluginInterface *>(root);
    if (!tool) {
        error = QString("The root object of %1 doesn't offer VondPluginInterface.").arg(file);
        return false;
    }
    if (!ConnectSignals(error))
        return false;
    m_tool = tool;
    return true;
}

// Readable without loading the library, so no code of a wrong file ever runs.
bool CPluginHandle::CheckMetaData(QString &error) const
{
    const QString file = m_loader.fileName();
    const QString iid = m_loader.metaData().value("IID").toString();
    if (iid.isEmpty())
        error = QString("%1 is no Qt plug-in.").arg(file);
    else if (iid != VOND_PLUGIN_INTERFACE_ID)
        error = QString("%1 is a plug-in of another interface: it has \"%2\", this host needs "
                        "\"%3\".")
                    .arg(file, iid, VOND_PLUGIN_INTERFACE_ID);
    return error.isEmpty();
}

bool CPluginHandle::ConnectSignals(QString &error)
{
    QObject *root = m_loader.instance();
    const bool isConnected = connect(root, SIGNAL(Signal_PluginIsActivated(QString, bool)), this,
                                     SLOT(Slot_PluginIsActivated(QString, bool))) &&
                             connect(root, SIGNAL(Signal_PluginIsBusy(QString, bool)), this,
                                     SLOT(Slot_PluginIsBusy(QString, bool)));
    if (!isConnected)
        error = QString("The root object of %1 lacks a signal of the contract.")
                    .arg(m_loader.fileName());
    return isConnected;
}

void CPluginHandle::Slot_PluginIsActivated(QString pluginName, bool isActivated)
{
    m_isActivated = isActivated;
    emit Signal_Activated(pluginName, isActivated);
}

void CPluginHandle::Slot_PluginIsBusy(QString pluginName, bool isBusy)
{
    m_isBusy = isBusy;
    emit Signal_Busy(pluginName, isBusy);
}
