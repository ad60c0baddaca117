#include "View/Rx/NrRsrpForceDockWidgetV7.h"

#include "ui_NrRsrpForceDockWidgetV7.h"

using Page = CNrRsrpForceDockWidgetV7;
using Ctrl = CQuorlinViewCtrl;

constexpr SRsrpPage CNrRsrpForceDockWidgetV7::kPage = {
    {
        "Rsrp",
        &Ctrl::GetRsrpForceDataModel,
        &Ctrl::Signal_GetRsrpForceDataModelDone,
        &Ctrl::RsrpForceTest,
        &Ctrl::Signal_RsrpForceTestDone,
        static_cast<ResultSlot>(&Page::Slot_RsrpForceTestDone),
        &Ctrl::NrTestStop,
        static_cast<ResultSlot>(&Page::Slot_RsrpForceTestStopDone),
    },
    "Slot_RsrpForceTestDone",
    "Slot_RsrpForceTestStopDone",
    &Ctrl::RsrpForceFetchReport,
    &Ctrl::Signal_RsrpForceFetchReportDone,
    static_cast<SRsrpPage::Slot<SEachItemOperationResult, std::string>>(
        &Page::Slot_RsrpForceFetchReportDone),
    "CNrRsrpForceDockWidgetV7::Slot_RsrpForceFetchReportDone()",
    static_cast<SRsrpPage::Slot<>>(&Page::Slot_RsrpRxTimerTimeout),
    "CNrRsrpForceDockWidgetV7::Slot_RsrpRxTimerTimeout()",
    static_cast<SRsrpPage::Slot<SEachItemOperationResult>>(&Page::Slot_RsrpResetCounterDone),
    static_cast<SRsrpPage::Slot<std::string>>(&Page::Slot_RsrpClearReportDone),
};

CNrRsrpForceDockWidgetV7::CNrRsrpForceDockWidgetV7(QWidget *parent)
    : CNrRsrpDockWidgetV7(kPage, parent), m_ui(std::make_unique<Ui::CNrRsrpForceDockWidgetV7>())
{
    m_ui->setupUi(this);
    UseWidgets({
        {m_ui->groupBox_rx, m_ui->groupBox_tx},
        m_ui->m_start,
        m_ui->m_stop,
        m_ui->resetPushButton,
        m_ui->clearPushButton,
        m_ui->cmdIf_request_group1_memberProperty_band,
        m_ui->cmdIf_request_group1_memberProperty_dlFrequency,
        m_ui->cmdIf_request_group3_memberProperty_ulFrequency,
        {m_ui->cmdIf_response_group1_memberProperty_RSRP0},
    });
}

CNrRsrpForceDockWidgetV7::~CNrRsrpForceDockWidgetV7() = default;

void CNrRsrpForceDockWidgetV7::Slot_RsrpForceTestStopDone(SEachItemOperationResult result)
{
    OnStopDone(result);
}

void CNrRsrpForceDockWidgetV7::Slot_RsrpForceTestDone(SEachItemOperationResult result)
{
    OnTestDone(result);
}

void CNrRsrpForceDockWidgetV7::Slot_TriggerStopTest()
{
    StopRunningTest();
}

void CNrRsrpForceDockWidgetV7::on_m_start_clicked()
{
    StartTest();
}

void CNrRsrpForceDockWidgetV7::on_m_stop_clicked()
{
    StopTest();
}

void CNrRsrpForceDockWidgetV7::on_cmdIf_request_group1_memberProperty_dlFrequency_valueChanged(
    int arg1)
{
    ShowUlFrequency(arg1);
}

void CNrRsrpForceDockWidgetV7::Slot_RsrpRxTimerTimeout()
{
    FetchReport();
}

void CNrRsrpForceDockWidgetV7::Slot_RsrpForceFetchReportDone(SEachItemOperationResult result,
                                                             std::string response)
{
    OnFetchDone(result, response);
}

void CNrRsrpForceDockWidgetV7::on_resetPushButton_clicked()
{
    ResetCounter();
}

void CNrRsrpForceDockWidgetV7::Slot_RsrpResetCounterDone(SEachItemOperationResult result)
{
    OnResetDone(result);
}

void CNrRsrpForceDockWidgetV7::on_clearPushButton_clicked()
{
    ClearReport();
}

void CNrRsrpForceDockWidgetV7::Slot_RsrpClearReportDone(std::string result)
{
    OnClearDone(result);
}
