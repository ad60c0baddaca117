// Pages that start something on the target and stop it later.
//
// Start starts the target and returns; what was started goes on until Stop. The page is in one of
//     idle      Start on, Stop off
//     starting  both off, busy     -> running, or idle when the target refused
//     running   Start off, Stop on
//     stopping  both off, busy     -> idle, or running when the stop failed, so that it can be
//     tried again
// The binding carries all inputs; this class is the two buttons and their answers, and what one
// page has other than the next is its record. A record's test name words everything that the user
// sees: "Cont Rx" gives the status lines "Cont Rx start...", "Cont Rx start failed...", "Cont Rx
// stop." and "Cont Rx stop failed.", and the boxes "Cont Rx start failed" and "Cont Rx stop
// failed".
//
// Errors. A result other than success ends in the result box, the last thing that an answer does:
// the page may be gone when the box has closed.
//
// Threads. GUI thread. An answer's connection lives for one request: made just before it, taken
// down first thing when the answer comes.
//
//   constexpr SStartStopPage kPage = {"Cont Rx", &CQuorlinViewCtrl::GetContRxDataModel, ...};
//   CNrContRxDockWidgetV7::CNrContRxDockWidgetV7(QWidget *parent)
//       : CStartStopDockWidget(kPage, parent), m_ui(...)
//   {
//       m_ui->setupUi(this);
//       SetTestButtons(m_ui->m_start, m_ui->m_stop);
//   }
//   void CNrContRxDockWidgetV7::on_m_start_clicked() { StartTest(); }
//   void CNrContRxDockWidgetV7::Slot_ContRxTestDone(SEachItemOperationResult result)
//   {
//       FinishStart("Slot_ContRxTestDone", result);
//   }
#pragma once

#include <memory>
#include <string>

#include "View/AutoBindingDataModelDockWidget.h"
#include "ViewController/QuorlinViewCtrl.h"

class CStartStopDockWidget;
class QPushButton;

// Requests of the view controller, the signals that answer them, and slots of a page, which a
// record takes with a static_cast.
using ViewRequest = void (CQuorlinViewCtrl::*)();
using DocumentRequest = void (CQuorlinViewCtrl::*)(std::string);
using TextSignal = void (CQuorlinViewCtrl::*)(std::string);
using ResultSignal = void (CQuorlinViewCtrl::*)(SEachItemOperationResult);
using TextSlot = void (CStartStopDockWidget::*)(std::string);
using ResultSlot = void (CStartStopDockWidget::*)(SEachItemOperationResult);

struct SStartStopPage
{
    const char *test;  // name in status lines and titles
    ViewRequest getDataModel;
    TextSignal dataModelDone;
    DocumentRequest start;
    ResultSignal startDone;
    ResultSlot startSlot;
    ViewRequest stop;
    ResultSlot stopSlot;
};

enum class ETestStep
{
    Starting,
    Started,
    StartFailed,
    Stopping,
    Stopped,
    StopFailed,
};

class CStartStopDockWidget : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    QWidget *GetRootWidget() override;
    int GetModelInterface() override;
    void RequestDataModel() override;
    void DisableTestControls() override;
    void EnableTestControls() override;
    void ShowTestStopped() override;

protected:
    CStartStopDockWidget(const SStartStopPage &page, QWidget *parent);

    // The form's buttons, once it is built; the page starts idle.
    void SetTestButtons(QPushButton *start, QPushButton *stop);

    void StartTest();
    void StopTest();
    // Stops if Stop can be pressed.
    void StopRunningTest();
    // The answers; slot is the name of the slot that they came to.
    void FinishStart(const char *slot, const SEachItemOperationResult &result);
    void FinishStop(const char *slot, const SEachItemOperationResult &result);

    // Turns the buttons on and off; a page with more buttons adds them.
    virtual void ShowStep(ETestStep step);

    CQuorlinViewCtrl *ViewCtrl() const { return m_viewCtrl.get(); }
    QPushButton *StartButton() const { return m_start; }
    QPushButton *StopButton() const { return m_stop; }

private:
    QString Words(const char *outcome) const;

    const SStartStopPage m_page;
    const std::unique_ptr<CQuorlinViewCtrl> m_viewCtrl;
    QPushButton *m_start = nullptr;
    QPushButton *m_stop = nullptr;
};
