// Brings the inputs of a page to what a case wants: its settings file, its place in the sweep, its "set".
//
// Each value is typed as a person types it, so what depends on it follows at once. What the page does
// not take becomes an error with its place in the plan. A settings file holds the packaged values of all
// editors, in no order: they are typed in turns until nothing changes any more; an editor that is off
// then is left out, since the file's value of it means nothing.
//
//   CPlanErrors errors;
//   ApplyInputs(*page, runCase, errors);
#pragma once

#include "Runner/bench/BenchPage.h"
#include "Runner/plan/PlanErrors.h"
#include "Runner/run/RunPlan.h"

// Goes on behind an error, so that all are found.
void ApplyInputs(CBenchPage &page, const SRunCase &runCase, CPlanErrors &errors);
