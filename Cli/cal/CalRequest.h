// What a command line of "quorlin cal" asks for: plain values, which pass from the program to the module
// that knows the DUT.
//
// The module stands apart (plugins/libQuorlinCal.so), since it links the operations and with them the Vond
// pair. The other commands of the program work where there is no pair, and a library that opens the link
// has to be loaded in front of it.
//
//   using RunCal = int (*)(const SCalRequest &);
//   const auto run = reinterpret_cast<RunCal>(module.resolve(kRunCal));
//   return run(request);   // an exit code of Cli/ExitCodes.h
#pragma once

#include <cstdint>
#include <string>
#include <vector>

enum class ECalVerb
{
    Read,
    Diff,
    Write,
    Verify,
    Restore
};

struct SCalRequest
{
    ECalVerb verb = ECalVerb::Read;
    std::string item = {};   // key of the item; empty: not told
    std::string file = {};   // --to, --from, BACKUP; of diff LEFT
    std::string right = {};  // of diff
    std::string tolerance = {};
    bool isJson = false;
    bool isCsv = false;
    std::vector<std::string> only = {};
    bool isDryRun = false;
    bool isYes = false;
    std::string backupFolder = {};  // empty: the default one
    bool mayTakeOtherRoutes = false;
    std::string profile = {};  // of the simulated DUT
    uint32_t handle = 1;
};

constexpr char kRunCal[] = "QuorlinCalRun";
