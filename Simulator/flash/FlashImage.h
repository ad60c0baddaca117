// The calibration records of a DUT in memory: one table for each kind, by route and bandwidth.
//
//   image.Table<SAptBlock>()[{7, 100000}] = blocks;   // route 7, region up to 100 MHz
#pragma once

#include <map>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

#include "Simulator/flash/CalPlaces.h"

template <class Block>
using FlashTable = std::map<SCalKey, std::vector<Block>>;

// SCalKind::kId, and which record of the kind.
using STornRecord = std::pair<uint32_t, SCalKey>;

struct SFlashImage
{
    std::tuple<FlashTable<SMMType1PathlossBlockV7>, FlashTable<SMMType2PathlossBlockV7>,
               FlashTable<SAptBlock>>
        tables;
    // Records whose last download did not come to its end. What they hold may be anything.
    std::set<STornRecord> torn;

    template <class Block>
    FlashTable<Block> &Table()
    {
        return std::get<FlashTable<Block>>(tables);
    }
    template <class Block>
    const FlashTable<Block> &Table() const
    {
        return std::get<FlashTable<Block>>(tables);
    }
};
