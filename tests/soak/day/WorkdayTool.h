// What an engineer does with the tool in a round of the working day: its nine pages and their windows.
//
// Throws std::runtime_error with what was expected when the tool does not do it. GUI thread.
//
//   CWorkdayTool tool(desk, chance, {});
//   tool.TestPages();
//   tool.CalibrationPages();
//   tool.CloseWindows();
#pragma once

#include "tests/hands/Chance.h"
#include "tests/hands/desk/Desk.h"
#include "tests/soak/day/WorkdayPace.h"

class CWorkdayTool : public QObject
{
public:
    CWorkdayTool(CDesk &desk, CChance &chance, const SWorkdayPace &pace);

    // Each page that tests: settings saved and loaded, its plot opened, started, reports taken, results
    // exported, stopped.
    void TestPages();
    // Both: Read, cells edited, undone and done again, Write, Export, Import, Compare, Guarded Write, plot.
    void CalibrationPages();
    // Log, explain, a floating page, the next page.
    void OtherWindows();
    // A start that the DUT refuses: call behind a fault.
    void FailedStart();
    // The log is filled to its bound with copies of what it holds, or it would grow for hours.
    void FillLog();
    // All of the tool but its main window.
    void CloseWindows();

    int Tests() const { return m_tests; }  // started
    int Reports() const { return m_reports; }

private:
    QDockWidget *Front(const char *page);
    void RunTest(const char *page);
    void Start(QDockWidget *page);
    void Calibrate(const char *page);

    CDesk &m_desk;
    CChance &m_chance;
    const SWorkdayPace m_pace;
    int m_tests = 0;
    int m_reports = 0;
};
