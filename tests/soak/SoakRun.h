// The soak itself: minutes of a person's work, each ended by Stop, Clear, a line of figures and
// Start.
//
// Memory is taken at like moments: behind Clear, with no request under way, and of a table that had
// the same number of rows each time. For that, the second half of a minute is one undisturbed run
// of so many fetches; the first half has the actions. The simulated DUT's journal is emptied with
// the table; it would grow with every call.
//
// With the plot, its window stands open all the time, but for one half of the undisturbed run: there the
// fetches cost what they cost without it. Which half that is changes from minute to minute.
//
// Both functions throw std::runtime_error when the page does not do what it should. GUI thread.
//
//   CSoakRun run(1, false);
//   const bool isSteady = run.Minutes(65);
#pragma once

#include <random>
#include <vector>

#include "tests/soak/SoakClock.h"
#include "tests/soak/SoakMemory.h"
#include "tests/soak/SoakUser.h"

class CSoakRun
{
public:
    // The seed decides which action comes when.
    CSoakRun(unsigned seed, bool hasPlot);

    // Prints a line a minute. False when memory grew by more than 2 % after the fifth, or when fetches
    // with the plot cost the GUI thread more than 1.3 times of those without.
    bool Minutes(int minutes);
    // Fetches with the plot and without, at that many rows on the table and points in each curve. False
    // when those with it cost more than 1.3 times.
    bool AtRows(int rows);
    // A short run: every action once, with so many fetches in all, at least one each.
    void Fetches(int fetches);

private:
    void ActForHalfAMinute();
    void RunForHalfAMinute();
    void RunWithAndWithoutPlot();
    SFetchCost RunUndisturbed(int fetches);
    void PrintHead() const;
    void PrintMinute() const;
    SMemory ClearAndMeasure();
    bool IsSteady() const;
    bool IsPlotCheap() const;

    CSoakClock m_clock;
    CSoakUser m_user{m_clock};
    std::mt19937 m_chance;
    const bool m_hasPlot;
    std::vector<SMemory> m_memory;  // after each minute
    SSpread m_guiWith;              // undisturbed fetches of all minutes
    SSpread m_guiWithout;
    // Of this minute.
    int m_rows = 0;  // on the table before Clear
    int m_actions = 0;
    int m_fetches = 0;
    SFetchCost m_cost;     // with a plot: of the undisturbed fetches beside it
    SFetchCost m_without;  // of those without it
    SStretch m_longest = {};
};
