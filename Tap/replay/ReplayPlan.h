// What a replay is asked for, and what it answers by itself.
//
//   const SReplayPlan plan = ReplayPlanOf(std::getenv);   // VOND_TAP_FILE, VOND_TAP_MATCH, VOND_TAP_TIME
//   if (!plan.trouble.empty()) ...                        // "VOND_TAP_MATCH is neither strict nor loose: ..."
#pragma once

#include <cstdint>
#include <functional>
#include <string>

struct SReplayPlan
{
    std::string file;
    bool isStrict = false;     // calls come in the order of the trace
    bool isRealTime = false;   // each answer as late as it was
    std::string trouble = {};  // why there is no replay; one line
};

// variable: the value of a variable of the environment, or null.
SReplayPlan ReplayPlanOf(const std::function<const char *(const char *name)> &variable);

// Results of a replay's own.
constexpr int32_t kNoCallLikeThis = 13001;
constexpr int32_t kTraceUnusable = 13002;

// Null for any other result.
const char *ReplayText(int32_t result);
