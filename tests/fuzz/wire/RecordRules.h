// What holds of everything that is made of the DUT's answers, whatever they are. A broken rule ends the
// process. On the calling thread; the DUT is the one that is plugged.
#pragma once

#include "Controller/core/PageId.h"

// Counts are within the tables, lists are complete or empty, and a question asked twice has one answer.
void CheckCapability();
// The page's operations: codes are those of the status table. Of a calibration page: what came up is
// kept whole, and goes down as it came.
void CheckOperations(EPageId page);
