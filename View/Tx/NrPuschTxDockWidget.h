// The two PUSCH pages, Forced and Normal: what they have in common.
//
// Beside Start and Stop they have Calculate, which asks the DUT for the DL frequency of the UL
// setting. Its button follows the carrier search's check box when the user clicks that; a host that
// enables the pages, and an answer, turn it on whatever the box says. The answer also turns Start
// on, even while something is transmitted.
//
// A page is its form, its slots and its record:
//
//   constexpr SPuschMode kMode = {.getDataModel = &CQuorlinViewCtrl::GetPuschTxForceDataModel, ...};
//   CNrPuschTxForcedDockWidgetV7::CNrPuschTxForcedDockWidgetV7(QWidget *parent)
//       : CNrPuschTxDockWidget(kMode, parent), m_ui(...)
//   {
//       m_ui->setupUi(this);
//       SetButtons(m_ui->m_start, m_ui->m_stop, m_ui->m_btnCalculate, m_ui->...dlFrequency);
//   }
#pragma once

#include "View/Tx/NrTxDockWidget.h"

// What one page has other than its twin.
struct SPuschMode
{
    EPageId page;
    ViewRequest getDataModel;
    TextSignal dataModelDone;
    ResultSignal startDone;
    ResultSlot startSlot;
    ResultSlot stopSlot;
    TextSlot dlFreqSlot;
    bool calculateRestsDuringTest;
    bool dlFreqStaysConnected;
};

class CNrPuschTxDockWidget : public CNrTxDockWidget
{
    Q_OBJECT

protected:
    CNrPuschTxDockWidget(const SPuschMode &mode, QWidget *parent);

    void SetButtons(QPushButton *start, QPushButton *stop, QPushButton *calculate,
                    QWidget *dlFrequency);
    void FollowCarrierSearch(bool checked);

private:
    QPushButton *m_calculate = nullptr;
};
