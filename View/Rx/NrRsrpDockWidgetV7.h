// What the two RSRP pages have in common, which is all but names: a receive test in which the
// target keeps measuring while the page fetches its reports on a timer.
//
//     idle      timer stopped, Stop off
//     starting  timer stopped, all off, busy  -> running, or idle when the target refused
//     running   timer on; Stop and Reset Counter on
//     stopping  timer stopped, all off, busy  -> idle; when the stop failed, Stop is on again and
//               the timer stays off
//
// Reports. A tick asks for one report, and is skipped while an answer is on its way: a slow target
// costs ticks, never rows. The answer is the page's document with the new rows in it; it becomes
// the document, and the result table gets the rows that it lacks. Then the document lets go of
// their cells and keeps their numbers alone: the table has the texts, and a text of megabytes would
// have to be read on the GUI thread at each fetch. So a fetch costs next to nothing for the rows
// that are shown already. An answer that comes after Stop still counts. An answer without a
// document changes nothing.
//
// Clear. Empties document and table and leaves the target alone; Start begins with it. What was
// asked for before a clear goes with the rows that it clears, so that its answer cannot bring them
// back, and no report is asked for until the clear is done.
//
// Threads. GUI thread. A box shown here runs an event loop in which the page may be destroyed:
// nothing touches the page after that.
//
// A page is its form, a record of requests and words, and a named slot for each button and answer:
//
//   void CNrRsrpForceDockWidgetV7::on_m_start_clicked() { StartTest(); }
#pragma once

#include <memory>
#include <string>

#include <QPair>
#include <QTimer>
#include <QVector>

#include "View/AutoBindingDataModelDockWidget.h"
#include "ViewController/QuorlinViewCtrl.h"

class CNrRsrpDockWidgetV7;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

// What one page asks of its view controller, where the answers go, and what it writes to the log.
struct SRsrpPage
{
    template <typename... Answers>
    using Signal = void (CQuorlinViewCtrl::*)(Answers...);
    template <typename... Answers>
    using Slot = void (CNrRsrpDockWidgetV7::*)(Answers...);

    void (CQuorlinViewCtrl::*getDataModel)();
    Signal<std::string> dataModelDone;

    void (CQuorlinViewCtrl::*test)(std::string document);
    Signal<SEachItemOperationResult> testDone;
    Slot<SEachItemOperationResult> onTestDone;
    const char *testDoneLog;

    void (CQuorlinViewCtrl::*fetch)(std::string document);
    Signal<SEachItemOperationResult, std::string> fetchDone;
    Slot<SEachItemOperationResult, std::string> onFetchDone;
    const char *fetchDoneLog;

    Slot<> onTick;
    const char *tickLog;
    Slot<SEachItemOperationResult> onStopDone;
    const char *stopDoneLog;
    Slot<SEachItemOperationResult> onResetDone;
    Slot<std::string> onClearDone;
};

// The widgets of a page's form that the common part works with.
struct SRsrpWidgets
{
    QVector<QWidget *> inputGroups;
    QPushButton *start;
    QPushButton *stop;
    QPushButton *reset;
    QPushButton *clear;
    QComboBox *band;
    QSpinBox *dlFrequency;  // kHz
    QLabel *ulFrequency;    // kHz, follows the DL frequency
    QVector<QTableWidget *> results;
};

class CNrRsrpDockWidgetV7 : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    ~CNrRsrpDockWidgetV7() override;

    QWidget *GetRootWidget() override;
    int GetModelInterface() override;
    void RequestDataModel() override;
    void DisableTestControls() override;
    void EnableTestControls() override;
    void ShowTestStopped() override;

protected:
    // The record must outlive the page.
    CNrRsrpDockWidgetV7(const SRsrpPage &page, QWidget *parent);
    // Takes over the widgets of the form; once, behind setupUi.
    void UseWidgets(const SRsrpWidgets &widgets);

    // What the named slots of a page do.
    void StartTest();
    void OnTestDone(const SEachItemOperationResult &result);
    void StopTest();
    void OnStopDone(const SEachItemOperationResult &result);
    void TriggerStop();
    void FetchReport();
    void OnFetchDone(const SEachItemOperationResult &result, const std::string &response);
    void ResetCounter();
    void OnResetDone(const SEachItemOperationResult &result);
    void ClearReport();
    void OnClearDone(const std::string &response);
    void ShowUlFrequency(int dlFrequency);

private:
    // Remembers which inputs and buttons are on, and turns them off; turns on what was.
    void DisableInputs();
    void RestoreInputs();
    // What RestoreInputs would give the widget back.
    bool WasOn(const QWidget *widget) const;
    void ShowIdle();
    void RequestClear(const std::string &document);
    bool AdoptReports(const std::string &response);
    void ShapeResults();
    template <typename... Answers>
    void Await(SRsrpPage::Signal<Answers...> signal, SRsrpPage::Slot<Answers...> slot);
    template <typename... Answers>
    void StopAwaiting(SRsrpPage::Signal<Answers...> signal);

    const SRsrpPage &m_page;
    SRsrpWidgets m_widgets = {};
    std::unique_ptr<CQuorlinViewCtrl> m_viewCtrl;
    QVector<QPair<QWidget *, bool>> m_inputs;  // input groups and buttons, and whether each was on
    QTimer m_reportTimer{this};
    std::string m_documentText;  // m_dataModel from Start on
    bool m_isFetching = false;
    bool m_isClearing = false;
    bool m_isResetting = false;
    bool m_clearDisabledInputs = false;  // the clear under way is that of the button, not of Start
    bool m_stopAfterReset = false;       // a tab change came while the counters were being reset
    int m_clearCount = 0;
    int m_clearCountAtFetch = 0;
};
