// What differs in two calls of one function.
//
//   const SComparisonRules rules = {.ignored = {CFieldPattern("handle")}, .isTimed = false};
//   for (const SCallDifference &field : CallDifferences(one, other, rules))
//       std::cout << field.name << '\n';   // "answer.rows.single.mainG"
#pragma once

#include <string>
#include <vector>

#include "Cli/trace/FieldPattern.h"
#include "Trace/lines/TraceCall.h"

struct SComparisonRules
{
    std::vector<CFieldPattern> ignored;
    bool ignoresReadings = false;
    bool isTimed = false;  // times, durations, thread and process, too
};

struct SCallDifference
{
    std::string name;  // of a field, with "request." or "answer." in front; of the call: its key
    std::string one;
    std::string other;
};

std::vector<SCallDifference> CallDifferences(const STraceCall &one, const STraceCall &other,
                                             const SComparisonRules &rules);
