// The preloaded library of a test's own process. main() starts a program anew that lacks it.
#pragma once

#include "tests/files/FailingCalls.h"

struct SPreloaded
{
    decltype(&FailingCalls_Arm) arm = nullptr;
    decltype(&FailingCalls_Disarm) disarm = nullptr;
    decltype(&FailingCalls_HasStruck) hasStruck = nullptr;
    decltype(&FailingCalls_Name) name = nullptr;
};

// Its functions; null where it is not preloaded.
const SPreloaded &Preloaded();
// Starts this program anew under the library, unless it is there.
void StartUnderLibrary(char **argv);
