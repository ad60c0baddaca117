// What the records in memory consist of, as tables (Trace/dictionary/Field.h).
#pragma once

#include "Operations/calibration/CalRecords.h"
#include "Trace/dictionary/CalBlockLayouts.h"

inline constexpr SField kAptRouteBwRecordFields[] = {
    {.at = TRACE_AT(SAptRouteBwRecord, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SAptRouteBwRecord, route, 2)},
    {.at = TRACE_AT(SAptRouteBwRecord, normalTempIndex, 4)},
    {.at = TRACE_AT(SAptRouteBwRecord, paControlLevel, 5)},
    {.at = TRACE_AT(SAptRouteBwRecord, paModeCount, 6)},
    {.at = TRACE_AT(SAptRouteBwRecord, reserved7, 7)},
    {.at = TRACE_AT(SAptRouteBwRecord, level, 8)},
    {.at = TRACE_AT(SAptRouteBwRecord, paGainTempOffset, 88), .unit = kDb32},
    {.at = TRACE_AT(SAptRouteBwRecord, powerDetectorTempOffset, 136), .unit = kDb32},
    {.at = TRACE_AT(SAptRouteBwRecord, prfIndex, 184)},
    {.at = TRACE_AT(SAptRouteBwRecord, reserved187, 187)},
    {.at = TRACE_AT(SAptRouteBwRecord, couplerLoss, 188), .unit = kDb32},
    {.at = TRACE_AT(SAptRouteBwRecord, reserved194, 194)},
    {.at = TRACE_AT(SAptRouteBwRecord, blockCount, 196)},
    {.at = TRACE_AT(SAptRouteBwRecord, freq, 200), .unit = kKhz},
    {.at = TRACE_AT(SAptRouteBwRecord, paGain, 456), .unit = kDb32},
    {.at = TRACE_AT(SAptRouteBwRecord, powerDetector, 840), .unit = kDb32},
};
TRACE_LAYOUT(SAptRouteBwRecord, kAptRouteBwRecordFields);

inline constexpr SField kMmType1PathlossByRouteFields[] = {
    {.at = TRACE_AT(SMMType1PathlossByRouteV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SMMType1PathlossByRouteV7, route, 2)},
    {.at = TRACE_AT(SMMType1PathlossByRouteV7, blockCount, 4)},
    {.at = TRACE_AT(SMMType1PathlossByRouteV7, freq, 8), .unit = kKhz},
    {.at = TRACE_AT(SMMType1PathlossByRouteV7, loss, 264)},
    {.at = TRACE_AT(SMMType1PathlossByRouteV7, plOffset, 4360), .unit = kDb32},
};
TRACE_LAYOUT(SMMType1PathlossByRouteV7, kMmType1PathlossByRouteFields);

inline constexpr SField kMmType2PathlossByRouteFields[] = {
    {.at = TRACE_AT(SMMType2PathlossByRouteV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SMMType2PathlossByRouteV7, route, 2)},
    {.at = TRACE_AT(SMMType2PathlossByRouteV7, blockCount, 4)},
    {.at = TRACE_AT(SMMType2PathlossByRouteV7, freq, 8), .unit = kKhz},
    {.at = TRACE_AT(SMMType2PathlossByRouteV7, loss, 264)},
    {.at = TRACE_AT(SMMType2PathlossByRouteV7, plOffset, 72968), .unit = kDb32},
};
TRACE_LAYOUT(SMMType2PathlossByRouteV7, kMmType2PathlossByRouteFields);
