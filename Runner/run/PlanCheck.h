// Looks for all that the tool will not take of a plan, without starting anything: pages, buttons,
// members, values, settings files, what the guards forbid.
//
// The inputs of each case are typed on the pages, one case after the other, since what a page takes hangs on
// what was typed before. So the pages are not fresh afterwards. No button is pressed.
//
//   CPlanErrors errors;
//   CheckPlan(bench, limits, plan, errors);
#pragma once

#include "Runner/bench/Bench.h"
#include "Runner/bench/PressGuard.h"
#include "Runner/plan/PlanErrors.h"
#include "Runner/run/RunPlan.h"

// allowTransmit and allowWrite of limits are the command line's; the plan has the power. Ends early when the
// bench is interrupted.
void CheckPlan(CBench &bench, const SPressLimits &limits, const SRunPlan &plan,
               CPlanErrors &errors);

// The limits with the power of the plan. Nothing transmits without both.
SPressLimits LimitsOf(const SPressLimits &limits, const SPlan &plan);

// Reads the settings files that the steps name, from the plan's folder.
void ReadSettingsFiles(SRunPlan &plan, CPlanErrors &errors);
