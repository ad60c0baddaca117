// The kinds of calibration record, one row a kind: where the limits of a page find a record's
// frequencies and losses, and the walk over all that the page shows of it.
//
// Constant data, any thread.
//
//   const SCalRecordRow &row = FindCalRecord(ECalRoute::Tx);
//   const std::shared_ptr<void> record = row.make();
//   row.walkAll(move, record.get());
#pragma once

#include <cstddef>
#include <memory>

#include "Controller/calibration/CalMove.h"
#include "Operations/calibration/CalRoutes.h"

struct SCalRecordRow
{
    ECalRoute kind;
    size_t freq;               // where the frequencies begin
    size_t loss = 0;           // and the losses, which have the limits of the first subband
    size_t lossOfSubband = 0;  // 0: no losses
    std::shared_ptr<void> (*make)();
    // Selection by selection; of type 2 the first subband.
    void (*walkAll)(ICalMove &move, void *record);
};

const SCalRecordRow &FindCalRecord(ECalRoute kind);
