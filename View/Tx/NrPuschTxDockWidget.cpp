#include "View/Tx/NrPuschTxDockWidget.h"

#include <QPushButton>

namespace {

SStartStopPage TestOf(const SPuschMode &mode)
{
    return {
        .test = "Pusch TX",
        .page = mode.page,
        .getDataModel = mode.getDataModel,
        .dataModelDone = mode.dataModelDone,
        .startDone = mode.startDone,
        .startSlot = mode.startSlot,
        .stop = &CQuorlinViewCtrl::NrTestStop,
        .stopSlot = mode.stopSlot,
    };
}

STxReading DlFreqOf(const SPuschMode &mode)
{
    return {
        .startStatus = "Start fetch DL frequence...",
        .doneStatus = "Finish fetch DL frequence.",
        .request = &CQuorlinViewCtrl::RequestDlFreq,
        .done = &CQuorlinViewCtrl::Signal_GetPuschTxDlFreqDone,
        .slot = mode.dlFreqSlot,
        .takesTestButtons = true,
        .needsChoices = true,
        .restsDuringTest = mode.calculateRestsDuringTest,
        .staysConnected = mode.dlFreqStaysConnected,
    };
}

}  // namespace

CNrPuschTxDockWidget::CNrPuschTxDockWidget(const SPuschMode &mode, QWidget *parent)
    : CNrTxDockWidget(TestOf(mode), DlFreqOf(mode), parent)
{
}

void CNrPuschTxDockWidget::SetButtons(QPushButton *start, QPushButton *stop, QPushButton *calculate,
                                      QWidget *dlFrequency)
{
    SetTestButtons(start, stop);
    SetReadingButton(calculate, dlFrequency);
    m_calculate = calculate;
    m_calculate->setEnabled(false);
}

void CNrPuschTxDockWidget::FollowCarrierSearch(bool checked)
{
    m_calculate->setEnabled(checked && !IsReading());
}
