// A plan as it was read: what to do on the pages of the tool, and what to expect.
//
// Names of pages, members and buttons are as the plan has them; whoever carries the plan out looks them
// up. All texts are trimmed. docs/automation.md tells the format.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Runner/plan/Place.h"

// A member and the text for it.
struct SPlanSetting
{
    SPlacedText key;
    SPlacedText value;
};

struct SPlanSweep
{
    SPlacedText key;
    std::vector<SPlacedText> values;  // at least one
};

enum class EOf
{
    Each,
    Mean,
    Min,
    Max,
    Last,
};

// What the readings of a member or column must be: a text, or a number within limits.
struct SPlanExpect
{
    SPlacedText key;
    EOf of = EOf::Each;
    std::optional<std::string> value;
    std::optional<double> min;
    std::optional<double> max;
    std::optional<SPlacedText> minus;  // the member that is subtracted from each reading
};

struct SPlanWait
{
    std::optional<int> rows;                        // of the result table, at least
    std::optional<std::chrono::milliseconds> time;  // or so long
    std::chrono::milliseconds timeout{60000};
};

struct SPlanStep
{
    SPlacedText name;
    SPlacedText page;
    std::optional<SPlacedText> settings;  // file, from the plan's folder
    std::vector<SPlanSweep> sweep;
    std::vector<SPlanSetting> set;
    std::vector<SPlacedText> press;
    std::optional<SPlanWait> wait;
    std::vector<SPlacedText> then;
    std::optional<SPlacedText> status;  // expected status line
    std::vector<SPlacedText> boxes;     // expected boxes, each by its title or one of its texts
    std::vector<SPlanExpect> expect;
    std::optional<SPlacedText> exportFile;
    std::chrono::milliseconds timeout{60000};  // of each press
};

struct SPlan
{
    std::string file;
    SPlacedText name;
    std::optional<double> maxDbm;  // nothing: no step may transmit
    std::vector<SPlanStep> steps;
};

// Number of combinations of a step's sweep; 1 without one.
inline std::size_t CombinationCount(const SPlanStep &step)
{
    std::size_t count = 1;
    for (const SPlanSweep &sweep : step.sweep)
        count *= sweep.values.size();
    return count;
}

// The settings of combination number index, in the order of the sweep's keys; the last key is the fastest.
inline std::vector<SPlanSetting> Combination(const SPlanStep &step, std::size_t index)
{
    std::vector<SPlanSetting> settings(step.sweep.size());
    for (std::size_t i = step.sweep.size(); i-- > 0;) {
        const SPlanSweep &sweep = step.sweep[i];
        settings[i] = {sweep.key, sweep.values[index % sweep.values.size()]};
        index /= sweep.values.size();
    }
    return settings;
}
