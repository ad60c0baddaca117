// What the process has of memory: at one moment, and how it grew over the minutes of a run.
//
// What lies in main memory goes up and down by a percent or two from minute to minute, as the
// threads of the pool come and go with what malloc keeps for each. So a moment is the median of the
// five lines around it: "after five minutes" the lines 3 to 7, "at the end" the last five.
//
//   lines.push_back(ReadMemory());
//   ...
//   for (const SGrowth &growth : CompareMemory(lines)) ...
#pragma once

#include <cstddef>
#include <vector>

struct SMemory
{
    std::size_t resident;  // bytes that lie in main memory: code, stacks and heap, free blocks too
    std::size_t inUse;     // bytes that malloc has given out, of all its arenas
    std::size_t outside;   // of the resident ones, those that are not in malloc's arenas
};

// 0 for what the system does not tell.
SMemory ReadMemory();

constexpr double kMostGrowth = 2;  // percent

constexpr std::size_t kMomentLines = 5;  // that make a moment
constexpr std::size_t kFirstLine = 2;    // of those around minute 5
constexpr std::size_t kFewestLines = kFirstLine + 2 * kMomentLines;

struct SGrowth
{
    const char *name;
    bool isOfAllArenas;  // counts what malloc keeps free, too
    std::size_t before;  // bytes after five lines
    std::size_t after;   // bytes at the end
    double percent;

    bool Holds() const { return percent <= kMostGrowth; }
};

// One line a minute, from the first on; fewer than twelve compare nothing.
std::vector<SGrowth> CompareMemory(const std::vector<SMemory> &lines);
