#include "Operations/calibration/AptKind.h"

#include <algorithm>
#include <cstring>

#include "Operations/calibration/CalBlockMove.h"

namespace {

// Every field that a record and its blocks share, moved one way or the other.
template <typename Mover, typename Record, typename Block>
void Move(const Mover &mover, Record &record, Block &block)
{
    mover.Whole(record.band, block.band);
    mover.Whole(record.normalTempIndex, block.normalTempIndex);
    mover.Whole(record.paControlLevel, block.paControlLevel);
    mover.Whole(record.paModeCount, block.paModeCount);
    mover.Whole(record.level, block.level);
    mover.Whole(record.couplerLoss, block.couplerLoss);
    mover.Subbands(record.freq, block.freq);
    for (int pa = 0; pa < kVondAptPaModes; ++pa) {
        auto &part = block.pa[pa];
        mover.Whole(record.prfIndex[pa], part.prfIndex);
        mover.Subbands(record.paGain[pa], part.paGain);
        mover.Whole(record.paGainTempOffset[pa], part.paGainTempOffset);
        mover.Subbands(record.powerDetector[pa], part.powerDetector);
        mover.Whole(record.powerDetectorTempOffset[pa], part.powerDetectorTempOffset);
    }
}

}  // namespace

// Some targets give one count for all regions of a route. All regions have the same number of
// blocks then.
SFlashBlocks SAptKind::BlocksInFlash(const SMMCalBlkInfoCnfV7 &info, const SCalPlace &place)
{
    const SMMCalTxRowV7 *end = info.tx + std::min<int>(info.txCount, kVondMaxTxRoutes);
    const SMMCalTxRowV7 *row = std::find_if(
        info.tx, end, [&place](const SMMCalTxRowV7 &r) { return r.route == place.route; });
    if (row == end)
        return {SFlashBlocks::eNotListed, 0};
    const bool isByRegion = std::any_of(std::begin(row->blockCount), std::end(row->blockCount),
                                        [](uint16_t count) { return count != 0; });
    if (isByRegion)
        return {SFlashBlocks::eCounted, row->blockCount[place.region]};
    if (row->blockTotal % place.regions != 0)
        return {SFlashBlocks::eTotalAlone, row->blockTotal};
    return {SFlashBlocks::eCounted, row->blockTotal / place.regions};
}

void SAptKind::Ask(SMMGetCalDataReqV7 &request, int index, const SCalEntry &entry)
{
    SMMCalTxRequestEntryV7 &own = request.tx[index];
    own.blockCount = static_cast<uint16_t>(entry.blocks);
    own.route = entry.route;
    own.bandwidth = entry.bwKhz;
    own.routeAgain = entry.route;
    request.txCount = static_cast<uint16_t>(index + 1);
}

void SAptKind::List(SMMSetCalDataReqV7 &request, int index, const SCalEntry &entry)
{
    request.tx[index] = {entry.bwKhz, static_cast<uint16_t>(entry.blocks), entry.route};
    request.txCount = static_cast<uint16_t>(index + 1);
}

SCalEntry SAptKind::Entry(const SMMGetCalDataCnfV7 &answer, int index, int order)
{
    const SMMCalTxEntryV7 &entry = answer.tx[index];
    if (order == 0)
        return {entry.route, entry.bandwidth, entry.blockCount};
    SMMCalTxEntryCountFirstV7 other;
    static_assert(sizeof other == sizeof entry);
    std::memcpy(&other, &entry, sizeof other);
    return {other.route, other.bandwidth, other.blockCount};
}

void SAptKind::Cut(const Record &record, int k, Block &block)
{
    Move(SBlockCut{k}, record, block);
}

void SAptKind::Join(const Block &block, int k, Record &record)
{
    Move(SBlockJoin{k}, record, block);
}
