// The example page: reads the power detector once.
//
// Start reads and shows the value; both buttons are off and the page is busy meanwhile. A reading
// ends by itself, so there is nothing to stop. The binding carries all members (NrExampleV7.json);
// this class names none of them.
#pragma once

#include <memory>

#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "tests/recipes/ExampleViewCtrl.h"

namespace Ui {
class CNrExampleDockWidgetV7;
}

class CNrExampleDockWidgetV7 : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit CNrExampleDockWidgetV7(QWidget *parent);
    ~CNrExampleDockWidgetV7() override;

    QWidget *GetRootWidget() override;
    int GetModelInterface() override;
    void RequestDataModel() override;
    void DisableTestControls() override;
    void EnableTestControls() override;

public slots:
    void Slot_ExampleTestDone(SEachItemOperationResult result, std::string response);
    void Slot_TriggerStopTest() override;

private slots:
    void on_m_start_clicked();

private:
    std::unique_ptr<Ui::CNrExampleDockWidgetV7> m_ui;
    std::unique_ptr<CExampleViewCtrl> m_viewCtrl;
};
