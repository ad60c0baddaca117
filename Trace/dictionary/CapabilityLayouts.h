// What the capability reads ask and answer, but for the hardware of the routes (RouteDetailLayouts.h).
#pragma once

#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ValueNames.h"
#include "Vond/VondCapabilityRecords.h"

inline constexpr SField kVondCapabilityReqFields[] = {
    {.at = TRACE_AT(SVondCapabilityReq, capabilitySize, 0), .unit = kBytes},
    {.at = TRACE_AT(SVondCapabilityReq, calibrationSize, 4), .unit = kBytes},
};
TRACE_LAYOUT(SVondCapabilityReq, kVondCapabilityReqFields);

inline constexpr SField kERfCapabilityFields[] = {
    {.at = TRACE_AT(SERfCapability, reserved0, 0)},
    {.at = TRACE_AT(SERfCapability, rfChipId, 8)},
    {.at = TRACE_AT(SERfCapability, reserved12, 12)},
};
TRACE_LAYOUT(SERfCapability, kERfCapabilityFields);

inline constexpr SField kMmRfCapabilityFields[] = {
    {.at = TRACE_AT(SMMRfCapability, reserved0, 0)},
    {.at = TRACE_AT(SMMRfCapability, worldMode, 44), .form = EForm::ItemWord, .bits = kRatBits},
    {.at = TRACE_AT(SMMRfCapability, reserved48, 48)},
};
TRACE_LAYOUT(SMMRfCapability, kMmRfCapabilityFields);

inline constexpr SField kNRfCapabilityFields[] = {
    {.at = TRACE_AT(SNRfCapability, reserved0, 0)},
    {.at = TRACE_AT(SNRfCapability, rfChipId, 8)},
    {.at = TRACE_AT(SNRfCapability, generation, 12), .form = EForm::ItemWord, .itemMask = 0xff},
    {.at = TRACE_AT(SNRfCapability, reserved16, 16)},
};
TRACE_LAYOUT(SNRfCapability, kNRfCapabilityFields);

inline constexpr SField kMmRfBandEntryFields[] = {
    {.at = TRACE_AT(SMMRfBandEntryV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SMMRfBandEntryV7, downlinkOnly, 2), .values = kFlagNames},
    {.at = TRACE_AT(SMMRfBandEntryV7, uplinkOnly, 3), .values = kFlagNames},
};
TRACE_LAYOUT(SMMRfBandEntryV7, kMmRfBandEntryFields);

inline constexpr SField kRouteFreqRangeHalfFields[] = {
    {.at = TRACE_AT(SRouteFreqRangeHalf, count, 0)},
    {.at = TRACE_AT(SRouteFreqRangeHalf, band, 2), .form = EForm::Band},
    {.at = TRACE_AT(SRouteFreqRangeHalf, route, 30)},
    {.at = TRACE_AT(SRouteFreqRangeHalf, reserved58, 58)},
    {.at = TRACE_AT(SRouteFreqRangeHalf, low, 60), .unit = kKhz},
    {.at = TRACE_AT(SRouteFreqRangeHalf, high, 116), .unit = kKhz},
};
TRACE_LAYOUT(SRouteFreqRangeHalf, kRouteFreqRangeHalfFields);

inline constexpr SField kRouteFreqRangeFields[] = {
    {.at = TRACE_AT(SRouteFreqRangeV7, tx, 0)},
    {.at = TRACE_AT(SRouteFreqRangeV7, rx, 172)},
};
TRACE_LAYOUT(SRouteFreqRangeV7, kRouteFreqRangeFields);

inline constexpr SField kMmRfTxRouteFields[] = {
    {.at = TRACE_AT(SMMRfTxRouteV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SMMRfTxRouteV7, route, 2)},
    {.at = TRACE_AT(SMMRfTxRouteV7, bwRegionCount, 4)},
    {.at = TRACE_AT(SMMRfTxRouteV7, reserved, 6)},
    {.at = TRACE_AT(SMMRfTxRouteV7, bwRegionKhz, 8), .unit = kKhz},
};
TRACE_LAYOUT(SMMRfTxRouteV7, kMmRfTxRouteFields);

inline constexpr SField kMmRfRxType1RouteFields[] = {
    {.at = TRACE_AT(SMMRfRxType1RouteV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SMMRfRxType1RouteV7, route, 2)},
};
TRACE_LAYOUT(SMMRfRxType1RouteV7, kMmRfRxType1RouteFields);

inline constexpr SField kMmRfRxType2RouteFields[] = {
    {.at = TRACE_AT(SMMRfRxType2RouteV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SMMRfRxType2RouteV7, route, 2)},
    {.at = TRACE_AT(SMMRfRxType2RouteV7, reserved4, 4)},
    {.at = TRACE_AT(SMMRfRxType2RouteV7, gainModeFlag, 8), .values = kFlagNames},
    {.at = TRACE_AT(SMMRfRxType2RouteV7, reserved9, 9)},
};
TRACE_LAYOUT(SMMRfRxType2RouteV7, kMmRfRxType2RouteFields);

inline constexpr SField kMmRfRxGainInfoFields[] = {
    {.at = TRACE_AT(SMMRfRxGainInfoV7, t1, 0), .values = kFlagNames},
    {.at = TRACE_AT(SMMRfRxGainInfoV7, t2, 21), .values = kFlagNames},
    {.at = TRACE_AT(SMMRfRxGainInfoV7, reserved84, 84)},
};
TRACE_LAYOUT(SMMRfRxGainInfoV7, kMmRfRxGainInfoFields);

inline constexpr SField kMmRfRouteTableFields[] = {
    {.at = TRACE_AT(SMMRfRouteTableV7, txRouteCount, 0)},
    {.at = TRACE_AT(SMMRfRouteTableV7, rxType1RouteCount, 2)},
    {.at = TRACE_AT(SMMRfRouteTableV7, rxType2RouteCount, 4)},
    {.at = TRACE_AT(SMMRfRouteTableV7, reserved6, 6)},
    {.at = TRACE_AT(SMMRfRouteTableV7, txRoute, 8)},
    {.at = TRACE_AT(SMMRfRouteTableV7, rxType1Route, 2408)},
    {.at = TRACE_AT(SMMRfRouteTableV7, rxType2Route, 2808)},
};
TRACE_LAYOUT(SMMRfRouteTableV7, kMmRfRouteTableFields);

inline constexpr SField kMmRfRouteConfigFields[] = {
    {.at = TRACE_AT(SMMRfRouteConfigV7, bandCount, 0)},
    {.at = TRACE_AT(SMMRfRouteConfigV7, band, 4)},
    {.at = TRACE_AT(SMMRfRouteConfigV7, freqRange, 104)},
    {.at = TRACE_AT(SMMRfRouteConfigV7, routes, 448)},
    {.at = TRACE_AT(SMMRfRouteConfigV7, rxGainInfo, 4256)},
};
TRACE_LAYOUT(SMMRfRouteConfigV7, kMmRfRouteConfigFields);

inline constexpr SField kNRfBandRxInfoFields[] = {
    {.at = TRACE_AT(SNRfBandRxInfo, count, 0)},
    {.at = TRACE_AT(SNRfBandRxInfo, band, 2), .form = EForm::Band},
    {.at = TRACE_AT(SNRfBandRxInfo, ulMimo, 52), .values = kFlagNames},
    {.at = TRACE_AT(SNRfBandRxInfo, rx4x4, 77), .values = kFlagNames},
};
TRACE_LAYOUT(SNRfBandRxInfo, kNRfBandRxInfoFields);

inline constexpr SField kNRfRxRouteValueEntryFields[] = {
    {.at = TRACE_AT(SNRfRxRouteValueEntry, route, 0)},
    {.at = TRACE_AT(SNRfRxRouteValueEntry, valueCount, 2)},
    {.at = TRACE_AT(SNRfRxRouteValueEntry, value, 4)},
};
TRACE_LAYOUT(SNRfRxRouteValueEntry, kNRfRxRouteValueEntryFields);

inline constexpr SField kNRfRxRouteValuesFields[] = {
    {.at = TRACE_AT(SNRfRxRouteValues, count, 0)},
    {.at = TRACE_AT(SNRfRxRouteValues, entry, 2)},
};
TRACE_LAYOUT(SNRfRxRouteValues, kNRfRxRouteValuesFields);
