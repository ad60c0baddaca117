// The remarks of an item's move in the user's words.
//
// Pure function, any thread.
//
//   const SCalRemarks remarks = CalRemarksOf(item.Remarks());
#pragma once

#include "Model/CalRemarks.h"
#include "Operations/calibration/CalRemarks.h"

SCalRemarks CalRemarksOf(const SCalMoveRemarks &remarks);
