// One calibration record as another one: all of it but band and route.
//
// The other record keeps its name and its validity; one that is not valid counts as edited. Pure
// function, any thread.
//
//   item.Restore(CopiedRecord(*item.StateOf(from), *item.StateOf(to), 78));
#pragma once

#include "Operations/calibration/CalState.h"

// Both of one kind. band: of a record that has none yet.
SCalState CopiedRecord(const SCalState &from, SCalState to, uint16_t band);
