// Reads what a step waits for and expects: its keys "wait" and "expect".
//
//   ReadExpect("plan.yaml", *node, step, errors);   // fills status, boxes and expect
//   step.wait = ReadWait("plan.yaml", *node, errors);
#pragma once

#include <string>

#include "Runner/plan/Plan.h"
#include "Runner/plan/PlanErrors.h"
#include "Runner/plan/PlanNode.h"

SPlanWait ReadWait(const std::string &file, const SPlanNode &node, CPlanErrors &errors);

void ReadExpect(const std::string &file, const SPlanNode &node, SPlanStep &step,
                CPlanErrors &errors);
