// The Single Tone TX page: one unmodulated tone on a TX route, from Start until Stop, and the power
// detector's reading.
//
// The detector can be read at any time, also while the tone runs; that leaves Start and Stop alone.
// The binding carries all inputs and the result (NrSingleToneTxV7.json), the bases the buttons. The
// page is made by its class name, when the tool is shown.
#pragma once

#include <memory>

#include "View/Tx/NrTxDockWidget.h"

class CPdPlot;

namespace Ui {
class CNrSingleToneTxDockWidgetV7;
}

class CNrSingleToneTxDockWidgetV7 : public CNrTxDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrSingleToneTxDockWidgetV7(QWidget *parent);
    ~CNrSingleToneTxDockWidgetV7() override;

public slots:
    void Slot_SingleToneTxTestDone(SEachItemOperationResult result);
    void Slot_SingleToneTxTestStopDone(SEachItemOperationResult result);
    void Slot_TriggerStopTest() override;

private slots:
    void on_m_start_clicked();
    void on_m_stop_clicked();
    void on_m_btnFetchPd_clicked();

public slots:
    void Slot_GetSingleToneTxPdValueDone(std::string resultModel);

private:
    void OnReading(const QJsonObject &response) override;

    CPdPlot *const m_plot;
    std::unique_ptr<Ui::CNrSingleToneTxDockWidgetV7> m_ui;
};
