#include "View/Tx/NrPuschTxForcedDockWidgetV7.h"

#include "ui_NrPuschTxForcedDockWidgetV7.h"

namespace {

constexpr SPuschMode kMode = {
    .page = EPageId::PuschTxForce,
    .getDataModel = &CQuorlinViewCtrl::GetPuschTxForceDataModel,
    .dataModelDone = &CQuorlinViewCtrl::Signal_GetPuschTxForceDataModelDone,
    .startDone = &CQuorlinViewCtrl::Signal_PuschTxForceTestDone,
    .startSlot = static_cast<ResultSlot>(&CNrPuschTxForcedDockWidgetV7::Slot_PuschTxForceTestDone),
    .stopSlot =
        static_cast<ResultSlot>(&CNrPuschTxForcedDockWidgetV7::Slot_PuschTxForceTestStopDone),
    .dlFreqSlot = static_cast<TextSlot>(&CNrPuschTxForcedDockWidgetV7::Slot_PuschTxForceDlFreqDone),
    .calculateRestsDuringTest = false,
    .dlFreqStaysConnected = false,
};

}  // namespace

CNrPuschTxForcedDockWidgetV7::CNrPuschTxForcedDockWidgetV7(QWidget *parent)
    : CNrPuschTxDockWidget(kMode, parent),
      m_ui(std::make_unique<Ui::CNrPuschTxForcedDockWidgetV7>())
{
    m_ui->setupUi(this);
    SetButtons(m_ui->m_start, m_ui->m_stop, m_ui->m_btnCalculate,
               m_ui->cmdIf_response_group1_memberProperty_dlFrequency);
    m_ui->cmdIf_request_group1_memberProperty_enableCsr->setEnabled(true);
}

CNrPuschTxForcedDockWidgetV7::~CNrPuschTxForcedDockWidgetV7() = default;

void CNrPuschTxForcedDockWidgetV7::Slot_PuschTxForceTestDone(SEachItemOperationResult result)
{
    FinishStart("Slot_PuschTxForceTestDone", result);
}

void CNrPuschTxForcedDockWidgetV7::Slot_PuschTxForceTestStopDone(SEachItemOperationResult result)
{
    FinishStop("Slot_PuschTxForceTestStopDone", result);
}

void CNrPuschTxForcedDockWidgetV7::Slot_TriggerStopTest()
{
    StopRunningTest();
}

void CNrPuschTxForcedDockWidgetV7::on_m_start_clicked()
{
    StartTest();
}

void CNrPuschTxForcedDockWidgetV7::on_m_stop_clicked()
{
    StopTest();
}

void CNrPuschTxForcedDockWidgetV7::on_cmdIf_request_group1_memberProperty_enableCsr_clicked(
    bool checked)
{
    FollowCarrierSearch(checked);
}

void CNrPuschTxForcedDockWidgetV7::on_m_btnCalculate_clicked()
{
    StartReading();
}

void CNrPuschTxForcedDockWidgetV7::Slot_PuschTxForceDlFreqDone(std::string resultModel)
{
    FinishReading(resultModel);
}
