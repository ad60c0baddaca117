// What differs in two calls of one function.
//
//   const SComparisonRules rules = {.ignoresReadings = true};
//   for (const SCallDifference &field : CallDifferences(one, other, rules))
//       std::cout << field.name << '\n';   // "answer.rows.single.mainG"
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Trace/lines/TraceCall.h"

enum class ECallPart
{
    Call,  // the keys of the call itself
    Request,
    Answer
};

struct SComparisonRules
{
    // Is a field left out? None: no field is.
    std::function<bool(ECallPart part, std::string_view name)> isIgnored = {};
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
