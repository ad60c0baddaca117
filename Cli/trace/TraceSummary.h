// "quorlin trace summary": calls, failures, open calls and durations by function.
#pragma once

#include <string>

// Returns the exit code. Throws what is wrong with the trace.
int SummarizeTrace(const std::string &path);
