// The Forced PUSCH TX page: a PUSCH transmission on one carrier, on a TX route of the user's
// choice.
//
// Calculate can be pressed during a transmission too, if the carrier search is on; its answer then
// leaves Start on and Stop off. The binding carries all inputs and the result
// (NrPuschTxForceModeV7.json), the bases the buttons. The page is made by its class name, when the
// tool is shown.
#pragma once

#include <memory>

#include "View/Tx/NrPuschTxDockWidget.h"

namespace Ui {
class CNrPuschTxForcedDockWidgetV7;
}

class CNrPuschTxForcedDockWidgetV7 : public CNrPuschTxDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrPuschTxForcedDockWidgetV7(QWidget *parent);
    ~CNrPuschTxForcedDockWidgetV7() override;

public slots:
    void Slot_PuschTxForceTestDone(SEachItemOperationResult result);
    void Slot_PuschTxForceTestStopDone(SEachItemOperationResult result);
    void Slot_TriggerStopTest() override;

private slots:
    void on_m_start_clicked();
    void on_m_stop_clicked();
    void on_cmdIf_request_group1_memberProperty_enableCsr_clicked(bool checked);
    void on_m_btnCalculate_clicked();

public slots:
    void Slot_PuschTxForceDlFreqDone(std::string resultModel);

private:
    std::unique_ptr<Ui::CNrPuschTxForcedDockWidgetV7> m_ui;
};
