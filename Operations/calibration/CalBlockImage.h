// Calibration records as the flash has them: block for block, with every byte, also those that no field
// of a record holds, and where the blocks of a record repeat something differently.
//
// It is a copy of plain bytes. Pure functions, any thread.
//
//   item.KeepBlocks();
//   if (item.UploadFromFlash() == kCalSuccess)
//       const SCalBlockImage flash = item.Blocks();
//   ... JoinedImage(flash)   // the same as item.Image()
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Operations/calibration/CalImage.h"

struct SCalBlockRecord
{
    ECalRoute kind = ECalRoute::Tx;
    SCalPlace place = {};
    std::vector<uint8_t> blocks = {};  // one after another; empty: a record without a block
};

struct SCalBlockImage
{
    std::vector<SCalBlockRecord> records = {};

    // Null where the image has no such record. It is the same record on each band of its route.
    const SCalBlockRecord *Find(ECalRoute kind, const SCalPlace &place) const;
};

std::size_t CalBlockSize(ECalRoute kind);
const SLayout &CalBlockLayout(ECalRoute kind);
// Blocks that one transfer takes, so also the most that a record may have.
int CalBlocksOfRound(ECalRoute kind);

// The records as a read of flash gives them. What has no block, or more than a record holds, is left
// out.
SCalImage JoinedImage(const SCalBlockImage &image);
// The block count of a record that a file has filled: as many as its frequencies need, at least one, and
// no fewer than flash has. So it is the same whether flash holds the record as it was, or torn on the way
// to what the file has. Other bytes stay.
void CountFileBlocks(SCalImageRecord &record, const SCalBlockRecord *before);
// The record as blocks. Bytes that it has no field for are those of the blocks that stood there before,
// 0 where there was none. Empty when the bytes are not as many as the record has.
std::vector<uint8_t> BlocksOver(const SCalImageRecord &record, const SCalBlockRecord *before);
// "TX route 7 BW0", "T2 route 101": as pages and boxes name a record.
std::string CalRecordName(ECalRoute kind, const SCalPlace &place);
