// What the blocks of calibration data consist of.
#pragma once

#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ValueNames.h"
#include "Vond/VondCalBlocks.h"

inline constexpr SField kAptLevelFields[] = {
    {.at = TRACE_AT(SAptLevel, paMode, 0), .values = kPaModeNames},
    {.at = TRACE_AT(SAptLevel, dc2dcLevel, 1), .unit = kTenthVolts},
    {.at = TRACE_AT(SAptLevel, usage256Qam, 2), .values = kFlagNames},
    {.at = TRACE_AT(SAptLevel, reserved3, 3)},
    {.at = TRACE_AT(SAptLevel, prf, 4), .unit = kDb32},
    {.at = TRACE_AT(SAptLevel, paGain, 6), .unit = kDb32},
};
TRACE_LAYOUT(SAptLevel, kAptLevelFields);

inline constexpr SField kAptPaPartFields[] = {
    {.at = TRACE_AT(SAptPaPart, prfIndex, 0)},
    {.at = TRACE_AT(SAptPaPart, reserved1, 1)},
    {.at = TRACE_AT(SAptPaPart, paGain, 2), .unit = kDb32},
    {.at = TRACE_AT(SAptPaPart, paGainTempOffset, 34), .unit = kDb32},
    {.at = TRACE_AT(SAptPaPart, powerDetector, 50), .unit = kDb32},
    {.at = TRACE_AT(SAptPaPart, powerDetectorTempOffset, 82), .unit = kDb32},
};
TRACE_LAYOUT(SAptPaPart, kAptPaPartFields);

inline constexpr SField kAptBlockFields[] = {
    {.at = TRACE_AT(SAptBlock, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SAptBlock, normalTempIndex, 2)},
    {.at = TRACE_AT(SAptBlock, paControlLevel, 3)},
    {.at = TRACE_AT(SAptBlock, paModeCount, 4)},
    {.at = TRACE_AT(SAptBlock, reserved5, 5)},
    {.at = TRACE_AT(SAptBlock, level, 6)},
    {.at = TRACE_AT(SAptBlock, couplerLoss, 86), .unit = kDb32},
    {.at = TRACE_AT(SAptBlock, freq, 92), .unit = kKhz},
    {.at = TRACE_AT(SAptBlock, pa, 156)},
    {.at = TRACE_AT(SAptBlock, reserved450, 450)},
};
TRACE_LAYOUT(SAptBlock, kAptBlockFields);

inline constexpr SField kMmLossPairFields[] = {
    {.at = TRACE_AT(SMMLossPair, lpm, 0), .unit = kDb32},
    {.at = TRACE_AT(SMMLossPair, hpm, 2), .unit = kDb32},
};
TRACE_LAYOUT(SMMLossPair, kMmLossPairFields);

inline constexpr SField kMmType1PathlossBlockFields[] = {
    {.at = TRACE_AT(SMMType1PathlossBlockV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SMMType1PathlossBlockV7, reserved2, 2)},
    {.at = TRACE_AT(SMMType1PathlossBlockV7, freq, 4), .unit = kKhz},
    {.at = TRACE_AT(SMMType1PathlossBlockV7, loss, 68)},
    {.at = TRACE_AT(SMMType1PathlossBlockV7, plOffset, 1092), .unit = kDb32},
};
TRACE_LAYOUT(SMMType1PathlossBlockV7, kMmType1PathlossBlockFields);

inline constexpr SField kMmType2PathlossBlockFields[] = {
    {.at = TRACE_AT(SMMType2PathlossBlockV7, band, 0), .form = EForm::Band},
    {.at = TRACE_AT(SMMType2PathlossBlockV7, reserved2, 2)},
    {.at = TRACE_AT(SMMType2PathlossBlockV7, freq, 4), .unit = kKhz},
    {.at = TRACE_AT(SMMType2PathlossBlockV7, loss, 68)},
    {.at = TRACE_AT(SMMType2PathlossBlockV7, plOffset, 18244), .unit = kDb32},
};
TRACE_LAYOUT(SMMType2PathlossBlockV7, kMmType2PathlossBlockFields);
