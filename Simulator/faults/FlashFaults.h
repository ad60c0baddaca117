// What goes wrong with the flash while downloads are written.
//
//   {"kind": "powerCut", "block": 5, "torn": true}
//   {"kind": "stuck", "record": "apt", "route": 7, "bandwidth": 100000, "block": 1,
//    "field": "pa[0].paGain[3]"}
//
// Blocks of a power cut are counted over all downloads since the fault was added, from 1.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "Simulator/basis/JsonReader.h"

enum class EFlashRecord : uint32_t
{
    Type1 = 1,
    Type2 = 2,
    Apt = 3
};

// The power goes in the middle of a block.
struct SPowerCut
{
    uint32_t blocksBefore = 0;  // are written as a whole
    bool isTorn = false;        // half of the block is written, too; otherwise nothing of it
};

// A field of one record that keeps its value, whatever is written.
struct SStuckField
{
    EFlashRecord record = EFlashRecord::Type1;
    uint16_t route = 0;
    uint32_t bandwidth = 0;  // upper bound of the region, kHz; 0 for the path loss records
    uint32_t block = 0;      // from 0
    uint32_t offset = 0;     // in the block
    uint32_t size = 0;
};

// What the faults do to one download.
struct SFlashFaults
{
    std::optional<SPowerCut> cut = {};
    std::vector<SStuckField> stuck = {};
};

// The keys beside "kind". Throw std::runtime_error for a wrong value.
SPowerCut ReadPowerCut(CJsonReader &reader);
SStuckField ReadStuckField(CJsonReader &reader);
