// What a round of calibration data consists of.
#pragma once

#include "Trace/dictionary/CalBlockLayouts.h"
#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ValueNames.h"
#include "Vond/VondCalRecords.h"

// Nothing in the answer tells which order an entry has.
inline constexpr std::string_view kEntryOrder =
    "some targets send the block count and the route before the bandwidth";

inline constexpr SField kMmCalRxRowFields[] = {
    {.at = TRACE_AT(SMMCalRxRowV7, route, 0)},
    {.at = TRACE_AT(SMMCalRxRowV7, blockTotal, 2)},
};
TRACE_LAYOUT(SMMCalRxRowV7, kMmCalRxRowFields);

inline constexpr SField kMmCalTxRowFields[] = {
    {.at = TRACE_AT(SMMCalTxRowV7, route, 0)},
    {.at = TRACE_AT(SMMCalTxRowV7, blockTotal, 2)},
    {.at = TRACE_AT(SMMCalTxRowV7, blockCount, 4)},
    {.at = TRACE_AT(SMMCalTxRowV7, reserved12, 12)},
};
TRACE_LAYOUT(SMMCalTxRowV7, kMmCalTxRowFields);

inline constexpr SField kMmCalBlkInfoCnfFields[] = {
    {.at = TRACE_AT(SMMCalBlkInfoCnfV7, type1Count, 0)},
    {.at = TRACE_AT(SMMCalBlkInfoCnfV7, type2Count, 2)},
    {.at = TRACE_AT(SMMCalBlkInfoCnfV7, txCount, 4)},
    {.at = TRACE_AT(SMMCalBlkInfoCnfV7, type1, 6)},
    {.at = TRACE_AT(SMMCalBlkInfoCnfV7, type2, 406)},
    {.at = TRACE_AT(SMMCalBlkInfoCnfV7, tx, 806)},
};
TRACE_LAYOUT(SMMCalBlkInfoCnfV7, kMmCalBlkInfoCnfFields);

inline constexpr SField kMmCalRxEntryFields[] = {
    {.at = TRACE_AT(SMMCalRxEntryV7, blockCount, 0)},
    {.at = TRACE_AT(SMMCalRxEntryV7, route, 2)},
};
TRACE_LAYOUT(SMMCalRxEntryV7, kMmCalRxEntryFields);

inline constexpr SField kMmCalTxRequestEntryFields[] = {
    {.at = TRACE_AT(SMMCalTxRequestEntryV7, blockCount, 0)},
    {.at = TRACE_AT(SMMCalTxRequestEntryV7, route, 2)},
    {.at = TRACE_AT(SMMCalTxRequestEntryV7, bandwidth, 4), .unit = kKhz},
    {.at = TRACE_AT(SMMCalTxRequestEntryV7, reserved8, 8)},
    {.at = TRACE_AT(SMMCalTxRequestEntryV7, routeAgain, 12)},
    {.at = TRACE_AT(SMMCalTxRequestEntryV7, reserved14, 14)},
};
TRACE_LAYOUT(SMMCalTxRequestEntryV7, kMmCalTxRequestEntryFields);

inline constexpr SField kMmCalTxEntryFields[] = {
    {.at = TRACE_AT(SMMCalTxEntryV7, bandwidth, 0), .unit = kKhz},
    {.at = TRACE_AT(SMMCalTxEntryV7, blockCount, 4)},
    {.at = TRACE_AT(SMMCalTxEntryV7, route, 6)},
};
TRACE_LAYOUT(SMMCalTxEntryV7, kMmCalTxEntryFields);

inline constexpr SField kMmCalTxEntryCountFirstFields[] = {
    {.at = TRACE_AT(SMMCalTxEntryCountFirstV7, blockCount, 0)},
    {.at = TRACE_AT(SMMCalTxEntryCountFirstV7, route, 2)},
    {.at = TRACE_AT(SMMCalTxEntryCountFirstV7, bandwidth, 4), .unit = kKhz},
};
TRACE_LAYOUT(SMMCalTxEntryCountFirstV7, kMmCalTxEntryCountFirstFields);

inline constexpr SField kMmGetCalDataReqFields[] = {
    {.at = TRACE_AT(SMMGetCalDataReqV7, radioKind, 0), .values = kRadioKindNames},
    {.at = TRACE_AT(SMMGetCalDataReqV7, type1Count, 4)},
    {.at = TRACE_AT(SMMGetCalDataReqV7, type2Count, 6)},
    {.at = TRACE_AT(SMMGetCalDataReqV7, txCount, 8)},
    {.at = TRACE_AT(SMMGetCalDataReqV7, reserved10, 10)},
    {.at = TRACE_AT(SMMGetCalDataReqV7, type1, 12)},
    {.at = TRACE_AT(SMMGetCalDataReqV7, type2, 232)},
    {.at = TRACE_AT(SMMGetCalDataReqV7, tx, 244)},
};
TRACE_LAYOUT(SMMGetCalDataReqV7, kMmGetCalDataReqFields);

inline constexpr SField kMmCalVerdictFields[] = {
    {.at = TRACE_AT(SMMCalVerdictV7, status, 0), .values = kVerdictNames},
    {.at = TRACE_AT(SMMCalVerdictV7, type1Text, 1)},
    {.at = TRACE_AT(SMMCalVerdictV7, type2Text, 65)},
    {.at = TRACE_AT(SMMCalVerdictV7, txText, 129)},
};
TRACE_LAYOUT(SMMCalVerdictV7, kMmCalVerdictFields);

inline constexpr SField kMmGetCalDataCnfFields[] = {
    {.at = TRACE_AT(SMMGetCalDataCnfV7, verdict, 0)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, reserved193, 193)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, type1Count, 194)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, type2Count, 196)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, txCount, 198)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, type1, 200)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, type2BlockCount, 420)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, reserved426, 426)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, type2Route, 432)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, reserved438, 438)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, tx, 456), .remark = kEntryOrder},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, type1Block, 1536)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, type2Block, 62476)},
    {.at = TRACE_AT(SMMGetCalDataCnfV7, txBlock, 117256)},
};
TRACE_LAYOUT(SMMGetCalDataCnfV7, kMmGetCalDataCnfFields);

inline constexpr SField kMmSetCalDataReqFields[] = {
    {.at = TRACE_AT(SMMSetCalDataReqV7, radioKind, 0), .values = kRadioKindNames},
    {.at = TRACE_AT(SMMSetCalDataReqV7, version, 4)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, reserved5, 5)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, type1Count, 6)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, type2Count, 8)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, txCount, 10)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, type1, 12)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, type2BlockCount, 232)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, reserved238, 238)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, type2Route, 244)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, reserved250, 250)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, tx, 276)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, type1Block, 1356)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, type2Block, 62296)},
    {.at = TRACE_AT(SMMSetCalDataReqV7, txBlock, 117076)},
};
TRACE_LAYOUT(SMMSetCalDataReqV7, kMmSetCalDataReqFields);
