// One call through the door to the closed pair, as a trace has it.
//
//   STraceCall call;
//   call.function = &FunctionOf(EFunction::NrTestStop);
//   call.request.reset();      // the call handed no record over
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Trace/dictionary/Functions.h"

// The bytes of a record; none: the caller gave a null pointer. No bytes: its size was 0.
using TraceBytes = std::optional<std::vector<uint8_t>>;

struct STraceCall
{
    uint64_t index = 0;  // from 0, in the order in which the calls began
    const SFunction *function = nullptr;
    uint32_t handle = 0;
    uint32_t timeoutMs = 0;
    TraceBytes request;
    TraceBytes answer;  // whole, whatever the result
    int32_t result = 0;
    std::string text;      // of the result
    uint32_t status = 0;   // the target's own verdict
    uint64_t startNs = 0;  // since the trace began
    uint64_t durationNs = 0;
    uint64_t thread = 0;
    uint64_t process = 0;
    // False: the call had not come back when the trace ended. Then only what a begin tells is there.
    bool isEnded = true;
};
