// What the commands that open the tool share: which plug-in, which DUT.
//
//   SBenchOptions bench;
//   AddBenchOptions(*command, *given);
//   ... when the command runs:
//   BenchOptionsOf(*given)
#pragma once

#include <CLI/App.hpp>
#include <cstdint>
#include <string>

#include "Runner/bench/Bench.h"

// Which DUT.
struct SGivenDut
{
    std::string profile;
    std::string link;
    std::string handle;
};

struct SGivenBench : SGivenDut
{
    std::string scenario;
    std::string plugin;
    bool isVerbose = false;
};

// --profile, --handle, --link (one of them at most).
void AddDutOptions(CLI::App &command, SGivenDut &given);
// The same, --scenario, --plugin, --verbose.
void AddBenchOptions(CLI::App &command, SGivenBench &given);

SBenchOptions BenchOptionsOf(const SGivenDut &given);

SBenchOptions BenchOptionsOf(const SGivenBench &given);
