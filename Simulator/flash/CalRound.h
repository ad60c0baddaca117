// A round of either calibration transfer, kind by kind: which records it names, and for a download
// the blocks that it carries. Reading a round never goes past the room of its tables, whatever the
// counts say.
#pragma once

#include "Simulator/flash/CalPlaces.h"

struct SCalEntry
{
    SCalKey key;
    int blockCount = 0;
};

template <class Block>
struct SCalArea
{
    int count = 0;                   // entries as told, maybe more than there is room for
    std::vector<SCalEntry> entries;  // those within the room
    const Block *blocks = nullptr;   // of a download, in the record that was read
    std::string broken;              // why an entry contradicts itself

    int BlockTotal() const
    {
        int total = 0;
        for (const SCalEntry &entry : entries)
            total += entry.blockCount;
        return total;
    }
};

struct SCalRound
{
    SCalArea<SMMType1PathlossBlockV7> type1;
    SCalArea<SMMType2PathlossBlockV7> type2;
    SCalArea<SAptBlock> tx;
};

SCalRound CalRoundOf(const SMMGetCalDataReqV7 &request);
SCalRound CalRoundOf(const SMMSetCalDataReqV7 &request);

// Why the entries of an area are refused, in at most 63 bytes; empty when they are good.
template <class Block>
std::string CheckCalEntries(const SProfile &profile, const SCalArea<Block> &area);
// The same for a download, blocks and all.
template <class Block>
std::string CheckCalBlocks(const SProfile &profile, const SCalArea<Block> &area);
