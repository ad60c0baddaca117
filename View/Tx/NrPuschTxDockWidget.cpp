#include "View/Tx/NrPuschTxDockWidget.h"

#include <QPushButton>

namespace {

SStartStopPage TestOf(const SPuschMode &mode)
{
    return {
        "Pusch TX",
        mode.getDataModel,
        mode.dataModelDone,
        mode.start,
        mode.startDone,
        mode.startSlot,
        &CQuorlinViewCtrl::NrTestStop,
        mode.stopSlot,
    };
}

STxReading DlFreqOf(const SPuschMode &mode)
{
    return {
        "Start fetch DL frequence...",
        "Finish fetch DL frequence.",
        mode.getDlFreq,
        &CQuorlinViewCtrl::Signal_GetPuschTxDlFreqDone,
        mode.dlFreqSlot,
        true,
        true,
        mode.calculateRestsDuringTest,
        mode.dlFreqStaysConnected,
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
