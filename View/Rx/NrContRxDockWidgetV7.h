// The Continuous RX page: keeps the DUT's receiver on at one frequency.
//
// Start starts the target and returns; the receiver stays on until Stop. The page is in one of
//     idle      Start on, Stop off
//     starting  both off, busy     -> running, or idle when the target refused
//     running   Start off, Stop on
//     stopping  both off, busy     -> idle, or running when the stop failed, so that it can be
//     tried again
// The binding carries all inputs (NrContRxV7.json); this class is the two buttons and their
// answers.
#pragma once

#include <memory>

#include "View/AutoBindingDataModelDockWidget.h"
#include "ViewController/QuorlinViewCtrl.h"

namespace Ui {
class CNrContRxDockWidgetV7;
}

class CNrContRxDockWidgetV7 : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrContRxDockWidgetV7(QWidget *parent);
    ~CNrContRxDockWidgetV7() override;

    QWidget *GetRootWidget() override;
    int GetModelInterface() override;
    void RequestDataModel() override;
    void DisableTestControls() override;
    void EnableTestControls() override;

public slots:
    void Slot_ContRxTestDone(SEachItemOperationResult result);
    void Slot_ContRxTestStopDone(SEachItemOperationResult result);
    void Slot_TriggerStopTest() override;

private slots:
    void on_m_start_clicked();
    void on_m_stop_clicked();

private:
    std::unique_ptr<Ui::CNrContRxDockWidgetV7> m_ui;
    std::unique_ptr<CQuorlinViewCtrl> m_viewCtrl;
};
