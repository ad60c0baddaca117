// The hardware behind the routes. A type 1 and a type 2 route have one record, whose tail differs.
#pragma once

#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ValueNames.h"
#include "Vond/VondCapabilityRecords.h"

inline constexpr SField kMmRfRouteDetailTxPairFields[] = {
    {.at = TRACE_AT(SMMRfRouteDetailTxPair, route, 0)},
    {.at = TRACE_AT(SMMRfRouteDetailTxPair, reserved2, 2)},
    {.at = TRACE_AT(SMMRfRouteDetailTxPair, bwRegionKhz, 4), .unit = kKhz},
};
TRACE_LAYOUT(SMMRfRouteDetailTxPair, kMmRfRouteDetailTxPairFields);

inline constexpr SField kMmRfRouteDetailReqFields[] = {
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, radioKind, 0), .values = kRadioKindNames},
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, rxType1Count, 4)},
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, rxType2Count, 5)},
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, txPairCount, 6)},
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, reserved7, 7)},
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, rxType1Route, 8)},
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, rxType2Route, 2370)},
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, txPair, 4732)},
    {.at = TRACE_AT(SMMRfRouteDetailReqV7, reserved14180, 14180)},
};
TRACE_LAYOUT(SMMRfRouteDetailReqV7, kMmRfRouteDetailReqFields);

// An RX route of type 1.
inline constexpr SField kRxType1HwFields[] = {
    {.at = TRACE_AT(SRxRouteHw, antMask, 0), .form = EForm::Mask},
    {.at = TRACE_AT(SRxRouteHw, feRouteNum, 4)},
    {.at = TRACE_AT(SRxRouteHw, port, 6)},
    {.at = TRACE_AT(SRxRouteHw, type1.srx, 38)},
    {.at = TRACE_AT(SRxRouteHw, type1.mimoPairCount, 39)},
    {.at = TRACE_AT(SRxRouteHw, type1.mimoPair, 40)},
};
inline constexpr SLayout kRxType1Hw = {
    .name = "SRxRouteHw", .size = sizeof(SRxRouteHw), .fields = kRxType1HwFields};
static_assert(IsSound(kRxType1Hw));

// An RX route of type 2.
inline constexpr SField kRxType2HwFields[] = {
    {.at = TRACE_AT(SRxRouteHw, antMask, 0), .form = EForm::Mask},
    {.at = TRACE_AT(SRxRouteHw, feRouteNum, 4)},
    {.at = TRACE_AT(SRxRouteHw, port, 6)},
    {.at = TRACE_AT(SRxRouteHw, type2.srx, 38)},
    {.at = TRACE_AT(SRxRouteHw, type2.mimoPairCount, 40)},
    {.at = TRACE_AT(SRxRouteHw, type2.reserved, 41)},
    {.at = TRACE_AT(SRxRouteHw, type2.mimoPair, 42)},
};
inline constexpr SLayout kRxType2Hw = {
    .name = "SRxRouteHw", .size = sizeof(SRxRouteHw), .fields = kRxType2HwFields};
static_assert(IsSound(kRxType2Hw));

inline constexpr SField kTxBwRegionHwFields[] = {
    {.at = TRACE_AT(STxBwRegionHw, antMask, 0), .form = EForm::Mask},
    {.at = TRACE_AT(STxBwRegionHw, feRouteNum, 4)},
    {.at = TRACE_AT(STxBwRegionHw, port, 6)},
    {.at = TRACE_AT(STxBwRegionHw, stx, 22)},
    {.at = TRACE_AT(STxBwRegionHw, mimoPairCount, 23)},
    {.at = TRACE_AT(STxBwRegionHw, mimoPair, 24)},
};
TRACE_LAYOUT(STxBwRegionHw, kTxBwRegionHwFields);

inline constexpr SField kMmRfRouteDetailCnfFields[] = {
    {.at = TRACE_AT(SMMRfRouteDetailCnfV7, reserved0, 0)},
    {.at = As(kRxType1Hw, TRACE_AT(SMMRfRouteDetailCnfV7, rxType1, 18376))},
    {.at = As(kRxType2Hw, TRACE_AT(SMMRfRouteDetailCnfV7, rxType2, 79788))},
    {.at = TRACE_AT(SMMRfRouteDetailCnfV7, txPair, 141200)},
};
TRACE_LAYOUT(SMMRfRouteDetailCnfV7, kMmRfRouteDetailCnfFields);
