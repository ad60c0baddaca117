// The contract between a host application and a tool plug-in.
//
// A host loads the library through QPluginLoader, casts the root object to VondPluginInterface with
// qobject_cast, and connects to two signals of the root object:
//     Signal_PluginIsActivated(QString pluginName, bool isActivated)   its window shows or hides
//     Signal_PluginIsBusy(QString pluginName, bool isBusy)             it works on the target or not
// All calls are made on the GUI thread, in any order and at any time, also from inside a signal.
// The order in which the virtual operations are declared is part of the contract.
//
// The host supplies the target handle as the dynamic property "vondTargetHandle" (unsigned) of the
// QCoreApplication; the plug-in takes it at every call of the interface, and 0 stands until it is
// set.
//
//   QPluginLoader loader("plugins/libQuorlinRf.so");
//   auto *tool = qobject_cast<VondPluginInterface *>(loader.instance());
//   qApp->setProperty("vondTargetHandle", handle);
//   if (tool->QueryLaunchRequirement().isSupport)
//       tool->ShowPlugin();
#pragma once

#include <cstdint>

#include <QString>
#include <QtPlugin>

// The answer to the launch query.
struct SPluginToolLaunchRequirement
{
    bool isSupport = false;     // the tool can run on the DUT now
    QString unsupportReason;    // why not, for the host to show; empty when isSupport
    bool isNeedDb = false;      // the host must have loaded a database
    bool isNeedDriver = false;  // the tool needs the host's driver
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    QString launchNote;
};

class VondPluginInterface
{
public:
    virtual ~VondPluginInterface() = default;

    // Left to the host; a plug-in may ignore them.
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    virtual bool HostCheck(uint32_t, uint32_t) { return true; }
    virtual void HostNotify(uint32_t) {}

    virtual QString GetPluginName() = 0;
    // Stops what still runs on the target, forgets all that is known of it and destroys all pages;
    // the next show builds them anew. Does not wait: the stop goes to the target that the test was
    // started on, before anything is read of the next one. Deleting the plug-in stops tests too.
    virtual void ResetPlugin() = 0;
    // Also of a window that is visible already: it gets its pages if it has none.
    virtual void ShowPlugin() = 0;
    // Stops a running test.
    virtual void HidePlugin() = 0;
    // Can the tool run on the DUT? Blocks on the target link. Needs no window.
    virtual SPluginToolLaunchRequirement QueryLaunchRequirement() = 0;
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    virtual QString GetPluginNote() = 0;
    virtual void HostNotifyAfter(uint32_t) = 0;
    // The Start and Stop buttons of all pages off; Start on and Stop off. The Stop of a test that
    // runs stays on with both.
    virtual void DisablePages() = 0;
    virtual void EnablePages() = 0;

    // The plug-in's own relay of its window's state to the host.
    virtual void Slot_PluginIsActivated(bool isActivated) = 0;
    virtual void Slot_PluginIsBusy(bool isBusy) = 0;

private:
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    QString m_reserved;  // part of the object's layout; nothing reads it
};

#define VOND_PLUGIN_INTERFACE_ID "com.halvane.Vond.VondToolPlugin"
Q_DECLARE_INTERFACE(VondPluginInterface, VOND_PLUGIN_INTERFACE_ID)
