// The Continuous RX page: keeps the DUT's receiver on at one frequency, from Start until Stop.
//
// The binding carries all inputs (NrContRxV7.json), the base the two buttons; what is left is the
// form and the page's record. It is made by its class name, when the tool is shown.
#pragma once

#include <memory>

#include "View/pages/StartStopDockWidget.h"

namespace Ui {
class CNrContRxDockWidgetV7;
}

class CNrContRxDockWidgetV7 : public CStartStopDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrContRxDockWidgetV7(QWidget *parent);
    ~CNrContRxDockWidgetV7() override;

public slots:
    void Slot_ContRxTestDone(SEachItemOperationResult result);
    void Slot_ContRxTestStopDone(SEachItemOperationResult result);
    void Slot_TriggerStopTest() override;

private slots:
    void on_m_start_clicked();
    void on_m_stop_clicked();

private:
    std::unique_ptr<Ui::CNrContRxDockWidgetV7> m_ui;
};
