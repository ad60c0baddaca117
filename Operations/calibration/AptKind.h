// TX routes in the calibration transfers: a record for each bandwidth region, cut into APT blocks.
//
// A kind of CCalAreaOf, see there. Pure functions, any thread.
//
//   CCalAreaOf<SAptKind> area(store);
#pragma once

#include "Operations/calibration/CalAreaOf.h"
#include "Operations/calibration/CalRecords.h"

struct SAptKind
{
    using Record = SAptRouteBwRecord;
    using Block = SAptBlock;
    static constexpr ECalRoute kRoute = ECalRoute::Tx;
    static constexpr int kBlocksOfRound = kVondCalTxBlocks;
    static constexpr const char *kName = "TX";

    static SFlashBlocks BlocksInFlash(const SMMCalBlkInfoCnfV7 &info, const SCalPlace &place);
    static void Ask(SMMGetCalDataReqV7 &request, int index, const SCalEntry &entry);
    static void List(SMMSetCalDataReqV7 &request, int index, const SCalEntry &entry);
    static Block *Blocks(SMMSetCalDataReqV7 &request) { return request.txBlock; }
    static int EntryCount(const SMMGetCalDataCnfV7 &answer) { return answer.txCount; }
    static constexpr std::array<const char *, 2> kEntryOrders = {"bandwidth, count, route",
                                                                 "count, route, bandwidth"};
    static SCalEntry Entry(const SMMGetCalDataCnfV7 &answer, int index, int order);
    static const Block *Blocks(const SMMGetCalDataCnfV7 &answer) { return answer.txBlock; }
    static void Cut(const Record &record, int k, Block &block);
    static void Join(const Block &block, int k, Record &record);
};
