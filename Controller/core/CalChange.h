// What a step did to the records of a calibration item, for the way back and forth: of a Read or Import,
// of a revert, of a copy. Only records that the step changed are in it. Constant once it is made; any
// thread.
//
//   const CalChange change = core.RevertCalRecord(ECalItem::Apt, document);
//   core.ApplyCalChange(ECalItem::Apt, document, *change, ECalWay::Back);
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Operations/calibration/CalState.h"

enum class ECalWay
{
    Back,
    Forth,
};

struct SCalSide
{
    std::vector<SCalState> memory = {};
    std::vector<SCalState> base = {};  // what was last read or imported
};

struct SCalChange
{
    uint64_t connection = 0;  // of the DUT that it belongs to
    SCalSide before = {};
    SCalSide after = {};
};

// Null: nothing was changed.
using CalChange = std::shared_ptr<const SCalChange>;
