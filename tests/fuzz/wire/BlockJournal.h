// The calibration blocks that a faked target has answered, to hold against those that come back:
// what went up and was edited by nobody goes down as it was, on its own route.
//
// A block counts by what it has for itself, the numbers by subband; what all blocks of a route
// repeat is the last block's. One thread.
//
//   BlockJournal::Clear();
//   BlockJournal::Keep(answer);
//   BlockJournal::Check(request);   // ends the process at a block that no answer had
#pragma once

#include "Vond/VondCalRecords.h"

namespace BlockJournal {

void Clear();
void Keep(const SMMGetCalDataCnfV7 &answer);
void Check(const SMMSetCalDataReqV7 &request);
int Count();  // blocks that are kept

}  // namespace BlockJournal
