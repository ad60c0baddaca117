#include "Operations/calibration/PathLossKinds.h"

#include <algorithm>

#include "Operations/calibration/CalBlockMove.h"

namespace {

// Every field that a record and its blocks share, moved one way or the other.
template <typename Mover, typename Record, typename Block>
void Move(const Mover &mover, Record &record, Block &block)
{
    mover.Whole(record.band, block.band);
    mover.Subbands(record.freq, block.freq);
    mover.Subbands(record.loss, block.loss);
    mover.Whole(record.plOffset, block.plOffset);
}

SFlashBlocks BlocksOfRoute(const SMMCalRxRowV7 (&rows)[kVondMaxRxRoutes], int count, uint16_t route)
{
    const SMMCalRxRowV7 *end = rows + std::min(count, kVondMaxRxRoutes);
    const SMMCalRxRowV7 *row =
        std::find_if(rows, end, [route](const SMMCalRxRowV7 &r) { return r.route == route; });
    if (row == end)
        return {SFlashBlocks::eNotListed, 0};
    return {SFlashBlocks::eCounted, row->blockTotal};
}

SMMCalRxEntryV7 RxEntry(const SCalEntry &entry)
{
    return {static_cast<uint16_t>(entry.blocks), entry.route};
}

}  // namespace

SFlashBlocks SType1Kind::BlocksInFlash(const SMMCalBlkInfoCnfV7 &info, const SCalPlace &place)
{
    return BlocksOfRoute(info.type1, info.type1Count, place.route);
}

void SType1Kind::Ask(SMMGetCalDataReqV7 &request, int index, const SCalEntry &entry)
{
    request.type1[index] = RxEntry(entry);
    request.type1Count = static_cast<uint16_t>(index + 1);
}

void SType1Kind::List(SMMSetCalDataReqV7 &request, int index, const SCalEntry &entry)
{
    request.type1[index] = RxEntry(entry);
    request.type1Count = static_cast<uint16_t>(index + 1);
}

SCalEntry SType1Kind::Entry(const SMMGetCalDataCnfV7 &answer, int index, int)
{
    return {answer.type1[index].route, 0, answer.type1[index].blockCount};
}

void SType1Kind::Cut(const Record &record, int k, Block &block)
{
    Move(SBlockCut{k}, record, block);
}

void SType1Kind::Join(const Block &block, int k, Record &record)
{
    Move(SBlockJoin{k}, record, block);
}

SFlashBlocks SType2Kind::BlocksInFlash(const SMMCalBlkInfoCnfV7 &info, const SCalPlace &place)
{
    return BlocksOfRoute(info.type2, info.type2Count, place.route);
}

void SType2Kind::Ask(SMMGetCalDataReqV7 &request, int index, const SCalEntry &entry)
{
    request.type2[index] = RxEntry(entry);
    request.type2Count = static_cast<uint16_t>(index + 1);
}

void SType2Kind::List(SMMSetCalDataReqV7 &request, int index, const SCalEntry &entry)
{
    request.type2BlockCount[index] = static_cast<uint16_t>(entry.blocks);
    request.type2Route[index] = entry.route;
    request.type2Count = static_cast<uint16_t>(index + 1);
}

SCalEntry SType2Kind::Entry(const SMMGetCalDataCnfV7 &answer, int index, int)
{
    return {answer.type2Route[index], 0, answer.type2BlockCount[index]};
}

void SType2Kind::Cut(const Record &record, int k, Block &block)
{
    Move(SBlockCut{k}, record, block);
}

void SType2Kind::Join(const Block &block, int k, Record &record)
{
    Move(SBlockJoin{k}, record, block);
}
