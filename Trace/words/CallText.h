// Parts of a call in words.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Trace/lines/TraceCall.h"

// "850 ns", "81.2 µs", "1.5 ms", "10.000 s".
std::string DurationText(uint64_t ns);
// "OK (0)"; the number alone where the pair has no text.
std::string ResultText(const STraceCall &call);
// The target's own verdict: "cell not found (2)".
std::string StatusText(uint32_t status);
// The field of the answer in which a calibration transfer says how it went; empty for other functions.
std::string_view VerdictField(const SFunction &function);
// A calibration transfer that came back well, but whose answer says failure.
bool HasBadVerdict(const STraceCall &call);
// Did it return a failure, or the target tell one? An open call has not.
bool HasFailed(const STraceCall &call);
