// Reads what a step sets: its keys "set" and "sweep".
//
//   ReadSet("plan.yaml", *node, step.set, errors);
//   ReadSweep("plan.yaml", *node, step.sweep, errors);
#pragma once

#include <string>
#include <vector>

#include "Runner/plan/Plan.h"
#include "Runner/plan/PlanErrors.h"
#include "Runner/plan/PlanNode.h"

constexpr std::size_t kMostCombinations = 10000;  // of a step

void ReadSet(const std::string &file, const SPlanNode &node, std::vector<SPlanSetting> &settings,
             CPlanErrors &errors);

// Ranges are expanded. More than kMostCombinations together is an error.
void ReadSweep(const std::string &file, const SPlanNode &node, std::vector<SPlanSweep> &sweeps,
               CPlanErrors &errors);
