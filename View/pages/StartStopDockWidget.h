// Pages that start something on the target and stop it later.
//
// Start starts the target and returns; what was started goes on until Stop. The page is in one of
//
//   | state    | Start | Stop |      | next                                                     |
//   | idle     | on    | off  |      | starting                                                 |
//   | starting | off   | off  | busy | running; when the target refused, the state before       |
//   | running  | off   | on   |      | stopping                                                 |
//   | stopping | off   | off  | busy | idle; when the stop failed, running: it can be repeated  |
//
// From Start until the test is over, the inputs that Start packages are off, so that the page shows
// what the target runs on. Then each is again what relevance has made it.
//
// The binding carries all inputs, this class the buttons and their answers. A page is its record.
// The record's test name is in all that the user reads: "Cont Rx" gives the status lines "Cont Rx
// start...", "Cont Rx start failed...", "Cont Rx stop." and "Cont Rx stop failed.", and the boxes
// "Cont Rx start failed" and "Cont Rx stop failed".
//
// A stop from outside (another page comes to the front, the window goes) is never lost. While a
// start or another request of the page is under way, the page remembers the stop. When that request
// has ended, it stops what runs, or may run: a start that failed on the target may have begun there.
//
// Host. While it disables the pages, no test starts; the Stop of a running one stays on.
//
// Errors. A result other than success ends in the result box, the last thing that an answer does:
// the page may be gone when the box has closed.
//
// Threads. GUI thread. An answer's connection lives for one request: made just before it, taken
// down first thing when the answer comes.
//
//   constexpr SStartStopPage kPage = {.test = "Cont Rx", ...};
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

#include <QPair>
#include <QVector>

#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "ViewController/QuorlinViewCtrl.h"

class CStartStopDockWidget;
class QPushButton;

// Requests of the view controller, the signals that answer them, and slots of a page, which a
// record takes with a static_cast.
using ViewRequest = void (CQuorlinViewCtrl::*)();
using PageRequest = void (CQuorlinViewCtrl::*)(EPageId, CHandedDocument);
using TextSignal = void (CQuorlinViewCtrl::*)(std::string);
using ResultSignal = void (CQuorlinViewCtrl::*)(SEachItemOperationResult);
using TextSlot = void (CStartStopDockWidget::*)(std::string);
using ResultSlot = void (CStartStopDockWidget::*)(SEachItemOperationResult);

// Start asks by the page's id. A page without requests of its own leaves out getDataModel,
// dataModelDone and startDone.
struct SStartStopPage
{
    const char *test = nullptr;  // name in status lines and titles
    EPageId page = EPageId::ErrorPage;
    ViewRequest getDataModel = nullptr;
    TextSignal dataModelDone = &CQuorlinViewCtrl::Signal_DataModelDone;
    ResultSignal startDone = nullptr;
    ResultSlot startSlot = nullptr;
    ViewRequest stop = nullptr;
    ResultSlot stopSlot = nullptr;
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
    // What is off while a test runs; without it, the editors of the request.
    void SetInputs(const QVector<QWidget *> &inputs);

    void StartTest();
    void StopTest();
    // Stops what runs, now or as soon as the page can.
    void StopRunningTest();
    // The answers; slot is the name of the slot that they came to.
    void FinishStart(const char *slot, const SEachItemOperationResult &result);
    void FinishStop(const char *slot, const SEachItemOperationResult &result);
    // A stop that came while another request of the page was under way; its answer calls this.
    void StopIfAsked();

    // The test goes this step; a page with more than the buttons adds what follows.
    virtual void TakeStep(ETestStep step);
    // Brings buttons and inputs in line with the state of the page; a page with more adds them.
    virtual void ShowControls();
    // Another request of the page keeps Start and Stop off; the inputs, too.
    virtual bool HoldsButtons() const { return false; }
    virtual bool HoldsInputs() const { return false; }
    // The document is packaged; the start is next.
    virtual void PrepareStart(const QJsonObject &document);

    QJsonObject DocumentOf(const std::string &text) override;

    // From now on Start can be pressed though a test runs, until the test is over.
    void LetStartAgain();
    // No request of the page has the buttons.
    bool IsFree() const { return m_underWay == EUnderWay::Nothing && !HoldsButtons(); }
    bool IsTestRunning() const { return m_isRunning; }

    CQuorlinViewCtrl *ViewCtrl() const { return m_viewCtrl.get(); }
    EPageId PageId() const { return m_page.page; }

private:
    enum class EUnderWay
    {
        Nothing,
        Start,
        Stop,
    };

    // False when a TX power that Start would send is above the user's limit, which has been said then.
    // The page may be gone.
    bool IsWithinTxLimit();
    void ShowInputs(bool areOn);
    QVector<QWidget *> RequestEditors() const;
    QString Text(const char *outcome) const;

    const SStartStopPage m_page;
    const std::unique_ptr<CQuorlinViewCtrl> m_viewCtrl;
    QPushButton *m_start = nullptr;
    QPushButton *m_stop = nullptr;
    QVector<QWidget *> m_inputs;
    QVector<QPair<QWidget *, bool>> m_inputsOff;  // while they are off, and whether each was on
    EUnderWay m_underWay = EUnderWay::Nothing;
    bool m_isRunning = false;  // a test of this page
    bool m_isStopAsked = false;
    bool m_mayStartAgain = false;
    bool m_isDisabledByHost = false;
};
