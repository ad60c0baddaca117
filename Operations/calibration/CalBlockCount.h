// The number of blocks that a frequency list of a file stands for.
//
// (n + 1) / 16 rounded up, n being the entries before the first 0 among the first 63: 1 to 4. At
// exactly 16, 32 or 48 frequencies this is a block more than they need, all zero; files have always
// been read so. A file with the frequencies that a record has already says nothing new about its
// blocks: what the DUT told stays. Any thread.
//
//   record.blockCount =
//       ImportedBlockCount(record, store.IsValid(place) ? &store.At(place) : nullptr);
#pragma once

#include <algorithm>
#include <iterator>

#include "Vond/VondCalBlocks.h"

uint32_t FileBlockCount(const uint32_t (&freq)[kVondCalMaxSubbands]);

// imported: with the frequencies of the file. known: what memory has; null when that is not valid.
template <typename Record>
uint32_t ImportedBlockCount(const Record &imported, const Record *known)
{
    const bool isSame =
        known && std::equal(std::begin(known->freq), std::end(known->freq), imported.freq);
    return isSame ? known->blockCount : FileBlockCount(imported.freq);
}
