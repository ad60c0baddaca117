// The kinds of calibration data, each known by its block: type 1 and type 2 path loss, APT.
//
// What differs between the kinds stands here. What works on a record of any kind is a template over
// the block.
//
//   constexpr int most = SCalKind<SAptBlock>::kBlocksOfRecord;   // 4
#pragma once

#include "Simulator/faults/FlashFaults.h"
#include "Simulator/profile/Profile.h"
#include "Vond/VondCalRecords.h"

template <class Block>
struct SCalKind;

template <>
struct SCalKind<SMMType1PathlossBlockV7>
{
    static constexpr uint32_t kId = static_cast<uint32_t>(EFlashRecord::Type1);
    static constexpr int kBlocksOfRound = kVondCalType1Blocks;
    static constexpr int kBlocksOfRecord = kVondCalMaxBlocks;
    static constexpr auto kText = &SMMCalVerdictV7::type1Text;
    static constexpr auto kRule = &SProfileCalibration::rxType1;
};

template <>
struct SCalKind<SMMType2PathlossBlockV7>
{
    static constexpr uint32_t kId = static_cast<uint32_t>(EFlashRecord::Type2);
    static constexpr int kBlocksOfRound = kVondCalType2Blocks;
    static constexpr int kBlocksOfRecord = kVondCalType2Blocks;  // more fit in no round
    static constexpr auto kText = &SMMCalVerdictV7::type2Text;
    static constexpr auto kRule = &SProfileCalibration::rxType2;
};

template <>
struct SCalKind<SAptBlock>
{
    static constexpr uint32_t kId = static_cast<uint32_t>(EFlashRecord::Apt);
    static constexpr int kBlocksOfRound = kVondCalTxBlocks;
    static constexpr int kBlocksOfRecord = kVondCalMaxBlocks;
    static constexpr auto kText = &SMMCalVerdictV7::txText;
    static constexpr auto kRule = &SProfileCalibration::tx;
};
