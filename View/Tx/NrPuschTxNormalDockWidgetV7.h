// The Normal PUSCH TX page: a PUSCH transmission on one or two carriers that the DUT routes by
// band.
//
// Calculate goes off with Start, and comes back with it. Its answers stay connected: after the n-th
// Calculate an answer is taken n times, which tells the status and shows the result anew.
// The binding carries all inputs and the result (NrPuschTxNormalModeV7.json), the bases the
// buttons. The page is made by its class name, when the tool is shown.
#pragma once

#include <memory>

#include "View/Tx/NrPuschTxDockWidget.h"

namespace Ui {
class CNrPuschTxNormalDockWidgetV7;
}

class CNrPuschTxNormalDockWidgetV7 : public CNrPuschTxDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrPuschTxNormalDockWidgetV7(QWidget *parent);
    ~CNrPuschTxNormalDockWidgetV7() override;

public slots:
    void Slot_PuschTxNormalTestDone(SEachItemOperationResult result);
    void Slot_PuschTxNormalTestStopDone(SEachItemOperationResult result);
    void Slot_TriggerStopTest() override;

private slots:
    void on_m_start_clicked();
    void on_m_stop_clicked();
    void on_cmdIf_request_group1_memberProperty_enableCsr_clicked(bool checked);
    void on_m_btnCalculate_clicked();

public slots:
    void Slot_PuschTxNormalDlFreqDone(std::string resultModel);

private:
    std::unique_ptr<Ui::CNrPuschTxNormalDockWidgetV7> m_ui;
};
