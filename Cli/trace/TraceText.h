// What the commands say of a trace as a whole.
#pragma once

#include <string>

#include "Trace/lines/TraceReader.h"

// "run.jsonl: of 2026-11-22T12:30:00Z, by Quorlin RF 0.1, with libVondCore.so (5a1c) and ..."
std::string HeaderText(const std::string &path, const STraceHeader &header);
// One line on stderr when the last line of the trace was left out.
void WarnOfCutLine(const std::string &path, const STrace &trace);
