#include "View/Rx/NrRsrpNormalDockWidgetV7.h"

#include "ui_NrRsrpNormalDockWidgetV7.h"

namespace {

using Page = CNrRsrpNormalDockWidgetV7;
using Ctrl = CQuorlinViewCtrl;

}  // namespace

constexpr SRsrpPage CNrRsrpNormalDockWidgetV7::kPage = {
    .test =
        {
            .test = "Rsrp",
            .page = EPageId::RsrpNormal,
            .getDataModel = &Ctrl::GetRsrpNormalDataModel,
            .dataModelDone = &Ctrl::Signal_GetRsrpNormalDataModelDone,
            .startDone = &Ctrl::Signal_RsrpNormalTestDone,
            .startSlot = static_cast<ResultSlot>(&Page::Slot_RsrpNormalTestDone),
            .stop = &Ctrl::NrTestStop,
            .stopSlot = static_cast<ResultSlot>(&Page::Slot_RsrpNormalTestStopDone),
        },
    .testDoneLog = "Slot_RsrpNormalTestDone",
    .stopDoneLog = "Slot_RsrpNormalTestStopDone",
    .fetchDone = &Ctrl::Signal_RsrpNormalFetchReportDone,
    .onFetchDone = static_cast<SRsrpPage::Slot<SEachItemOperationResult, std::string>>(
        &Page::Slot_RsrpNormalFetchReportDone),
    .fetchDoneLog = "CNrRsrpNormalDockWidgetV7::Slot_RsrpNormalFetchReportDone()",
    .onTick = static_cast<SRsrpPage::Slot<>>(&Page::Slot_RsrpRxTimerTimeout),
    .tickLog = "CNrRsrpNormalDockWidgetV7::Slot_RsrpRxTimerTimeout()",
    .onResetDone =
        static_cast<SRsrpPage::Slot<SEachItemOperationResult>>(&Page::Slot_RsrpResetCounterDone),
    .onClearDone = static_cast<SRsrpPage::Slot<std::string>>(&Page::Slot_RsrpClearReportDone),
};

CNrRsrpNormalDockWidgetV7::CNrRsrpNormalDockWidgetV7(QWidget *parent)
    : CNrRsrpDockWidgetV7(kPage, parent), m_ui(std::make_unique<Ui::CNrRsrpNormalDockWidgetV7>())
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
        .ulFrequency = m_ui->cmdIf_request_group2_memberProperty_ulFrequency,
        .results = {m_ui->cmdIf_response_group1_memberProperty_RSRP0,
                    m_ui->cmdIf_response_group2_memberProperty_RSRP0},
    });
}

CNrRsrpNormalDockWidgetV7::~CNrRsrpNormalDockWidgetV7() = default;

void CNrRsrpNormalDockWidgetV7::Slot_RsrpNormalTestStopDone(SEachItemOperationResult result)
{
    OnStopDone(result);
}

void CNrRsrpNormalDockWidgetV7::Slot_RsrpNormalTestDone(SEachItemOperationResult result)
{
    OnTestDone(result);
}

void CNrRsrpNormalDockWidgetV7::Slot_TriggerStopTest()
{
    StopRunningTest();
}

void CNrRsrpNormalDockWidgetV7::on_m_start_clicked()
{
    StartTest();
}

void CNrRsrpNormalDockWidgetV7::on_m_stop_clicked()
{
    StopTest();
}

void CNrRsrpNormalDockWidgetV7::on_cmdIf_request_group1_memberProperty_dlFrequency_valueChanged(
    int arg1)
{
    ShowUlFrequency(arg1);
}

void CNrRsrpNormalDockWidgetV7::Slot_RsrpRxTimerTimeout()
{
    FetchReport();
}

void CNrRsrpNormalDockWidgetV7::Slot_RsrpNormalFetchReportDone(SEachItemOperationResult result,
                                                               std::string response)
{
    OnFetchDone(result, response);
}

void CNrRsrpNormalDockWidgetV7::on_resetPushButton_clicked()
{
    ResetCounter();
}

void CNrRsrpNormalDockWidgetV7::Slot_RsrpResetCounterDone(SEachItemOperationResult result)
{
    OnResetDone(result);
}

void CNrRsrpNormalDockWidgetV7::on_clearPushButton_clicked()
{
    ClearReport();
}

// The tables stand in the order of the list.
void CNrRsrpNormalDockWidgetV7::on_cmdIf_request_group1_memberProperty_mimoType_activated(int index)
{
    m_ui->resultStack->setCurrentIndex(index);
}

void CNrRsrpNormalDockWidgetV7::Slot_RsrpClearReportDone(std::string result)
{
    OnClearDone(result);
}
