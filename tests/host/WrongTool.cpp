// Plug-ins that a host must refuse. Compiled once for each kind:
//   WRONG_TOOL_IID    the interface id that the library claims
//   WRONG_TOOL_MUTE   set: the root object does offer the interface, but has none of its signals;
//                     otherwise it is a bare object
#include <QObject>

#include "PluginInterface/VondPluginInterface.h"

#ifdef WRONG_TOOL_MUTE
class CWrongTool : public QObject, public VondPluginInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID WRONG_TOOL_IID)
    Q_INTERFACES(VondPluginInterface)

public:
    QString GetPluginName() override { return {}; }
    void ResetPlugin() override {}
    void ShowPlugin() override {}
    void HidePlugin() override {}
    SPluginToolLaunchRequirement QueryLaunchRequirement() override { return {}; }
    QString GetPluginNote() override { return {}; }
    void HostNotifyAfter(uint32_t) override {}
    void DisablePages() override {}
    void EnablePages() override {}
    void Slot_PluginIsActivated(bool) override {}
    void Slot_PluginIsBusy(bool) override {}
};
#else
class CWrongTool : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID WRONG_TOOL_IID)
};
#endif

#include "WrongTool.moc"
