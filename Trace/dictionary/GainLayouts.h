// The two layouts of the gain block. The record around it has the choice.
#pragma once

#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ValueNames.h"
#include "Vond/VondGainRecords.h"

using SGainOnePath = decltype(UMMRssiGainV7::single);
inline constexpr SField kGainOnePathFields[] = {
    {.at = TRACE_AT(SGainOnePath, mainRfGain, 0), .unit = kDb32},
    {.at = TRACE_AT(SGainOnePath, divRfGain, 2), .unit = kDb32},
    {.at = TRACE_AT(SGainOnePath, mainDigitalGain, 4), .unit = kDb32},
    {.at = TRACE_AT(SGainOnePath, divDigitalGain, 6), .unit = kDb32},
    {.at = TRACE_AT(SGainOnePath, reserved8, 8)},
};
TRACE_LAYOUT(SGainOnePath, kGainOnePathFields);

using SGainBothPaths = decltype(UMMRssiGainV7::simultaneous);
inline constexpr SField kGainBothPathsFields[] = {
    {.at = TRACE_AT(SGainBothPaths, path0MainGainIdx, 0)},
    {.at = TRACE_AT(SGainBothPaths, path0DivGainIdx, 1)},
    {.at = TRACE_AT(SGainBothPaths, path1MainGainIdx, 2)},
    {.at = TRACE_AT(SGainBothPaths, path1DivGainIdx, 3)},
    {.at = TRACE_AT(SGainBothPaths, path0MainRfGain, 4), .unit = kDb32},
    {.at = TRACE_AT(SGainBothPaths, path0DivRfGain, 6), .unit = kDb32},
    {.at = TRACE_AT(SGainBothPaths, path1MainRfGain, 8), .unit = kDb32},
    {.at = TRACE_AT(SGainBothPaths, path1DivRfGain, 10), .unit = kDb32},
    {.at = TRACE_AT(SGainBothPaths, path0MainDigitalGain, 12), .unit = kDb32},
    {.at = TRACE_AT(SGainBothPaths, path0DivDigitalGain, 14), .unit = kDb32},
    {.at = TRACE_AT(SGainBothPaths, path1MainDigitalGain, 16), .unit = kDb32},
    {.at = TRACE_AT(SGainBothPaths, path1DivDigitalGain, 18), .unit = kDb32},
};
TRACE_LAYOUT(SGainBothPaths, kGainBothPathsFields);
