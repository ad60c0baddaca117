// Reads a plan file.
//
// Everything that can be told from the file alone is checked here: keys, types, numbers, durations, sweeps,
// names that stand twice. Reading goes on behind an error, so that all of them are found. Whether pages,
// members and values exist only the tool knows.
//
//   CPlanErrors errors;
//   CDefines defines({{"hours", "0.01"}});
//   const std::optional<SPlan> plan = ReadPlan("night.yaml", defines, errors);
#pragma once

#include <optional>
#include <string>

#include "Runner/plan/Defines.h"
#include "Runner/plan/Plan.h"
#include "Runner/plan/PlanErrors.h"

constexpr std::size_t kMostSteps = 1000;
constexpr std::size_t kMostCases = 100000;  // combinations of all steps

// Nothing if there was an error.
std::optional<SPlan> ReadPlan(const std::string &file, CDefines &defines, CPlanErrors &errors);

// The same from the text of a file; file is its name in errors.
std::optional<SPlan> ReadPlanText(const std::string &file, const std::string &text,
                                  CDefines &defines, CPlanErrors &errors);
