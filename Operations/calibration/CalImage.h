// An image of a calibration item: its valid records as bytes, each once, in the order of the route
// table. It is a copy; the item goes on without it.
//
//   const SCalImage image = item.Image();
//   image.records[0].place.route     // 7
//   image.records[0].bytes.size()    // 1224, an SAptRouteBwRecord
#pragma once

#include <cstdint>
#include <vector>

#include "Operations/calibration/CalRoutes.h"
#include "Trace/dictionary/Field.h"

struct SCalImageRecord
{
    ECalRoute kind = ECalRoute::Tx;
    SCalPlace place;
    std::vector<uint8_t> bytes;  // of the kind's record in CalRecords.h
};

struct SCalImage
{
    std::vector<SCalImageRecord> records;
};

// Of a kind's record.
const SLayout &CalRecordLayout(ECalRoute kind);
