#include "View/Rx/NrContRxDockWidgetV7.h"

#include "ui_NrContRxDockWidgetV7.h"

namespace {

constexpr SStartStopPage kPage = {
    .test = "Cont Rx",
    .page = EPageId::ContRx,
    .getDataModel = &CQuorlinViewCtrl::GetContRxDataModel,
    .dataModelDone = &CQuorlinViewCtrl::Signal_GetContRxDataModelDone,
    .startDone = &CQuorlinViewCtrl::Signal_ContRxTestDone,
    .startSlot = static_cast<ResultSlot>(&CNrContRxDockWidgetV7::Slot_ContRxTestDone),
    .stop = &CQuorlinViewCtrl::MultiRatTestStop,
    .stopSlot = static_cast<ResultSlot>(&CNrContRxDockWidgetV7::Slot_ContRxTestStopDone),
};

}  // namespace

CNrContRxDockWidgetV7::CNrContRxDockWidgetV7(QWidget *parent)
    : CStartStopDockWidget(kPage, parent), m_ui(std::make_unique<Ui::CNrContRxDockWidgetV7>())
{
    m_ui->setupUi(this);
    SetTestButtons(m_ui->m_start, m_ui->m_stop);
}

CNrContRxDockWidgetV7::~CNrContRxDockWidgetV7() = default;

void CNrContRxDockWidgetV7::Slot_ContRxTestDone(SEachItemOperationResult result)
{
    FinishStart("Slot_ContRxTestDone", result);
}

void CNrContRxDockWidgetV7::Slot_ContRxTestStopDone(SEachItemOperationResult result)
{
    FinishStop("Slot_ContRxTestStopDone", result);
}

void CNrContRxDockWidgetV7::Slot_TriggerStopTest()
{
    StopRunningTest();
}

void CNrContRxDockWidgetV7::on_m_start_clicked()
{
    StartTest();
}

void CNrContRxDockWidgetV7::on_m_stop_clicked()
{
    StopTest();
}
