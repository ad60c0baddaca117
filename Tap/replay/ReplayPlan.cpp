#include "Tap/replay/ReplayPlan.h"

#include <string_view>

namespace {

// One of two words; without the variable the first.
bool IsSecond(const char *name, const char *value, const char *const (&words)[2],
              std::string &trouble)
{
    const std::string_view text = value != nullptr ? value : "";
    if (text.empty() || text == words[0])
        return false;
    if (text == words[1])
        return true;
    trouble = std::string(name) + " is neither " + words[0] + " nor " + words[1] + ": " + value;
    return false;
}

}  // namespace

SReplayPlan ReplayPlanOf(const std::function<const char *(const char *name)> &variable)
{
    SReplayPlan plan;
    const auto isSecond = [&](const char *name, const char *const(&words)[2]) {
        return IsSecond(name, variable(name), words, plan.trouble);
    };
    plan.isStrict = isSecond("VOND_TAP_MATCH", {"loose", "strict"});
    plan.isRealTime = isSecond("VOND_TAP_TIME", {"none", "real"});
    const char *const file = variable("VOND_TAP_FILE");
    plan.file = file != nullptr ? file : "";
    if (plan.file.empty())
        plan.trouble = "VOND_TAP_FILE names no trace";
    return plan;
}

const char *ReplayText(int32_t result)
{
    switch (result) {
    case kNoCallLikeThis:
        return "Replay: no call like this in the trace";
    case kTraceUnusable:
        return "Replay: the trace cannot be used";
    default:
        return nullptr;
    }
}
