// A person at the RSRP Normal Mode page: starts and stops the test, clears the table, resets the
// counters, looks at another page and comes back.
//
// With a plot, the page's plot stands beside the tool from the first start on; it can be closed and opened.
//
// The test runs at the shortest period with the most rows a fetch, 4x4. Each action begins and ends
// with a running test. Every function waits for what it does and throws std::runtime_error, with
// what was expected, when that does not come. GUI thread.
//
//   CSoakClock clock;
//   CSoakUser user(clock);
//   user.Begin();
//   user.WaitForAnswers(5);
//   user.Act(0);
#pragma once

#include <functional>

#include "tests/device/RsrpSession.h"

class CSoakClock;

constexpr int kSoakPeriod = 300;  // ms
constexpr int kRowsAnAnswer = 10;

class CSoakUser
{
public:
    explicit CSoakUser(CSoakClock &clock);

    // Shows the tool and starts the test.
    void Begin();
    void WaitForAnswers(int count);
    // Fetches as fast as it goes, until the table has so many rows.
    void Fill(int rows);
    void Start();
    void Stop();
    // Presses Clear while the test is stopped. Before that, the table must hold the rows of all
    // answers.
    void Clear();
    int Rows() const { return m_session.Rows(); }
    // Opens the plot's window by the page's action, or closes it as a person does.
    void ShowPlot(bool isShown);

    static int Actions();
    void Act(int action);

private:
    struct SAction;
    static const SAction kActions[];

    bool IsOn(const char *button) const;
    void Await(const char *what, const std::function<bool()> &condition);
    QWidget *PlotWindow() const;
    void CheckRows();
    void AwaitIdle();
    void Restart();
    void StopAndClear();
    void ChangeTab();
    void ResetCounters();

    CSoakClock &m_clock;
    CRsrpSession m_session;
};
