// RX routes in the calibration transfers: type 1 and type 2, a record for each route.
//
// Kinds of CCalAreaOf, see there. Pure functions, any thread.
//
//   CCalAreaOf<SType1Kind> area(store);
#pragma once

#include "Operations/calibration/CalAreaOf.h"
#include "Operations/calibration/CalRecords.h"

struct SType1Kind
{
    using Record = SMMType1PathlossByRouteV7;
    using Block = SMMType1PathlossBlockV7;
    static constexpr ECalRoute kRoute = ECalRoute::Type1;
    static constexpr int kBlocksOfRound = kVondCalType1Blocks;
    static constexpr const char *kName = "T1";

    static SFlashBlocks BlocksInFlash(const SMMCalBlkInfoCnfV7 &info, const SCalPlace &place);
    static void Ask(SMMGetCalDataReqV7 &request, int index, const SCalEntry &entry);
    static void List(SMMSetCalDataReqV7 &request, int index, const SCalEntry &entry);
    static Block *Blocks(SMMSetCalDataReqV7 &request) { return request.type1Block; }
    static int EntryCount(const SMMGetCalDataCnfV7 &answer) { return answer.type1Count; }
    static constexpr std::array<const char *, 1> kEntryOrders = {"count, route"};
    static SCalEntry Entry(const SMMGetCalDataCnfV7 &answer, int index, int order);
    static const Block *Blocks(const SMMGetCalDataCnfV7 &answer) { return answer.type1Block; }
    static void Cut(const Record &record, int k, Block &block);
    static void Join(const Block &block, int k, Record &record);
};

struct SType2Kind
{
    using Record = SMMType2PathlossByRouteV7;
    using Block = SMMType2PathlossBlockV7;
    static constexpr ECalRoute kRoute = ECalRoute::Type2;
    static constexpr int kBlocksOfRound = kVondCalType2Blocks;
    static constexpr const char *kName = "T2";

    static SFlashBlocks BlocksInFlash(const SMMCalBlkInfoCnfV7 &info, const SCalPlace &place);
    static void Ask(SMMGetCalDataReqV7 &request, int index, const SCalEntry &entry);
    static void List(SMMSetCalDataReqV7 &request, int index, const SCalEntry &entry);
    static Block *Blocks(SMMSetCalDataReqV7 &request) { return request.type2Block; }
    static int EntryCount(const SMMGetCalDataCnfV7 &answer) { return answer.type2Count; }
    static constexpr std::array<const char *, 1> kEntryOrders = {"count, route"};
    static SCalEntry Entry(const SMMGetCalDataCnfV7 &answer, int index, int order);
    static const Block *Blocks(const SMMGetCalDataCnfV7 &answer) { return answer.type2Block; }
    static void Cut(const Record &record, int k, Block &block);
    static void Join(const Block &block, int k, Record &record);
};
