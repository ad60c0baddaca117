// Parts of a call in words.
#pragma once

#include <cstdint>
#include <string>

#include "Trace/lines/PrintableText.h"
#include "Trace/lines/TraceReader.h"

// "850 ns", "81.2 µs", "1.5 ms", "10.000 s".
std::string DurationText(uint64_t ns);
// "OK (0)"; the number alone where the pair has no text.
std::string ResultText(const STraceCall &call);
// The target's own verdict: "cell not found (2)".
std::string StatusText(uint32_t status);
// A calibration transfer that came back well, but whose answer says failure.
bool HasBadVerdict(const STraceCall &call);
// Did it return a failure, or the target tell one? An open call has not.
bool HasFailed(const STraceCall &call);
// "run.jsonl: of 2026-11-22T12:30:00Z, by Quorlin RF 0.1, with libVondCore.so (5a1c) and ..."
std::string HeaderText(const std::string &path, const STraceHeader &header);
// One line on stderr when the last line of the trace was left out.
void WarnOfCutLine(const std::string &path, const STrace &trace);
