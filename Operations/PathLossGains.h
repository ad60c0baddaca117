// Gain modes of the path loss items: the key of each supported mode in a file and the loss that it
// stands for.
//
// Supported is what the target's table t1 of a power mode sets; its set entries, counted in row
// order, are the gain slots of that power mode. Gain-by-gain losses have a cell for every gain, so
// the combinations that the table t2 sets beyond t1 have keys as well, but a file may lack those.
// Pure functions, any thread.
//
//   std::vector<SGainKey> keys;
//   if (!AppendType1Keys(*hpm, EPowerMode::Hpm, keys))
//       ... more modes than a record has slots for
#pragma once

#include <string>
#include <vector>

#include "Vond/VondCalBlocks.h"
#include "Vond/VondCapabilityRecords.h"

enum class EPowerMode
{
    Hpm = 0,
    Lpm = 1,
};

struct SGainKey
{
    std::string key;
    EPowerMode mode;
    int pair[2];    // index of the loss, by EVondRxPath
    bool required;  // a file that lacks it is not complete
};

// Appends the keys of a power mode. False when the table sets more than the 8 modes that a record
// has slots for; the keys are of no use then.
bool AppendType1Keys(const SMMRfRxGainInfoV7 &gains, EPowerMode mode, std::vector<SGainKey> &keys);
bool AppendType2Keys(const SMMRfRxGainInfoV7 &gains, EPowerMode mode, std::vector<SGainKey> &keys);
