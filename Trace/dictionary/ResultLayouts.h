// What the answers of the tests consist of.
#pragma once

#include "Trace/dictionary/GainLayouts.h"
#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ValueNames.h"
#include "Vond/VondResultRecords.h"

inline constexpr SField kNrDlFreqCnfFields[] = {
    {.at = TRACE_AT(SNrDlFreqCnfV7, status, 0), .values = kStatusNames},
    {.at = TRACE_AT(SNrDlFreqCnfV7, dlFrequency, 4), .unit = kKhz},
};
TRACE_LAYOUT(SNrDlFreqCnfV7, kNrDlFreqCnfFields);

inline constexpr SField kMixRxReportFields[] = {
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, reportCount, 0)},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, reserved1, 1)},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, RSSI0, 4), .unit = kDbm128, .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, RSSI1, 24), .unit = kDbm128, .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, RSSI2, 44), .unit = kDbm128, .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, RSSI3, 64), .unit = kDbm128, .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, RSRP0, 84), .unit = kDbm128, .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, RSRP1, 104),
     .unit = kDbm128,
     .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, RSRP2, 124),
     .unit = kDbm128,
     .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, RSRP3, 144),
     .unit = kDbm128,
     .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, GoodBLK, 164), .isReading = true},
    {.at = TRACE_AT(NRfTestResult_GetMixRxReportV7, BadBLK, 168), .isReading = true},
};
TRACE_LAYOUT(NRfTestResult_GetMixRxReportV7, kMixRxReportFields);

inline constexpr SField kMmGainSearchCnfFields[] = {
    {.at = TRACE_AT(SMMGainSearchCnfV7, adviseDlPower, 0), .unit = kDbm32},
    {.at = TRACE_AT(SMMGainSearchCnfV7, reserved2, 2)},
    {.at = TRACE_AT(SMMGainSearchCnfV7, simultaneous, 4), .values = kSimultaneousNames},
    {.at = TRACE_AT(SMMGainSearchCnfV7, gain.simultaneous, 8), .branch = EBranch::Chosen},
    {.at = TRACE_AT(SMMGainSearchCnfV7, gain.single, 8), .branch = EBranch::Otherwise},
};
TRACE_LAYOUT(SMMGainSearchCnfV7, kMmGainSearchCnfFields,
             .choice = {.field = "simultaneous", .value = 1});

using SRssiRowsOnePath = decltype(UMMRssiRowsV7::single);
using SRssiRowOnePath = std::remove_extent_t<decltype(SRssiRowsOnePath::row)>;
inline constexpr SField kRssiRowOnePathFields[] = {
    {.at = TRACE_AT(SRssiRowOnePath, rssiMain, 0), .unit = kDbm32, .isReading = true},
    {.at = TRACE_AT(SRssiRowOnePath, rssiDiv, 2), .unit = kDbm32, .isReading = true},
};
TRACE_LAYOUT(SRssiRowOnePath, kRssiRowOnePathFields);
inline constexpr SField kRssiRowsOnePathFields[] = {
    {.at = TRACE_AT(SRssiRowsOnePath, row, 0)},
    {.at = TRACE_AT(SRssiRowsOnePath, mainG, 20)},
    {.at = TRACE_AT(SRssiRowsOnePath, divG, 21)},
    {.at = TRACE_AT(SRssiRowsOnePath, maing, 22)},
    {.at = TRACE_AT(SRssiRowsOnePath, divg, 23)},
    {.at = TRACE_AT(SRssiRowsOnePath, reserved24, 24)},
};
TRACE_LAYOUT(SRssiRowsOnePath, kRssiRowsOnePathFields);

using SRssiRowsBothPaths = decltype(UMMRssiRowsV7::simultaneous);
using SRssiRowBothPaths = std::remove_extent_t<decltype(SRssiRowsBothPaths::row)>;
inline constexpr SField kRssiRowBothPathsFields[] = {
    {.at = TRACE_AT(SRssiRowBothPaths, path0Main, 0), .unit = kDbm32, .isReading = true},
    {.at = TRACE_AT(SRssiRowBothPaths, path0Div, 2), .unit = kDbm32, .isReading = true},
    {.at = TRACE_AT(SRssiRowBothPaths, path1Main, 4), .unit = kDbm32, .isReading = true},
    {.at = TRACE_AT(SRssiRowBothPaths, path1Div, 6), .unit = kDbm32, .isReading = true},
};
TRACE_LAYOUT(SRssiRowBothPaths, kRssiRowBothPathsFields);
inline constexpr SField kRssiRowsBothPathsFields[] = {
    {.at = TRACE_AT(SRssiRowsBothPaths, row, 0)},
    {.at = TRACE_AT(SRssiRowsBothPaths, mainG, 40)},
    {.at = TRACE_AT(SRssiRowsBothPaths, divG, 41)},
    {.at = TRACE_AT(SRssiRowsBothPaths, path0Maing, 42)},
    {.at = TRACE_AT(SRssiRowsBothPaths, path0Divg, 43)},
    {.at = TRACE_AT(SRssiRowsBothPaths, path1Maing, 44)},
    {.at = TRACE_AT(SRssiRowsBothPaths, path1Divg, 45)},
    {.at = TRACE_AT(SRssiRowsBothPaths, reserved46, 46)},
};
TRACE_LAYOUT(SRssiRowsBothPaths, kRssiRowsBothPathsFields);

inline constexpr SField kMmRssiCnfFields[] = {
    {.at = TRACE_AT(SMMRssiCnfV7, reserved0, 0)},
    {.at = TRACE_AT(SMMRssiCnfV7, dlFrequency, 8), .unit = kKhz},
    {.at = TRACE_AT(SMMRssiCnfV7, rows.single, 28), .branch = EBranch::Chosen},
    {.at = TRACE_AT(SMMRssiCnfV7, rows.simultaneous, 28), .branch = EBranch::Otherwise},
};
TRACE_LAYOUT(SMMRssiCnfV7, kMmRssiCnfFields,
             .choice = {.field = "singlePath", .value = 1, .isOfRequest = true});
