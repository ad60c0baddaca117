// A plan with what the run knows of it: its settings files, and where its cases stand among all.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <QString>

#include "Runner/plan/Plan.h"
#include "Runner/plan/SettingsFile.h"

struct SRunPlan
{
    SPlan plan;
    std::map<std::string, SSettingsFile> settings;  // by the text of the step's "settings"
};

// One combination of one step.
struct SRunCase
{
    const SRunPlan *plan = nullptr;
    const SPlanStep *step = nullptr;
    std::size_t combination = 0;  // from 0
};

inline QString Text(const std::string &text)
{
    return QString::fromStdString(text);
}

// All cases of a plan in their order.
std::vector<SRunCase> CasesOf(const SRunPlan &plan);
