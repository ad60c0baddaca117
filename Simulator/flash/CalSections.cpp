#include "Simulator/flash/CalSections.h"

#include <algorithm>

namespace {

using SType1Block = SMMType1PathlossBlockV7;
using SType2Block = SMMType2PathlossBlockV7;

template <class Block, class Read>
SCalSection<Block> Section(int count, const Block *blocks, const Read &read)
{
    SCalSection<Block> section;
    section.count = count;
    section.blocks = blocks;
    for (int i = 0; i < std::min(count, SCalKind<Block>::kBlocksOfRound); ++i)
        section.entries.push_back(read(i));
    return section;
}

// Type 1 entries stand alike in both requests.
template <class Request>
SCalSection<SType1Block> Type1Of(const Request &request, const SType1Block *blocks)
{
    return Section(request.type1Count, blocks, [&](int i) -> SCalEntry {
        return {{request.type1[i].route, 0}, request.type1[i].blockCount};
    });
}

// The route of an upload entry stands in it twice.
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
    round.type2 = Section<SType2Block>(request.type2Count, nullptr, [&](int i) -> SCalEntry {
        return {{request.type2[i].route, 0}, request.type2[i].blockCount};
    });
    round.tx = Section<SAptBlock>(request.txCount, nullptr, [&](int i) -> SCalEntry {
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
        Section<SType2Block>(request.type2Count, request.type2Block, [&](int i) -> SCalEntry {
            return {{request.type2Route[i], 0}, request.type2BlockCount[i]};
        });
    round.tx = Section<SAptBlock>(request.txCount, request.txBlock, [&](int i) -> SCalEntry {
        return {{request.tx[i].route, request.tx[i].bandwidth}, request.tx[i].blockCount};
    });
    return round;
}

template <class Block>
std::string CheckCalEntries(const SProfile &profile, const SCalSection<Block> &section)
{
    constexpr int kRoom = SCalKind<Block>::kBlocksOfRound;
    if (section.count > kRoom)
        return std::to_string(section.count) + " entries, at most " + std::to_string(kRoom);
    if (!section.broken.empty())
        return section.broken;
    for (const SCalEntry &entry : section.entries) {
        std::string reason = CheckCalKey<Block>(profile, entry.key, entry.blockCount);
        if (!reason.empty())
            return reason;
    }
    if (const int total = section.BlockTotal(); total > kRoom)
        return std::to_string(total) + " blocks, at most " + std::to_string(kRoom);
    return {};
}

template <class Block>
std::string CheckCalBlocks(const SProfile &profile, const SCalSection<Block> &section)
{
    std::string reason = CheckCalEntries(profile, section);
    const Block *block = section.blocks;
    for (std::size_t i = 0; reason.empty() && i < section.entries.size(); ++i) {
        const SCalEntry &entry = section.entries[i];
        reason = CheckCalRecord(profile, entry.key, block, entry.blockCount);
        block += entry.blockCount;
    }
    // The record is zeroed for each round, so a band behind the last block is one nobody counted.
    const Block *const end = section.blocks + SCalKind<Block>::kBlocksOfRound;
    if (reason.empty() && std::any_of(block, end, [](const Block &b) { return b.band != 0; }))
        reason = std::to_string(section.BlockTotal()) + " blocks counted, more are filled";
    return reason;
}

template std::string CheckCalEntries(const SProfile &, const SCalSection<SType1Block> &);
template std::string CheckCalEntries(const SProfile &, const SCalSection<SType2Block> &);
template std::string CheckCalEntries(const SProfile &, const SCalSection<SAptBlock> &);
template std::string CheckCalBlocks(const SProfile &, const SCalSection<SType1Block> &);
template std::string CheckCalBlocks(const SProfile &, const SCalSection<SType2Block> &);
template std::string CheckCalBlocks(const SProfile &, const SCalSection<SAptBlock> &);
