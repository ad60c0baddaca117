// An engineer's working day at the bench host and the tool, and what the process has grown by at its end.
//
// Rounds of work follow each other: in each all nine pages, all windows of the tool, all pages and buttons of
// the host, a refused start, both windows closed and opened again. The round that ends a quarter of an hour is followed
// by a reset and a line of figures. Hours are those of the process's clocks,
// which may run faster than the machine's: the day is then shorter, and nothing else is different for the
// tool's timers.
//
// Lines are taken at like moments: the tool is reset and its pages have been built anew, nothing runs, no box
// and no window is open besides the two, the journal of the simulated DUT and Qt's cache of pixmaps are empty
// (they have bounds, of 64 MiB and 10 MiB). What a reset ends is told by one figure that is taken before it.
//
// All functions throw std::runtime_error when host or tool do not do what they should. GUI thread.
//
//   CWorkday day({.seed = 1, .folder = folder});
//   day.Hours(8);
//   return day.IsSteady() ? 0 : 1;
#pragma once

#include <vector>

#include <QElapsedTimer>
#include <QMap>

#include "tests/soak/SoakHandles.h"
#include "tests/soak/SoakMemory.h"
#include "tests/soak/day/SeededGrowth.h"
#include "tests/soak/day/WorkdayHost.h"
#include "tests/soak/day/WorkdayPace.h"
#include "tests/soak/day/WorkdayTool.h"

struct SWorkdayOptions
{
    uint64_t seed = 1;
    QString folder;            // for all files that are saved
    SeededGrowth growth = {};  // with each line
    SWorkdayPace pace = {};
    bool isVerbose = false;  // tells the parts of a round, and what objects have come and gone
};

class CWorkday
{
public:
    explicit CWorkday(const SWorkdayOptions &options);

    // A line for each quarter of an hour, or for each round that is longer. Behind the first round the log
    // of the tool and the events of the host are filled to their bounds.
    void Hours(double hours);
    // A line for each round.
    void Rounds(int rounds);
    // Prints the verdicts. False when something has grown.
    bool IsSteady() const;

private:
    void Round();
    void FillLists();
    void Line();
    void TellChanges();
    void Part(const char *name, const std::function<void()> &work);

    const SWorkdayOptions m_options;
    CChance m_chance;
    CDesk m_desk;
    CWorkdayHost m_host;
    CWorkdayTool m_tool;
    QElapsedTimer m_time;
    const double m_machineAtStart;  // s
    int m_rounds = 0;
    std::vector<SMemory> m_memory;
    std::vector<SHandles> m_handles;
    QMap<QString, int> m_objects;  // at the last line, if that is told
};
