// Calibration transfer records: one round between the tool and the target's flash.
//
// All records are little-endian and naturally aligned; the tool zeroes a record for each round. A
// round lists its routes in tables of entries, one for each kind of route, and carries the blocks
// of a kind one after another in the order of its entries: an entry with a block count of 2 owns
// the next two. One round holds at most 55 type 1, 3 type 2 and 135 TX blocks, and a route's blocks
// are not spread over two rounds.
//
// The first byte of both answers is the target's verdict: 1 is success; on 0 the text of the part
// that failed tells why.
//
//   auto request = std::make_unique<SMMSetCalDataReqV7>();   // 178096 bytes, all 0
//   request->radioKind = 1;
//   request->version = 1;
//   request->txCount = 1;
//   request->tx[0] = {100000, 1, 7};   // one block for route 7, region up to 100 MHz
//   request->txBlock[0] = block;
#pragma once

#include "Vond/VondCalBlocks.h"
#include "Vond/VondCapabilityRecords.h"

constexpr int kVondCalType1Blocks = 55;  // of one round
constexpr int kVondCalType2Blocks = 3;
constexpr int kVondCalTxBlocks = 135;
constexpr int kVondCalText = 64;        // bytes of a verdict text
constexpr uint8_t kVondCalSuccess = 1;  // status of both answers
constexpr uint8_t kVondCalVersion = 1;  // of a download request

// An RX route in the answer of the block information.
struct SMMCalRxRowV7
{
    uint16_t route;
    uint16_t blockTotal;
};
VOND_SIZE(SMMCalRxRowV7, 4);

// A TX route in the answer of the block information.
struct SMMCalTxRowV7
{
    uint16_t route;
    uint16_t blockTotal;                     // sum of the regions, which may all be 0
    uint16_t blockCount[kVondMaxBwRegions];  // by bandwidth region, as in the route table
    uint8_t reserved12[4];
};
VOND_SIZE(SMMCalTxRowV7, 16);

// Answer of VOND_MMRf_GetCalBlkInfoV7_r: what the flash holds.
struct SMMCalBlkInfoCnfV7
{
    uint16_t type1Count;  // rows in use
    uint16_t type2Count;
    uint16_t txCount;
    SMMCalRxRowV7 type1[kVondMaxRxRoutes];
    SMMCalRxRowV7 type2[kVondMaxRxRoutes];
    SMMCalTxRowV7 tx[kVondMaxTxRoutes];
};
VOND_SIZE(SMMCalBlkInfoCnfV7, 2406);

// An RX route of a round.
struct SMMCalRxEntryV7
{
    uint16_t blockCount;
    uint16_t route;
};
VOND_SIZE(SMMCalRxEntryV7, 4);

// A bandwidth region of a TX route, asked for.
struct SMMCalTxRequestEntryV7
{
    uint16_t blockCount;
    uint16_t route;
    uint32_t bandwidth;  // upper bound of the region, kHz
    uint8_t reserved8[4];
    uint16_t routeAgain;  // the route a second time
    uint8_t reserved14[2];
};
VOND_SIZE(SMMCalTxRequestEntryV7, 16);

// A bandwidth region of a TX route whose blocks the record carries.
struct SMMCalTxEntryV7
{
    uint32_t bandwidth;  // upper bound of the region, kHz
    uint16_t blockCount;
    uint16_t route;
};
VOND_SIZE(SMMCalTxEntryV7, 8);

// Some targets use this layout in an upload answer, for all entries or for some.
struct SMMCalTxEntryCountFirstV7
{
    uint16_t blockCount;
    uint16_t route;
    uint32_t bandwidth;  // upper bound of the region, kHz
};
VOND_SIZE(SMMCalTxEntryCountFirstV7, 8);

// Request of VOND_MMRf_GetCalDataV7_r: one round of an upload.
struct SMMGetCalDataReqV7
{
    uint32_t radioKind;   // 0 LTE side, 1 NR
    uint16_t type1Count;  // entries in use
    uint16_t type2Count;
    uint16_t txCount;
    uint8_t reserved10[2];
    SMMCalRxEntryV7 type1[kVondCalType1Blocks];
    SMMCalRxEntryV7 type2[kVondCalType2Blocks];
    SMMCalTxRequestEntryV7 tx[kVondCalTxBlocks];
};
VOND_SIZE(SMMGetCalDataReqV7, 2404);

// Verdict of the target, the head of both answers. The texts end with a 0 or fill their room.
struct SMMCalVerdictV7
{
    uint8_t status;  // 1: success
    char type1Text[kVondCalText];
    char type2Text[kVondCalText];
    char txText[kVondCalText];
};
VOND_SIZE(SMMCalVerdictV7, 193);

// Answer of VOND_MMRf_GetCalDataV7_r. The three type 2 entries stand as two columns.
struct SMMGetCalDataCnfV7
{
    SMMCalVerdictV7 verdict;
    uint8_t reserved193;
    uint16_t type1Count;  // entries in use
    uint16_t type2Count;
    uint16_t txCount;
    SMMCalRxEntryV7 type1[kVondCalType1Blocks];
    uint16_t type2BlockCount[kVondCalType2Blocks];
    uint8_t reserved426[6];
    uint16_t type2Route[kVondCalType2Blocks];
    uint8_t reserved438[18];
    SMMCalTxEntryV7 tx[kVondCalTxBlocks];
    SMMType1PathlossBlockV7 type1Block[kVondCalType1Blocks];
    SMMType2PathlossBlockV7 type2Block[kVondCalType2Blocks];
    SAptBlock txBlock[kVondCalTxBlocks];
};
VOND_SIZE(SMMGetCalDataCnfV7, 178276);

// Request of VOND_MMRf_SetCalDataV7_r: one round of a download.
struct SMMSetCalDataReqV7
{
    uint32_t radioKind;  // 0 LTE side, 1 NR
    uint8_t version;     // kVondCalVersion
    uint8_t reserved5;
    uint16_t type1Count;  // entries in use
    uint16_t type2Count;
    uint16_t txCount;
    SMMCalRxEntryV7 type1[kVondCalType1Blocks];
    uint16_t type2BlockCount[kVondCalType2Blocks];
    uint8_t reserved238[6];
    uint16_t type2Route[kVondCalType2Blocks];
    uint8_t reserved250[26];
    SMMCalTxEntryV7 tx[kVondCalTxBlocks];
    SMMType1PathlossBlockV7 type1Block[kVondCalType1Blocks];
    SMMType2PathlossBlockV7 type2Block[kVondCalType2Blocks];
    SAptBlock txBlock[kVondCalTxBlocks];
};
VOND_SIZE(SMMSetCalDataReqV7, 178096);

// Answer of VOND_MMRf_SetCalDataV7_r.
using SMMSetCalDataCnfV7 = SMMCalVerdictV7;
