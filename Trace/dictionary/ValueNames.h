// Units of the fields, and names of their values and bits, as the headers of Vond/ tell them.
//
//   {.at = TRACE_AT(SNrPuschCcV7, txScs, 20), .values = kScsNames},
//   {.at = TRACE_AT(SNrPuschCcV7, txPowerValue, 28), .unit = kDbm256},
#pragma once

#include "Trace/dictionary/Field.h"

inline constexpr SUnit kKhz = {.name = "kHz"};
inline constexpr SUnit kRbs = {.name = "RB"};
inline constexpr SUnit kBytes = {.name = "bytes"};
inline constexpr SUnit kTenthVolts = {.name = "V", .perUnit = 10};
inline constexpr SUnit kDb32 = {.name = "dB", .perUnit = 32};
inline constexpr SUnit kDbm32 = {.name = "dBm", .perUnit = 32};
inline constexpr SUnit kDbm128 = {.name = "dBm", .perUnit = 128};
inline constexpr SUnit kDbm256 = {.name = "dBm", .perUnit = 256};

inline constexpr SValueName kFlagNames[] = {{0, "no"}, {1, "yes"}};
inline constexpr SValueName kForcedNames[] = {{0, "normal mode"}, {1, "forced mode"}};
inline constexpr SValueName kScsNames[] = {{0, "15 kHz"}, {1, "30 kHz"}, {2, "60 kHz"}};
inline constexpr SValueName kMcsNames[] = {
    {0, "DFT-s-OFDM BPSK"},  {1, "CP-OFDM QPSK"},     {2, "DFT-s-OFDM QPSK"},
    {3, "CP-OFDM 16QAM"},    {4, "DFT-s-OFDM 16QAM"}, {5, "CP-OFDM 64QAM"},
    {6, "DFT-s-OFDM 64QAM"}, {7, "CP-OFDM 256QAM"},   {8, "DFT-s-OFDM 256QAM"},
};
inline constexpr SValueName kRadioKindNames[] = {{0, "LTE side"}, {1, "NR"}};
inline constexpr SValueName kTrxModeNames[] = {{0, "RX only"}, {1, "pseudo TX/RX"}};
inline constexpr SValueName kMimoNames[] = {{0, "2x2"}, {1, "4x4"}};
inline constexpr SValueName kPowerModeNames[] = {{1, "LPM"}, {2, "HPM"}, {3, "AUTO"}};
inline constexpr SValueName kLowPowerNames[] = {{0, "HPM"}, {1, "LPM"}};
inline constexpr SValueName kRouteKindNames[] = {{1, "without gain mode flag"},
                                                 {3, "type 2 with gain mode flag"}};
inline constexpr SValueName kSinglePathNames[] = {{0, "both paths"}, {1, "one path"}};
inline constexpr SValueName kSimultaneousNames[] = {{0, "one path"}, {1, "both paths"}};
inline constexpr SValueName kPathNames[] = {{0, "path 0"}, {1, "path 1"}, {3, "no single path"}};
inline constexpr SValueName kStatusNames[] = {{0, "success"},
                                              {1, "frequency is on no NR-ARFCN"},
                                              {2, "cell not found"},
                                              {3, "MIB not decoded"},
                                              {4, "secondary cell not found"}};
inline constexpr SValueName kVerdictNames[] = {{0, "failure"}, {1, "success"}};
inline constexpr SValueName kPaModeNames[] = {{0, "high"}, {1, "middle"}, {2, "low"}};
inline constexpr SValueName kServiceNames[] = {{3, "C2K"}};
inline constexpr SValueName kStopKindNames[] = {{1, "multi-mode tests"}};

inline constexpr SValueName kRatBits[] = {{6, "NR"}};
