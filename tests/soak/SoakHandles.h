// What the process holds besides memory, and when that counts as grown.
//
// None of it may grow at all: what a round of work opens it closes. Threads of a pool and windows of a menu
// come and go, though, so a line may be high: a figure has grown when even the fewest of the last five lines
// are more than the most of the lines 3 to 7.
//
//   lines.push_back(ReadHandles());          // files and threads; the rest is the caller's to fill in
//   for (const SHandleGrowth &growth : CompareHandles(lines)) ...
#pragma once

#include <vector>

struct SHandles
{
    int files = 0;
    int threads = 0;
    int widgets = 0;
    int windows = 0;
    int objects = 0;  // of Qt, that are below a window or the application
    int timers = 0;   // that run, of these
};

// Files and threads alone.
SHandles ReadHandles();

struct SHandleGrowth
{
    const char *name;
    int before;  // the most of the lines 3 to 7
    int after;   // the fewest of the last five

    bool Holds() const { return after <= before; }
};

// Fewer than twelve lines compare nothing.
std::vector<SHandleGrowth> CompareHandles(const std::vector<SHandles> &lines);
