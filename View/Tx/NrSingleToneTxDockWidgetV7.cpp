#include "View/Tx/NrSingleToneTxDockWidgetV7.h"

#include "View/plots/PdPlot.h"
#include "View/plots/PlotAction.h"
#include "ui_NrSingleToneTxDockWidgetV7.h"

namespace {

constexpr SStartStopPage kPage = {
    .test = "Single Tone Tx",
    .page = EPageId::SingleToneTx,
    .getDataModel = &CQuorlinViewCtrl::GetSingleToneTxDataModel,
    .dataModelDone = &CQuorlinViewCtrl::Signal_GetSingleToneTxDataModelDone,
    .startDone = &CQuorlinViewCtrl::Signal_SingleToneTxTestDone,
    .startSlot = static_cast<ResultSlot>(&CNrSingleToneTxDockWidgetV7::Slot_SingleToneTxTestDone),
    .stop = &CQuorlinViewCtrl::MultiRatTestStop,
    .stopSlot =
        static_cast<ResultSlot>(&CNrSingleToneTxDockWidgetV7::Slot_SingleToneTxTestStopDone),
};

constexpr STxReading kPdValue = {
    .startStatus = "Start fetch PD value...",
    .doneStatus = "Finish fetch PD value.",
    .request = &CQuorlinViewCtrl::RequestPdValue,
    .done = &CQuorlinViewCtrl::Signal_GetSingleToneTxPdValueDone,
    .slot = static_cast<TextSlot>(&CNrSingleToneTxDockWidgetV7::Slot_GetSingleToneTxPdValueDone),
    .takesTestButtons = false,
    .needsChoices = false,
    .restsDuringTest = false,
    .staysConnected = false,
};

}  // namespace

CNrSingleToneTxDockWidgetV7::CNrSingleToneTxDockWidgetV7(QWidget *parent)
    : CNrTxDockWidget(kPage, kPdValue, parent), m_plot(new CPdPlot(this)),
      m_ui(std::make_unique<Ui::CNrSingleToneTxDockWidgetV7>())
{
    m_ui->setupUi(this);
    SetTestButtons(m_ui->m_start, m_ui->m_stop);
    SetReadingButton(m_ui->m_btnFetchPd, m_ui->cmdIf_response_group1_memberProperty_pdValue);
    AddPlotAction(this, m_plot);
    KeepReadings({.sources = {{.group = "group1", .headers = &ScalarHeaders, .rows = &ScalarRows}},
                  .columns = {"group1.band", "group1.txRoute", "group1.txPowerValue",
                              "group1.ulFrequency"}});
}

CNrSingleToneTxDockWidgetV7::~CNrSingleToneTxDockWidgetV7() = default;

void CNrSingleToneTxDockWidgetV7::Slot_SingleToneTxTestDone(SEachItemOperationResult result)
{
    FinishStart("Slot_SingleToneTxTestDone", result);
}

void CNrSingleToneTxDockWidgetV7::Slot_SingleToneTxTestStopDone(SEachItemOperationResult result)
{
    FinishStop("Slot_SingleToneTxTestStopDone", result);
}

void CNrSingleToneTxDockWidgetV7::Slot_TriggerStopTest()
{
    StopRunningTest();
}

void CNrSingleToneTxDockWidgetV7::on_m_start_clicked()
{
    StartTest();
}

void CNrSingleToneTxDockWidgetV7::on_m_stop_clicked()
{
    StopTest();
}

void CNrSingleToneTxDockWidgetV7::on_m_btnFetchPd_clicked()
{
    StartReading();
}

void CNrSingleToneTxDockWidgetV7::Slot_GetSingleToneTxPdValueDone(std::string resultModel)
{
    FinishReading(resultModel);
}

// What the detector reads without a tone has no TX power.
void CNrSingleToneTxDockWidgetV7::OnReading(const QJsonObject &response)
{
    if (IsTestRunning())
        m_plot->AddReading(response);
}
