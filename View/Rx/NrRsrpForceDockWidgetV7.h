// The RSRP Force Mode page: reports of a receiver on a route that the user chooses, with the
// hardware behind it.
//
// What it does stands in NrRsrpDockWidgetV7.h; its inputs and results are in
// NrRsrpForceModeV7.json.
#pragma once

#include <memory>

#include "View/Rx/NrRsrpDockWidgetV7.h"

namespace Ui {
class CNrRsrpForceDockWidgetV7;
}

class CNrRsrpForceDockWidgetV7 : public CNrRsrpDockWidgetV7
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrRsrpForceDockWidgetV7(QWidget *parent);
    ~CNrRsrpForceDockWidgetV7() override;

public slots:
    void Slot_RsrpForceTestStopDone(SEachItemOperationResult result);
    void Slot_RsrpForceTestDone(SEachItemOperationResult result);
    void Slot_TriggerStopTest() override;
    void on_m_start_clicked();
    void on_m_stop_clicked();
    void on_cmdIf_request_group1_memberProperty_dlFrequency_valueChanged(int arg1);
    void Slot_RsrpRxTimerTimeout();
    void Slot_RsrpForceFetchReportDone(SEachItemOperationResult result, std::string response);
    void on_resetPushButton_clicked();
    void Slot_RsrpResetCounterDone(SEachItemOperationResult result);
    void on_clearPushButton_clicked();
    void Slot_RsrpClearReportDone(std::string result);

private:
    static const SRsrpPage kPage;

    std::unique_ptr<Ui::CNrRsrpForceDockWidgetV7> m_ui;
};
