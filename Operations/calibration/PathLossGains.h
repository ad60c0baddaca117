// Gain modes of the path loss items: the key of each supported mode in a file, and its loss in the
// record.
//
// The target's table t1 of a power mode tells the supported modes. Its set entries, counted in row
// order, are the gain slots of that power mode. A file must have their keys.
//
// Gain-by-gain losses have a cell for every gain G and two gain modes: the page's rows are those of
// path 1, its columns those of path 0, whichever path the page shows, and a key names the row
// before the column. A cell has a key when t1 sets its row, or t2 its two gain modes in either
// order, since the page shows them so on both paths. The page shows all other cells, too: their
// keys are in a file only when they hold a loss, so that nothing that the user sees is lost on the
// way through a file. Of these keys a file may lack any.
//
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

enum class EGainKey
{
    Required,  // written always; a file that lacks it is not complete
    Optional,  // written always
    IfUsed,    // written when it holds a loss other than 0
};

struct SGainKey
{
    std::string key;
    EPowerMode mode;
    int pair[2];  // index of the loss, by EVondRxPath
    EGainKey use;
};

// Appends the keys of a power mode. False when the table sets more than the 8 modes that a record
// has slots for; the keys are of no use then.
bool AppendType1Keys(const SMMRfRxGainInfoV7 &gains, EPowerMode mode, std::vector<SGainKey> &keys);
bool AppendType2Keys(const SMMRfRxGainInfoV7 &gains, EPowerMode mode, std::vector<SGainKey> &keys);
