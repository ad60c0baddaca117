// Which call of a trace is nearest to one that it has no answer for, and in what it differs.
//
//   NearestCall(FunctionOf(EFunction::GetPdValue), asked, calls.Different(EFunction::GetPdValue))
//   // "the nearest, call 12, has kind 1 in place of 2"
//
// The nearest is the one with the fewest fields that differ. At most kMostNamedFields are named.
#pragma once

#include <string>
#include <vector>

#include "Tap/replay/ReplayCalls.h"

constexpr std::size_t kMostNamedFields = 20;

// Where there are no calls: "it has no call of that function". One line.
std::string NearestCall(const SFunction &function, const RequestView &asked,
                        const std::vector<const STraceCall *> &calls);
// "kind 1 in place of 2, ...": what the call was asked with, in place of what is asked. Empty where the
// requests are the same.
std::string Differences(const SFunction &function, const RequestView &asked,
                        const STraceCall &call);
