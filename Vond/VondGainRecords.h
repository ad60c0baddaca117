// The gain block of a gain search's answer and of an RSSI command. Both have one layout, so the
// target's advice goes back to it unchanged.
//
// Little-endian and naturally aligned. All gains are dB in 1/32 dB. The record around the block
// says which layout holds.
#pragma once

#include "Vond/VondLayout.h"

constexpr uint8_t kVondHighestGainIdx = 17;  // last entry of the type 2 gain table
constexpr uint8_t kVondHighestElnaMode = 6;  // G0 to G6
constexpr uint8_t kVondHighestGainMode = 2;  // g0 to g2

union UMMRssiGainV7
{
    struct
    {
        int16_t mainRfGain;  // of the path asked for
        int16_t divRfGain;
        int16_t mainDigitalGain;
        int16_t divDigitalGain;
        uint8_t reserved8[12];
    } single;
    struct
    {
        uint8_t path0MainGainIdx;  // type 2 gain index, 0 to 17
        uint8_t path0DivGainIdx;
        uint8_t path1MainGainIdx;
        uint8_t path1DivGainIdx;
        int16_t path0MainRfGain;
        int16_t path0DivRfGain;
        int16_t path1MainRfGain;
        int16_t path1DivRfGain;
        int16_t path0MainDigitalGain;
        int16_t path0DivDigitalGain;
        int16_t path1MainDigitalGain;
        int16_t path1DivDigitalGain;
    } simultaneous;
};
VOND_SIZE(UMMRssiGainV7, 20);
