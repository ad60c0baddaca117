// "quorlin describe" from the options on: opens the tool, prints what it has, closes it.
//
// Nothing is pressed, so the DUT is only read. What cannot be done is a line on stderr.
//
//   return RunDescribe({.bench = {.profile = "handset"}, .page = "RSSI", .isJson = true});
#pragma once

#include <QString>

#include "Runner/bench/Bench.h"

struct SDescribeOptions
{
    SBenchOptions bench = {};
    QString page = {};  // empty: all pages, by title and class
    bool isJson = false;
    bool isVerbose = false;
};

// 0; 2: no such page, profile, plug-in or link; 3: the tool can't run on the DUT; 4: the pages did not come up.
int RunDescribe(const SDescribeOptions &options);

// The exit code that a failed opening comes to.
int ExitCodeOf(EBenchError error);
