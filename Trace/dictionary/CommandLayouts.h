// What the commands of the tests consist of.
#pragma once

#include "Trace/dictionary/GainLayouts.h"
#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ValueNames.h"
#include "Vond/VondCommandRecords.h"

inline constexpr SField kNrPuschCcFields[] = {
    {.at = TRACE_AT(SNrPuschCcV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SNrPuschCcV7, tddSlotConfig, 2)},
    {.at = TRACE_AT(SNrPuschCcV7, reserved3, 3)},
    {.at = TRACE_AT(SNrPuschCcV7, ulFrequency, 4), .unit = kKhz},
    {.at = TRACE_AT(SNrPuschCcV7, sulFreqShift, 8), .values = kFlagNames},
    {.at = TRACE_AT(SNrPuschCcV7, reserved9, 9)},
    {.at = TRACE_AT(SNrPuschCcV7, cellId, 10)},
    {.at = TRACE_AT(SNrPuschCcV7, ulBandwidth, 12), .unit = kKhz},
    {.at = TRACE_AT(SNrPuschCcV7, vrbStart, 16)},
    {.at = TRACE_AT(SNrPuschCcV7, vrbLength, 18), .unit = kRbs},
    {.at = TRACE_AT(SNrPuschCcV7, txScs, 20), .values = kScsNames},
    {.at = TRACE_AT(SNrPuschCcV7, mcsMode, 24), .values = kMcsNames},
    {.at = TRACE_AT(SNrPuschCcV7, txPowerValue, 28), .unit = kDbm256},
    {.at = TRACE_AT(SNrPuschCcV7, reserved30, 30)},
    {.at = TRACE_AT(SNrPuschCcV7, networkSelection, 32)},
    {.at = TRACE_AT(SNrPuschCcV7, txCloseLoopDisble, 36), .values = kFlagNames},
    {.at = TRACE_AT(SNrPuschCcV7, amprEnbl, 37), .values = kFlagNames},
    {.at = TRACE_AT(SNrPuschCcV7, txRoute, 38)},
    {.at = TRACE_AT(SNrPuschCcV7, enableCsr, 40), .values = kFlagNames},
    {.at = TRACE_AT(SNrPuschCcV7, enableMimo, 41), .values = kFlagNames},
    {.at = TRACE_AT(SNrPuschCcV7, reserved42, 42)},
};
TRACE_LAYOUT(SNrPuschCcV7, kNrPuschCcFields);

inline constexpr SField kNrPuschTxForcedFields[] = {
    {.at = TRACE_AT(SNrPuschTxForcedV7, carrier, 0)},
    {.at = TRACE_AT(SNrPuschTxForcedV7, reserved44, 44)},
};
TRACE_LAYOUT(SNrPuschTxForcedV7, kNrPuschTxForcedFields);

inline constexpr SField kNrPuschTxNormalFields[] = {
    {.at = TRACE_AT(SNrPuschTxNormalV7, ulCCNum, 0)},
    {.at = TRACE_AT(SNrPuschTxNormalV7, reserved1, 1)},
    {.at = TRACE_AT(SNrPuschTxNormalV7, carrier, 4)},
};
TRACE_LAYOUT(SNrPuschTxNormalV7, kNrPuschTxNormalFields);

inline constexpr SField kNrPuschTxCmdFields[] = {
    {.at = TRACE_AT(SNrPuschTxCmdV7, forced, 0), .values = kForcedNames},
    {.at = TRACE_AT(SNrPuschTxCmdV7, reserved1, 1)},
    {.at = TRACE_AT(SNrPuschTxCmdV7, forcedMode, 4), .branch = EBranch::Chosen},
    {.at = TRACE_AT(SNrPuschTxCmdV7, normalMode, 4), .branch = EBranch::Otherwise},
};
TRACE_LAYOUT(SNrPuschTxCmdV7, kNrPuschTxCmdFields, .choice = {.field = "forced", .value = 1});

inline constexpr SField kNrDlFreqCmdFields[] = {
    {.at = TRACE_AT(SNrDlFreqCmdV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SNrDlFreqCmdV7, reserved2, 2)},
    {.at = TRACE_AT(SNrDlFreqCmdV7, ulFrequency, 4), .unit = kKhz},
    {.at = TRACE_AT(SNrDlFreqCmdV7, forced, 8), .values = kForcedNames},
    {.at = TRACE_AT(SNrDlFreqCmdV7, reserved9, 9)},
    {.at = TRACE_AT(SNrDlFreqCmdV7, txRoute, 10)},
};
TRACE_LAYOUT(SNrDlFreqCmdV7, kNrDlFreqCmdFields);

inline constexpr SField kMmSingleToneCmdFields[] = {
    {.at = TRACE_AT(SMMSingleToneCmdV7, radioKind, 0), .values = kRadioKindNames},
    {.at = TRACE_AT(SMMSingleToneCmdV7, band, 4), .form = EForm::Band},
    {.at = TRACE_AT(SMMSingleToneCmdV7, txRoute, 6)},
    {.at = TRACE_AT(SMMSingleToneCmdV7, afcdac, 8)},
    {.at = TRACE_AT(SMMSingleToneCmdV7, txPowerValue, 10), .unit = kDbm256},
    {.at = TRACE_AT(SMMSingleToneCmdV7, ulFrequency, 12), .unit = kKhz},
    {.at = TRACE_AT(SMMSingleToneCmdV7, aggBwKhzRange, 16), .unit = kKhz},
    {.at = TRACE_AT(SMMSingleToneCmdV7, ulFreqOffset, 20), .unit = kKhz},
    {.at = TRACE_AT(SMMSingleToneCmdV7, afcDataType, 24), .values = kFlagNames},
};
TRACE_LAYOUT(SMMSingleToneCmdV7, kMmSingleToneCmdFields);

inline constexpr SField kNrRsrpCommonFields[] = {
    {.at = TRACE_AT(SNrRsrpCommonV7, measCnt, 0)},
    {.at = TRACE_AT(SNrRsrpCommonV7, reserved1, 1)},
    {.at = TRACE_AT(SNrRsrpCommonV7, dlFrequency, 4), .unit = kKhz},
    {.at = TRACE_AT(SNrRsrpCommonV7, rxScs, 8), .values = kScsNames},
    {.at = TRACE_AT(SNrRsrpCommonV7, band, 12), .form = EForm::Band},
    {.at = TRACE_AT(SNrRsrpCommonV7, tddSlotConfig, 14)},
    {.at = TRACE_AT(SNrRsrpCommonV7, reserved15, 15)},
    {.at = TRACE_AT(SNrRsrpCommonV7, dlBandwidth, 16), .unit = kKhz},
    {.at = TRACE_AT(SNrRsrpCommonV7, trxMode, 20), .values = kTrxModeNames},
    {.at = TRACE_AT(SNrRsrpCommonV7, reserved21, 21)},
    {.at = TRACE_AT(SNrRsrpCommonV7, txPowerValue, 22), .unit = kDbm256},
    {.at = TRACE_AT(SNrRsrpCommonV7, vrbStart, 24)},
    {.at = TRACE_AT(SNrRsrpCommonV7, vrbLength, 26), .unit = kRbs},
    {.at = TRACE_AT(SNrRsrpCommonV7, mcsMode, 28), .values = kMcsNames},
};
TRACE_LAYOUT(SNrRsrpCommonV7, kNrRsrpCommonFields);

inline constexpr SField kNrRsrpCcFields[] = {
    {.at = TRACE_AT(SNrRsrpCcV7, common, 0)},
    {.at = TRACE_AT(SNrRsrpCcV7, mimo4x4, 32), .values = kMimoNames},
    {.at = TRACE_AT(SNrRsrpCcV7, reserved33, 33)},
};
TRACE_LAYOUT(SNrRsrpCcV7, kNrRsrpCcFields);

inline constexpr SField kNrRsrpForcedCcFields[] = {
    {.at = TRACE_AT(SNrRsrpForcedCcV7, common, 0)},
    {.at = TRACE_AT(SNrRsrpForcedCcV7, rxRoute, 32)},
    {.at = TRACE_AT(SNrRsrpForcedCcV7, txRoute, 34)},
    {.at = TRACE_AT(SNrRsrpForcedCcV7, lpmHpmConf, 36), .values = kPowerModeNames},
    {.at = TRACE_AT(SNrRsrpForcedCcV7, reserved37, 37)},
};
TRACE_LAYOUT(SNrRsrpForcedCcV7, kNrRsrpForcedCcFields);

inline constexpr SField kNrRsrpForcedFields[] = {
    {.at = TRACE_AT(SNrRsrpForcedV7, carrier, 0)},
    {.at = TRACE_AT(SNrRsrpForcedV7, reserved40, 40)},
};
TRACE_LAYOUT(SNrRsrpForcedV7, kNrRsrpForcedFields);

inline constexpr SField kNrRsrpNormalFields[] = {
    {.at = TRACE_AT(SNrRsrpNormalV7, carrierCount, 0)},
    {.at = TRACE_AT(SNrRsrpNormalV7, reserved1, 1)},
    {.at = TRACE_AT(SNrRsrpNormalV7, carrier, 4)},
};
TRACE_LAYOUT(SNrRsrpNormalV7, kNrRsrpNormalFields);

inline constexpr SField kNrRsrpCmdFields[] = {
    {.at = TRACE_AT(SNrRsrpCmdV7, forced, 0), .values = kForcedNames},
    {.at = TRACE_AT(SNrRsrpCmdV7, reserved1, 1)},
    {.at = TRACE_AT(SNrRsrpCmdV7, forcedMode, 4), .branch = EBranch::Chosen},
    {.at = TRACE_AT(SNrRsrpCmdV7, normalMode, 4), .branch = EBranch::Otherwise},
};
TRACE_LAYOUT(SNrRsrpCmdV7, kNrRsrpCmdFields, .choice = {.field = "forced", .value = 1});

using SContRxGainOnePath = decltype(UMMContRxGainV7::single);
inline constexpr SField kContRxGainOnePathFields[] = {
    {.at = TRACE_AT(SContRxGainOnePath, mainRfGain, 0), .unit = kDb32},
    {.at = TRACE_AT(SContRxGainOnePath, divRfGain, 2), .unit = kDb32},
    {.at = TRACE_AT(SContRxGainOnePath, reserved4, 4)},
};
TRACE_LAYOUT(SContRxGainOnePath, kContRxGainOnePathFields);

using SContRxGainBothPaths = decltype(UMMContRxGainV7::simultaneous);
inline constexpr SField kContRxGainBothPathsFields[] = {
    {.at = TRACE_AT(SContRxGainBothPaths, path0MainGainIdx, 0)},
    {.at = TRACE_AT(SContRxGainBothPaths, path0DivGainIdx, 1)},
    {.at = TRACE_AT(SContRxGainBothPaths, path1MainGainIdx, 2)},
    {.at = TRACE_AT(SContRxGainBothPaths, path1DivGainIdx, 3)},
    {.at = TRACE_AT(SContRxGainBothPaths, path0MainRfGain, 4), .unit = kDb32},
    {.at = TRACE_AT(SContRxGainBothPaths, path0DivRfGain, 6), .unit = kDb32},
    {.at = TRACE_AT(SContRxGainBothPaths, path1MainRfGain, 8), .unit = kDb32},
    {.at = TRACE_AT(SContRxGainBothPaths, path1DivRfGain, 10), .unit = kDb32},
};
TRACE_LAYOUT(SContRxGainBothPaths, kContRxGainBothPathsFields);

inline constexpr SField kMmContRxCmdFields[] = {
    {.at = TRACE_AT(SMMContRxCmdV7, routeKind, 0), .values = kRouteKindNames},
    {.at = TRACE_AT(SMMContRxCmdV7, lowPower, 4), .values = kLowPowerNames},
    {.at = TRACE_AT(SMMContRxCmdV7, dlBandwidth, 8), .unit = kKhz},
    {.at = TRACE_AT(SMMContRxCmdV7, band, 12), .form = EForm::Band},
    {.at = TRACE_AT(SMMContRxCmdV7, rxRoute, 14)},
    {.at = TRACE_AT(SMMContRxCmdV7, singlePath, 16), .values = kSinglePathNames},
    {.at = TRACE_AT(SMMContRxCmdV7, reserved17, 17)},
    {.at = TRACE_AT(SMMContRxCmdV7, path, 20), .values = kPathNames},
    {.at = TRACE_AT(SMMContRxCmdV7, gain.single, 24), .branch = EBranch::Chosen},
    {.at = TRACE_AT(SMMContRxCmdV7, gain.simultaneous, 24), .branch = EBranch::Otherwise},
    {.at = TRACE_AT(SMMContRxCmdV7, dlFrequency, 36), .unit = kKhz},
};
TRACE_LAYOUT(SMMContRxCmdV7, kMmContRxCmdFields, .choice = {.field = "singlePath", .value = 1});

inline constexpr SField kMmGainSearchCmdFields[] = {
    {.at = TRACE_AT(SMMGainSearchCmdV7, radioKind, 0), .values = kRadioKindNames},
    {.at = TRACE_AT(SMMGainSearchCmdV7, lowPower, 4), .values = kLowPowerNames},
    {.at = TRACE_AT(SMMGainSearchCmdV7, simultaneous, 8), .values = kSimultaneousNames},
    {.at = TRACE_AT(SMMGainSearchCmdV7, elnaModeMain, 12)},
    {.at = TRACE_AT(SMMGainSearchCmdV7, elnaModeDiv, 13)},
    {.at = TRACE_AT(SMMGainSearchCmdV7, search, 14)},
    {.at = TRACE_AT(SMMGainSearchCmdV7, reserved18, 18)},
};
TRACE_LAYOUT(SMMGainSearchCmdV7, kMmGainSearchCmdFields);

inline constexpr SField kMmRssiCmdFields[] = {
    {.at = TRACE_AT(SMMRssiCmdV7, routeKind, 0), .values = kRouteKindNames},
    {.at = TRACE_AT(SMMRssiCmdV7, lowPower, 4), .values = kLowPowerNames},
    {.at = TRACE_AT(SMMRssiCmdV7, dlFrequency, 8), .unit = kKhz},
    {.at = TRACE_AT(SMMRssiCmdV7, band, 28), .form = EForm::Band},
    {.at = TRACE_AT(SMMRssiCmdV7, rxRoute, 30)},
    {.at = TRACE_AT(SMMRssiCmdV7, singlePath, 32), .values = kSinglePathNames},
    {.at = TRACE_AT(SMMRssiCmdV7, numFreq, 33)},
    {.at = TRACE_AT(SMMRssiCmdV7, reserved34, 34)},
    {.at = TRACE_AT(SMMRssiCmdV7, path, 36), .values = kPathNames},
    {.at = TRACE_AT(SMMRssiCmdV7, gain.single, 40), .branch = EBranch::Chosen},
    {.at = TRACE_AT(SMMRssiCmdV7, gain.simultaneous, 40), .branch = EBranch::Otherwise},
};
TRACE_LAYOUT(SMMRssiCmdV7, kMmRssiCmdFields, .choice = {.field = "singlePath", .value = 1});
