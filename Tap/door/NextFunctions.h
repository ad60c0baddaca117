// The functions that a call goes on to: those of the pair that the process would have called without
// the tap.
//
//   auto *next = reinterpret_cast<decltype(&VOND_NRf_TestStop_r)>(NextFunction(EFunction::NrTestStop));
//
// A pair that the program is linked with is the next in the order of symbols. One that only a plug-in has
// loaded is in no such order: it is found by its name among what is loaded. What was found is kept
// until somebody unloads a library, as the pair may be gone then, or be loaded anew at another place.
// Any thread; no lock of its own.
#pragma once

#include <array>
#include <atomic>

#include "Trace/dictionary/Functions.h"

using NextFunctionTable =
    std::array<std::atomic<void *>, static_cast<std::size_t>(EFunction::Count)>;

extern NextFunctionTable g_nextFunctions;  // null: not looked for yet

// Null where no loaded library has the function; the first time for each, a line on stderr tells.
void *FindNextFunction(EFunction id);

inline void *NextFunction(EFunction id)
{
    void *const known =
        g_nextFunctions[static_cast<std::size_t>(id)].load(std::memory_order_acquire);
    return known != nullptr ? known : FindNextFunction(id);
}

// Is a call that returns to that address one that the pair makes itself? One that is the last thing that
// its maker does returns to the tap, which had called the maker.
bool IsFromThePair(void *returnAddress);

// For whoever unloads a library: before and behind that.
void ForgetNextFunctions();
