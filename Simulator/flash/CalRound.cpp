#include "Simulator/flash/CalRound.h"

#include <algorithm>

namespace {

using SType1Block = SMMType1PathlossBlockV7;
using SType2Block = SMMType2PathlossBlockV7;

template <class Block, class Read>
SCalArea<Block> Area(int count, const Block *blocks, const Read &read)
{
    SCalArea<Block> area;
    area.count = count;
    area.blocks = blocks;
    for (int i = 0; i < std::min(count, SCalKind<Block>::kBlocksOfRound); ++i)
        area.entries.push_back(read(i));
    return area;
}

// Type 1 entries have the same layout in both requests.
template <class Request>
SCalArea<SType1Block> Type1Of(const Request &request, const SType1Block *blocks)
{
    return Area(request.type1Count, blocks, [&](int i) -> SCalEntry {
        return {{request.type1[i].route, 0}, request.type1[i].blockCount};
    });
}

// An upload entry names its route twice.
std::string CheckTwice(const SMMGetCalDataReqV7 &request, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const SMMCalTxRequestEntryV7 &entry = request.tx[i];
        if (entry.route != entry.routeAgain)
            return "route " + std::to_string(entry.route) + ": named " +
                   std::to_string(entry.routeAgain) + " the second time";
    }
    return {};
}

}  // namespace

SCalRound CalRoundOf(const SMMGetCalDataReqV7 &request)
{
    SCalRound round;
    round.type1 = Type1Of(request, nullptr);
    round.type2 = Area<SType2Block>(request.type2Count, nullptr, [&](int i) -> SCalEntry {
        return {{request.type2[i].route, 0}, request.type2[i].blockCount};
    });
    round.tx = Area<SAptBlock>(request.txCount, nullptr, [&](int i) -> SCalEntry {
        return {{request.tx[i].route, request.tx[i].bandwidth}, request.tx[i].blockCount};
    });
    round.tx.broken = CheckTwice(request, round.tx.entries.size());
    return round;
}

SCalRound CalRoundOf(const SMMSetCalDataReqV7 &request)
{
    SCalRound round;
    round.type1 = Type1Of(request, request.type1Block);
    round.type2 =
        Area<SType2Block>(request.type2Count, request.type2Block, [&](int i) -> SCalEntry {
            return {{request.type2Route[i], 0}, request.type2BlockCount[i]};
        });
    round.tx = Area<SAptBlock>(request.txCount, request.txBlock, [&](int i) -> SCalEntry {
        return {{request.tx[i].route, request.tx[i].bandwidth}, request.tx[i].blockCount};
    });
    return round;
}

template <class Block>
std::string CheckCalEntries(const SProfile &profile, const SCalArea<Block> &area)
{
    constexpr int kRoom = SCalKind<Block>::kBlocksOfRound;
    if (area.count > kRoom)
        return std::to_string(area.count) + " entries, at most " + std::to_string(kRoom);
    if (!area.broken.empty())
        return area.broken;
    for (const SCalEntry &entry : area.entries) {
        std::string reason = CheckCalKey<Block>(profile, entry.key, entry.blockCount);
        if (!reason.empty())
            return reason;
    }
    if (const int total = area.BlockTotal(); total > kRoom)
        return std::to_string(total) + " blocks, at most " + std::to_string(kRoom);
    return {};
}

template <class Block>
std::string CheckCalBlocks(const SProfile &profile, const SCalArea<Block> &area)
{
    std::string reason = CheckCalEntries(profile, area);
    const Block *block = area.blocks;
    for (std::size_t i = 0; reason.empty() && i < area.entries.size(); ++i) {
        const SCalEntry &entry = area.entries[i];
        reason = CheckCalRecord(profile, entry.key, block, entry.blockCount);
        block += entry.blockCount;
    }
    // The tool zeroes the record for each round. A band behind the last block means that the
    // entries count too few blocks.
    const Block *const end = area.blocks + SCalKind<Block>::kBlocksOfRound;
    if (reason.empty() && std::any_of(block, end, [](const Block &b) { return b.band != 0; }))
        reason = std::to_string(area.BlockTotal()) + " blocks counted, more are filled";
    return reason;
}

template std::string CheckCalEntries(const SProfile &, const SCalArea<SType1Block> &);
template std::string CheckCalEntries(const SProfile &, const SCalArea<SType2Block> &);
template std::string CheckCalEntries(const SProfile &, const SCalArea<SAptBlock> &);
template std::string CheckCalBlocks(const SProfile &, const SCalArea<SType1Block> &);
template std::string CheckCalBlocks(const SProfile &, const SCalArea<SType2Block> &);
template std::string CheckCalBlocks(const SProfile &, const SCalArea<SAptBlock> &);
