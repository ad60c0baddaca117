// Where the blocks of a record differ, and which of its new values no editor of its page can hold: in
// words, a line each.
//
// Pure functions, any thread.
//
//   CalBlockDifferences(wanted, flash)   // "block 1 couplerLoss[0]: 1 dB wanted, 2 dB in flash"
#pragma once

#include <string>
#include <vector>

#include "Operations/calibration/CalBlockImage.h"

class ICalPageLimits;

// What the two sides are called behind their values.
struct SCalSideNames
{
    const char *left = "wanted";
    const char *right = "in flash";
};

// other: null where that side has no such record.
std::vector<std::string> CalBlockDifferences(const SCalBlockRecord &record,
                                             const SCalBlockRecord *other,
                                             const SCalSideNames &names = {});

// True when a field of the joined records differs. Blocks may differ without that: in bytes that no field
// has, or where they repeat a value differently.
bool DiffersInFields(const SCalBlockRecord &one, const SCalBlockRecord &other);

// "TX route 7 BW0 paGain[0][3]: 99 dB is not within -40 dB to 40 dB", of the values of a record that are
// not the same before. before: null where there was no such record.
std::vector<std::string> CalValuesBeyond(const SCalImageRecord &wanted,
                                         const SCalImageRecord *before, ICalPageLimits &limits);
