// "quorlin serve" from the options on: opens the tool, serves until the input ends, leaves the DUT in its
// safe state.
//
//   return RunServe({.bench = {.profile = "handset"}, .limits = {.allowTransmit = true, .maxDbm = 10}});
#pragma once

#include "Runner/bench/Bench.h"
#include "Runner/bench/PressGuard.h"

struct SServeOptions
{
    SBenchOptions bench = {};
    SPressLimits limits = {};
    bool isVerbose = false;
};

// 0; 2: wrong options; 3: the tool can't run on the DUT; 4: the pages did not come up, or RF Off failed at the
// end; 128 and its number after a signal.
int RunServe(const SServeOptions &options);
