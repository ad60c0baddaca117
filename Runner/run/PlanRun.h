// A run of plans from the first file to the last report.
//
// All plans are read and checked before anything starts. Then their cases run, one after the other, each
// plan on fresh pages. Whatever ends the run, it ends in the safe state: the step's "then", RF Off,
// the tool closed, the reports whole. Errors go to stderr, verdicts to stdout.
//
//   auto application = MakeBenchApplication(isVerbose);
//   return RunPlans(options);
#pragma once

#include "Runner/run/RunOptions.h"

// Returns the program's exit code (RunOptions.h). Needs the application object.
int RunPlans(const SRunOptions &options);
