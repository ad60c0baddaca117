// A trace in place of the pair: answers each call as the trace has it, and reaches no target.
//
// Loose: the next unused call of the function with the same request answers, or else the last one with
// it. Strict: the calls come in the order of the trace, each function for itself, else they fail; fetches
// of the report beyond the trace get the last one. A call that fails so has the result 13001, one line on
// stderr tells in what the nearest call of the trace differs, and answer and status stay as the caller
// had them. A trace that cannot be used costs one line on stderr at once, and every call fails with 13002.
//
// Made at the first call and never destroyed. Any thread may call, also in a child of a fork; nothing
// throws, and there is no lock.
//
//   const CReplay replay({.file = "run.jsonl", .isStrict = true});
//   int16_t value = 0;
//   uint32_t kind = 1;
//   replay.Answer({.function = EFunction::GetPdValue, .request = &kind, .requestSize = 4,
//                  .answer = &value, .answerSize = 2});   // 0, or the recorded failure
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "Tap/replay/AskedCall.h"
#include "Tap/replay/ReplayCalls.h"
#include "Tap/replay/ReplayPlan.h"

class CReplay
{
public:
    explicit CReplay(const SReplayPlan &plan);
    // Plays these calls; the plan's file is not read.
    CReplay(const SReplayPlan &plan, std::vector<STraceCall> calls);

    // Of all functions that return a result.
    int32_t Answer(const SAskedCall &call) const;
    // Of those that return a text; it lives as long as this object. Null: the trace has none. A code that
    // a call of the trace came back with has its text, whether the trace asks for it or not.
    const char *AnswerText(const SAskedCall &call) const;
    // The text of a result, without using a call up; null where the trace has none.
    const char *TextOf(int32_t result) const;

private:
    using Clock = std::chrono::steady_clock;

    void Put(std::vector<STraceCall> calls);
    const STraceCall *Take(const SAskedCall &call) const;
    void WaitFor(const STraceCall &call, Clock::time_point start) const;

    SReplayPlan m_plan;
    std::unique_ptr<const CReplayCalls> m_calls;  // null: the trace cannot be used
    std::unordered_map<int32_t, std::string> m_texts;
};
