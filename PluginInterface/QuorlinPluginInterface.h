// The object that the host holds: it owns the tool window, forwards every request of the host to
// it, and relays the window's two state signals with the plug-in's name added.
//
// Contract of the operations: VondPluginInterface. GUI thread only. The object and its form may be
// destroyed at any time, also while a target operation runs: the operation ends by itself and its
// answer is dropped.
#pragma once

#include <QObject>

#include "PluginInterface/VondPluginInterface.h"
#include "View/form/QuorlinForm.h"

class QuorlinPluginInterface : public QObject, public VondPluginInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID VOND_PLUGIN_INTERFACE_ID FILE "QuorlinRf.json")
    Q_INTERFACES(VondPluginInterface)

public:
    QuorlinPluginInterface();

    QString GetPluginName() override;
    void ResetPlugin() override;
    void ShowPlugin() override;
    void HidePlugin() override;
    SPluginToolLaunchRequirement QueryLaunchRequirement() override;
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    QString GetPluginNote() override;
    void HostNotifyAfter(uint32_t) override;
    void DisablePages() override;
    void EnablePages() override;
    // Name of the DUT's NR chip, for a host that calls it by name; empty when it is not known. Blocks as
    // the launch query does, unless that has been asked.
    Q_INVOKABLE QString ChipName();

signals:
    void Signal_PluginIsActivated(QString pluginName, bool isActivated);
    void Signal_PluginIsBusy(QString pluginName, bool isBusy);

private slots:
    void Slot_PluginIsActivated(bool isActivated) override;
    void Slot_PluginIsBusy(bool isBusy) override;

private:
    CQuorlinForm &Form();  // the form, with the host's target handle taken

    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    QString m_reserved;
    CQuorlinForm m_form;
};
