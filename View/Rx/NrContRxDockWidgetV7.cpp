#include "View/Rx/NrContRxDockWidgetV7.h"

#include "ui_NrContRxDockWidgetV7.h"

namespace {

constexpr SStartStopPage kPage = {
    "Cont Rx",
    &CQuorlinViewCtrl::GetContRxDataModel,
    &CQuorlinViewCtrl::Signal_GetContRxDataModelDone,
    &CQuorlinViewCtrl::ContRxTest,
    &CQuorlinViewCtrl::Signal_ContRxTestDone,
    static_cast<ResultSlot>(&CNrContRxDockWidgetV7::Slot_ContRxTestDone),
    &CQuorlinViewCtrl::MultiRatTestStop,
    static_cast<ResultSlot>(&CNrContRxDockWidgetV7::Slot_ContRxTestStopDone),
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
