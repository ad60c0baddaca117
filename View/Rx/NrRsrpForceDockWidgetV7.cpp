#include "View/Rx/NrRsrpForceDockWidgetV7.h"

#include "ui_NrRsrpForceDockWidgetV7.h"

namespace {

using Page = CNrRsrpForceDockWidgetV7;
using Ctrl = CQuorlinViewCtrl;

}  // namespace

constexpr SRsrpPage CNrRsrpForceDockWidgetV7::kPage = {
    .test =
        {
            .test = "Rsrp",
            .page = EPageId::RsrpForce,
            .getDataModel = &Ctrl::GetRsrpForceDataModel,
            .dataModelDone = &Ctrl::Signal_GetRsrpForceDataModelDone,
            .startDone = &Ctrl::Signal_RsrpForceTestDone,
            .startSlot = static_cast<ResultSlot>(&Page::Slot_RsrpForceTestDone),
            .stop = &Ctrl::NrTestStop,
            .stopSlot = static_cast<ResultSlot>(&Page::Slot_RsrpForceTestStopDone),
        },
    .testDoneLog = "Slot_RsrpForceTestDone",
    .stopDoneLog = "Slot_RsrpForceTestStopDone",
    .fetchDone = &Ctrl::Signal_RsrpForceFetchReportDone,
    .onFetchDone = static_cast<SRsrpPage::Slot<SEachItemOperationResult, std::string>>(
        &Page::Slot_RsrpForceFetchReportDone),
    .fetchDoneLog = "CNrRsrpForceDockWidgetV7::Slot_RsrpForceFetchReportDone()",
    .onTick = static_cast<SRsrpPage::Slot<>>(&Page::Slot_RsrpRxTimerTimeout),
    .tickLog = "CNrRsrpForceDockWidgetV7::Slot_RsrpRxTimerTimeout()",
    .onResetDone =
        static_cast<SRsrpPage::Slot<SEachItemOperationResult>>(&Page::Slot_RsrpResetCounterDone),
    .onClearDone = static_cast<SRsrpPage::Slot<std::string>>(&Page::Slot_RsrpClearReportDone),
};

CNrRsrpForceDockWidgetV7::CNrRsrpForceDockWidgetV7(QWidget *parent)
    : CNrRsrpDockWidgetV7(kPage, parent), m_ui(std::make_unique<Ui::CNrRsrpForceDockWidgetV7>())
{
    m_ui->setupUi(this);
    UseWidgets({
        .inputGroups = {m_ui->groupBox_rx, m_ui->groupBox_tx},
        .start = m_ui->m_start,
        .stop = m_ui->m_stop,
        .reset = m_ui->resetPushButton,
        .clear = m_ui->clearPushButton,
        .band = m_ui->cmdIf_request_group1_memberProperty_band,
        .dlFrequency = m_ui->cmdIf_request_group1_memberProperty_dlFrequency,
        .ulFrequency = m_ui->cmdIf_request_group3_memberProperty_ulFrequency,
        .results = {m_ui->cmdIf_response_group1_memberProperty_RSRP0},
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
