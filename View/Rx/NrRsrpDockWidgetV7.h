// What the two RSRP pages have in common, all but names: a receive test in which the target keeps
// measuring while the page fetches its reports on a timer.
//
// A page that starts and stops (StartStopDockWidget.h), and beyond that:
//
//   | state    | timer                                        | Reset Counter | Clear |
//   | idle     | stopped                                      | on            | on    |
//   | starting | stopped                                      | off           | off   |
//   | running  | on                                           | on            | off   |
//   | stopping | stopped, and stays so when the stop failed   | off           | off   |
//
// While counters are reset or reports are cleared, the page is busy, and all buttons and inputs are
// off.
//
// Reports. A tick asks for one report; while an answer is on its way the tick is skipped, so a slow
// target costs ticks, never rows. The answer is the page's document with the new rows in it. It
// becomes the document, and the result table gets the rows that it lacks. Then the document drops
// the cells of all rows and keeps the rows' numbers: otherwise each fetch would read megabytes of
// shown rows on the GUI thread. An answer that comes after Stop still counts. An answer without a
// document changes nothing.
//
// Clear. Empties document and table and leaves the target alone; Start begins with it, and has not ended
// before the table is empty. A report
// that was asked for before the clear is dropped when it comes: it would bring the rows back. No
// report is asked for until the clear is done.
//
// Threads. GUI thread. A box shown here runs an event loop in which the page may be destroyed:
// nothing touches the page after that.
//
// A page is its form, a record of requests and words, and a named slot for each button and answer:
//
//   void CNrRsrpForceDockWidgetV7::on_m_start_clicked() { StartTest(); }
#pragma once

#include <optional>
#include <string>

#include <QTimer>
#include <QVector>

#include "View/pages/StartStopDockWidget.h"
#include "View/results/ResultExport.h"

class CNrRsrpDockWidgetV7;
class CRsrpPlot;
class QComboBox;
class QLabel;
class QSpinBox;
class QTableWidget;

// What one page asks of its view controller, where the answers go, and what it writes to the log.
struct SRsrpPage
{
    template <typename... Answers>
    using Signal = void (CQuorlinViewCtrl::*)(Answers...);
    template <typename... Answers>
    using Slot = void (CNrRsrpDockWidgetV7::*)(Answers...);

    SStartStopPage test;
    const char *testDoneLog;
    const char *stopDoneLog;

    Signal<SEachItemOperationResult, std::string> fetchDone;
    Slot<SEachItemOperationResult, std::string> onFetchDone;
    const char *fetchDoneLog;

    Slot<> onTick;
    const char *tickLog;
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

class CNrRsrpDockWidgetV7 : public CStartStopDockWidget
{
    Q_OBJECT

public:
    ~CNrRsrpDockWidgetV7() override;

protected:
    // The record must outlive the page.
    CNrRsrpDockWidgetV7(const SRsrpPage &page, QWidget *parent);
    // Takes over the widgets of the form; once, behind setupUi.
    void UseWidgets(const SRsrpWidgets &widgets);

    // What the named slots of a page do.
    void OnTestDone(const SEachItemOperationResult &result);
    void OnStopDone(const SEachItemOperationResult &result);
    void FetchReport();
    void OnFetchDone(const SEachItemOperationResult &result, const std::string &response);
    void ResetCounter();
    void OnResetDone(const SEachItemOperationResult &result);
    void ClearReport();
    void OnClearDone(const std::string &response);
    void ShowUlFrequency(int dlFrequency);

    void PrepareStart(const QJsonObject &document) override;
    void TakeStep(ETestStep step) override;
    void ShowControls() override;
    bool HoldsButtons() const override { return m_isResetting || m_isClearedByUser; }
    bool HoldsInputs() const override { return HoldsButtons(); }

private:
    void RequestClear(const QJsonObject &document);
    bool AdoptReports(const std::string &response);
    void ShapeResults();
    void KeepResults();
    template <typename... Answers>
    void Await(SRsrpPage::Signal<Answers...> signal, SRsrpPage::Slot<Answers...> slot);
    template <typename... Answers>
    void StopAwaiting(SRsrpPage::Signal<Answers...> signal);

    const SRsrpPage &m_page;
    SRsrpWidgets m_widgets = {};
    CRsrpPlot *const m_plot;
    CResultExport *m_results = nullptr;  // the reports since Clear
    QTimer m_reportTimer{this};
    QJsonObject m_reported;  // m_dataModel from Start on, for the next fetch
    bool m_isFetching = false;
    bool m_isClearing = false;
    bool m_isResetting = false;
    bool m_isClearedByUser = false;  // the clear under way is that of the button, not of Start
    std::optional<SEachItemOperationResult>
        m_started;  // the answer of a start that waits for its clear
    int m_clearCount = 0;
    int m_clearCountAtFetch = 0;
};
