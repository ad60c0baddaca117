// The RSRP Normal Mode page: reports of a receiver whose routes the DUT chooses, on two antennas or
// on four; each has its result table.
//
// What it does stands in NrRsrpDockWidgetV7.h; its inputs and results are in
// NrRsrpNormalModeV7.json.
#pragma once

#include <memory>

#include "View/Rx/NrRsrpDockWidgetV7.h"

namespace Ui {
class CNrRsrpNormalDockWidgetV7;
}

class CNrRsrpNormalDockWidgetV7 : public CNrRsrpDockWidgetV7
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrRsrpNormalDockWidgetV7(QWidget *parent);
    ~CNrRsrpNormalDockWidgetV7() override;

public slots:
    void Slot_RsrpNormalTestStopDone(SEachItemOperationResult result);
    void Slot_RsrpNormalTestDone(SEachItemOperationResult result);
    void Slot_TriggerStopTest() override;
    void on_m_start_clicked();
    void on_m_stop_clicked();
    void on_cmdIf_request_group1_memberProperty_dlFrequency_valueChanged(int arg1);
    void Slot_RsrpRxTimerTimeout();
    void Slot_RsrpNormalFetchReportDone(SEachItemOperationResult result, std::string response);
    void on_resetPushButton_clicked();
    void Slot_RsrpResetCounterDone(SEachItemOperationResult result);
    void on_clearPushButton_clicked();
    void on_cmdIf_request_group1_memberProperty_mimoType_activated(int index);
    void Slot_RsrpClearReportDone(std::string result);

private:
    static const SRsrpPage kPage;

    std::unique_ptr<Ui::CNrRsrpNormalDockWidgetV7> m_ui;
};
