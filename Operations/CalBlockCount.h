// The number of blocks that a frequency list of a file stands for.
//
// (n + 1) / 16 rounded up, n being the entries before the first 0 among the first 63: 1 to 4. At
// exactly 16, 32 or 48 frequencies this is a block more than they need, all zero; files have always
// been read so. Any thread.
//
//   record.blockCount = FileBlockCount(record.freq);
#pragma once

#include "Vond/VondCalBlocks.h"

uint32_t FileBlockCount(const uint32_t (&freq)[VOND_CAL_MAX_SUBBANDS]);
