// Seeds, one after another: each a whole run, and a failing one is a report of its own; the run goes on.
//
//   SSeedOptions options;
//   options.first = 1;
//   options.last = 2000;
//   const bool isGood = RunSeeds(options);   // prints what failed, and a line of what was done
#pragma once

#include <cstdint>

#include <QStringList>

struct SSeedOptions
{
    uint64_t first = 1;
    uint64_t last = 1;
    int steps = 200;
    double minutes = 0;  // at most; 0: all
    QStringList skipped = {};
    bool isVerbose = false;
    // Each seed runs again, and must give the same steps and the same calls of the DUT.
    bool isTwice = false;
};

// "7" or "1..2000"; false for anything else.
bool ParseSeeds(const QString &text, SSeedOptions &options);
bool RunSeeds(const SSeedOptions &options);
