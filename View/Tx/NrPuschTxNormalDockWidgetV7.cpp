#include "View/Tx/NrPuschTxNormalDockWidgetV7.h"

#include "ui_NrPuschTxNormalDockWidgetV7.h"

namespace {

constexpr SPuschMode kMode = {
    .page = EPageId::PuschTxNormal,
    .getDataModel = &CQuorlinViewCtrl::GetPuschTxNormalDataModel,
    .dataModelDone = &CQuorlinViewCtrl::Signal_GetPuschTxNormalDataModelDone,
    .startDone = &CQuorlinViewCtrl::Signal_PuschTxNormalTestDone,
    .startSlot = static_cast<ResultSlot>(&CNrPuschTxNormalDockWidgetV7::Slot_PuschTxNormalTestDone),
    .stopSlot =
        static_cast<ResultSlot>(&CNrPuschTxNormalDockWidgetV7::Slot_PuschTxNormalTestStopDone),
    .dlFreqSlot =
        static_cast<TextSlot>(&CNrPuschTxNormalDockWidgetV7::Slot_PuschTxNormalDlFreqDone),
    .calculateRestsDuringTest = true,
    .dlFreqStaysConnected = true,
};

}  // namespace

CNrPuschTxNormalDockWidgetV7::CNrPuschTxNormalDockWidgetV7(QWidget *parent)
    : CNrPuschTxDockWidget(kMode, parent),
      m_ui(std::make_unique<Ui::CNrPuschTxNormalDockWidgetV7>())
{
    m_ui->setupUi(this);
    SetButtons(m_ui->m_start, m_ui->m_stop, m_ui->m_btnCalculate,
               m_ui->cmdIf_response_group1_memberProperty_dlFrequency);
}

CNrPuschTxNormalDockWidgetV7::~CNrPuschTxNormalDockWidgetV7() = default;

void CNrPuschTxNormalDockWidgetV7::Slot_PuschTxNormalTestDone(SEachItemOperationResult result)
{
    FinishStart("Slot_PuschTxNormalTestDone", result);
}

void CNrPuschTxNormalDockWidgetV7::Slot_PuschTxNormalTestStopDone(SEachItemOperationResult result)
{
    FinishStop("Slot_PuschTxNormalTestStopDone", result);
}

void CNrPuschTxNormalDockWidgetV7::Slot_TriggerStopTest()
{
    StopRunningTest();
}

void CNrPuschTxNormalDockWidgetV7::on_m_start_clicked()
{
    StartTest();
}

void CNrPuschTxNormalDockWidgetV7::on_m_stop_clicked()
{
    StopTest();
}

void CNrPuschTxNormalDockWidgetV7::on_cmdIf_request_group1_memberProperty_enableCsr_clicked(
    bool checked)
{
    FollowCarrierSearch(checked);
}

void CNrPuschTxNormalDockWidgetV7::on_m_btnCalculate_clicked()
{
    StartReading();
}

void CNrPuschTxNormalDockWidgetV7::Slot_PuschTxNormalDlFreqDone(std::string resultModel)
{
    FinishReading(resultModel);
}
