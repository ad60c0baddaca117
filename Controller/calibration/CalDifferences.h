// A comparison of two images as pages take it (Model/CalDifferences.h).
//
// Counts are made with the object, words when they are asked for. Any thread.
//
//   const CalDifferences differences = MakeCalDifferences(CCalComparison(flash, memory));
#pragma once

#include "Model/CalDifferences.h"
#include "Operations/calibration/CalComparison.h"

CalDifferences MakeCalDifferences(CCalComparison comparison);
