// A plug-in that knows nothing of the tool: it keeps the contract of VondPluginInterface.h, and its
// window has just the names and status lines by which the bench host works.
//
// The environment variable FAKE_TOOL says what goes wrong with it:
//     unsupported   the launch query says no, with the reason of FAKE_TOOL_REASON or one of its own
//     unsupported-with-note  the same, with the launch note as reason
//     never-ready   the window never says "Init done."
//     no-page       the window has no page
//     start-fails   Start is answered with a box
//     stop-off      Stop stays off after a start
//     quiet         target operations are not announced
// In its launch note it says which target handle and profile the host gave it.
#pragma once

#include <QMainWindow>
#include <QObject>
#include <QStringList>

#include "PluginInterface/VondPluginInterface.h"

class QPushButton;

class CFakeToolWindow : public QMainWindow
{
    Q_OBJECT

public:
    CFakeToolWindow();
    void DropPages();

signals:
    void Signal_Activated(bool isActivated);
    void Signal_Busy(bool isBusy);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void MakePage();
    void Start();
    void Stop();
    void SetBusy(bool isBusy);

    QPushButton *m_start = nullptr;
    QPushButton *m_stop = nullptr;
};

class CFakeTool : public QObject, public VondPluginInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID VOND_PLUGIN_INTERFACE_ID FILE "FakeTool.json")
    Q_INTERFACES(VondPluginInterface)

public:
    CFakeTool();

    QString GetPluginName() override { return "Fake tool"; }
    void ResetPlugin() override;
    void ShowPlugin() override;
    void HidePlugin() override;
    SPluginToolLaunchRequirement QueryLaunchRequirement() override;
    QString GetPluginNote() override { return "A note of the fake tool."; }
    void HostNotifyAfter(uint32_t) override {}
    void DisablePages() override;
    void EnablePages() override;
    void Slot_PluginIsActivated(bool isActivated) override;
    void Slot_PluginIsBusy(bool isBusy) override;

    // For tests, reached by name: the requests since the last call, and a busy state out of the
    // blue.
    Q_INVOKABLE QStringList TakeRequests();
    Q_INVOKABLE void RaiseBusy(bool isBusy) { Slot_PluginIsBusy(isBusy); }

signals:
    void Signal_PluginIsActivated(QString pluginName, bool isActivated);
    void Signal_PluginIsBusy(QString pluginName, bool isBusy);

private:
    CFakeToolWindow m_window;
    QStringList m_requests;
};
