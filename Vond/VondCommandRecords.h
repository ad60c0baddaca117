// Command records: what the tool asks the target to do.
//
// All records are little-endian and naturally aligned; the builders zero a record before they fill
// it, so reserved bytes are 0 on the wire. Powers are dBm in 1/256 dB, gains dB in 1/32 dB, both
// truncated toward zero; frequencies and bandwidths are kHz; bands are 3GPP NR band numbers
// (TS 38.101-1 table 5.2-1). SCS values are 0: 15 kHz, 1: 30 kHz, 2: 60 kHz.
#pragma once

#include "Vond/VondGainRecords.h"
#include "Vond/VondLayout.h"

// One carrier of a PUSCH test.
struct SNrPuschCcV7
{
    uint16_t band;          // NR band number
    uint8_t tddSlotConfig;  // slot format index
    uint8_t reserved3;
    uint32_t ulFrequency;  // kHz
    uint8_t sulFreqShift;  // 1: shift the raster by 7.5 kHz
    uint8_t reserved9;
    uint16_t cellId;
    uint32_t ulBandwidth;  // kHz
    uint16_t vrbStart;     // first RB
    uint16_t vrbLength;    // RBs
    uint32_t txScs;        // 0: 15 kHz, 1: 30 kHz, 2: 60 kHz
    uint32_t mcsMode;      // waveform and modulation
    int16_t txPowerValue;  // dBm, 1/256 dB
    uint8_t reserved30[2];
    uint32_t networkSelection;  // network signalling value
    uint8_t txCloseLoopDisble;  // 1: no closed loop power control
    uint8_t amprEnbl;           // 1: additional maximum power reduction
    uint16_t txRoute;           // forced mode only
    uint8_t enableCsr;          // 1: carrier search, for the DL frequency
    uint8_t enableMimo;         // 1: UL MIMO, normal mode only
    uint8_t reserved42[2];
};
VOND_SIZE(SNrPuschCcV7, 44);

struct SNrPuschTxForcedV7
{
    SNrPuschCcV7 carrier;
    uint8_t reserved44[48];
};
VOND_SIZE(SNrPuschTxForcedV7, 92);

struct SNrPuschTxNormalV7
{
    uint8_t ulCCNum;  // carriers in use, 1 or 2
    uint8_t reserved1[3];
    SNrPuschCcV7 carrier[2];
};
VOND_SIZE(SNrPuschTxNormalV7, 92);

// Command of VOND_NRf_PuschTxV7_r.
struct SNrPuschTxCmdV7
{
    uint8_t forced;  // 1: forced mode, 0: normal mode
    uint8_t reserved1[3];
    union
    {
        SNrPuschTxForcedV7 forcedMode;
        SNrPuschTxNormalV7 normalMode;
    };
};
VOND_SIZE(SNrPuschTxCmdV7, 96);

// Command of VOND_NRf_GetDlFreqV7_r.
struct SNrDlFreqCmdV7
{
    uint16_t band;  // NR band number
    uint8_t reserved2[2];
    uint32_t ulFrequency;  // kHz
    uint8_t forced;        // 1: forced mode, 0: normal mode
    uint8_t reserved9;
    uint16_t txRoute;  // forced mode only
};
VOND_SIZE(SNrDlFreqCmdV7, 12);

// Command of VOND_MMRf_SingleToneTxV7_r.
struct SMMSingleToneCmdV7
{
    uint32_t radioKind;      // 1: NR
    uint16_t band;           // NR band number
    uint16_t txRoute;        // route number
    uint16_t afcdac;         // AFC DAC code
    int16_t txPowerValue;    // dBm, 1/256 dB
    uint32_t ulFrequency;    // kHz
    uint32_t aggBwKhzRange;  // upper bound of the bandwidth region, kHz
    int32_t ulFreqOffset;    // tone offset from the carrier, kHz
    uint32_t afcDataType;    // 1: afcdac applies
};
VOND_SIZE(SMMSingleToneCmdV7, 28);

// The part of an RSRP carrier that both modes share.
struct SNrRsrpCommonV7
{
    uint8_t measCnt;  // measurements a report
    uint8_t reserved1[3];
    uint32_t dlFrequency;   // kHz
    uint32_t rxScs;         // 0: 15 kHz, 1: 30 kHz, 2: 60 kHz
    uint16_t band;          // NR band number
    uint8_t tddSlotConfig;  // slot format index
    uint8_t reserved15;
    uint32_t dlBandwidth;  // kHz
    uint8_t trxMode;       // 1: pseudo TX/RX, 0: RX only
    uint8_t reserved21;
    int16_t txPowerValue;  // dBm, 1/256 dB; pseudo mode only
    uint16_t vrbStart;     // first RB; pseudo mode only
    uint16_t vrbLength;    // RBs; pseudo mode only
    uint32_t mcsMode;      // waveform and modulation; pseudo mode only
};
VOND_SIZE(SNrRsrpCommonV7, 32);

// One carrier of a normal mode RSRP test.
struct SNrRsrpCcV7
{
    SNrRsrpCommonV7 common;
    uint8_t mimo4x4;  // 1: 4x4, 0: 2x2
    uint8_t reserved33[3];
};
VOND_SIZE(SNrRsrpCcV7, 36);

// The carrier of a forced mode RSRP test: longer than the normal one by the power mode byte.
struct SNrRsrpForcedCcV7
{
    SNrRsrpCommonV7 common;
    uint16_t rxRoute;    // route number
    uint16_t txRoute;    // route number; pseudo mode only
    uint8_t lpmHpmConf;  // 1: LPM, 2: HPM, 3: AUTO
    uint8_t reserved37[3];
};
VOND_SIZE(SNrRsrpForcedCcV7, 40);

struct SNrRsrpForcedV7
{
    SNrRsrpForcedCcV7 carrier;
    uint8_t reserved40[36];
};
VOND_SIZE(SNrRsrpForcedV7, 76);

struct SNrRsrpNormalV7
{
    uint8_t carrierCount;  // 1
    uint8_t reserved1[3];
    SNrRsrpCcV7 carrier[2];  // the second is not used
};
VOND_SIZE(SNrRsrpNormalV7, 76);

// Command of VOND_NRf_RsrpV7_r.
struct SNrRsrpCmdV7
{
    uint8_t forced;  // 1: forced mode, 0: normal mode
    uint8_t reserved1[3];
    union
    {
        SNrRsrpForcedV7 forcedMode;
        SNrRsrpNormalV7 normalMode;
    };
};
VOND_SIZE(SNrRsrpCmdV7, 80);

// Gain block of a continuous RX command; SMMContRxCmdV7::singlePath says which layout holds.
union UMMContRxGainV7
{
    struct
    {
        int16_t mainRfGain;  // dB, 1/32 dB, of the path that runs
        int16_t divRfGain;   // dB, 1/32 dB
        uint8_t reserved4[8];
    } single;
    struct
    {
        uint8_t path0MainGainIdx;  // type 2 gain index
        uint8_t path0DivGainIdx;
        uint8_t path1MainGainIdx;
        uint8_t path1DivGainIdx;
        int16_t path0MainRfGain;  // dB, 1/32 dB
        int16_t path0DivRfGain;
        int16_t path1MainRfGain;
        int16_t path1DivRfGain;
    } simultaneous;
};
VOND_SIZE(UMMContRxGainV7, 12);

// Command of VOND_MMRf_ContRxV7_r.
struct SMMContRxCmdV7
{
    uint32_t routeKind;    // 3: type 2 route with gain mode flag, 1: any other
    uint32_t lowPower;     // 1: LPM, 0: HPM
    uint32_t dlBandwidth;  // kHz
    uint16_t band;         // NR band number
    uint16_t rxRoute;      // route number
    uint8_t singlePath;    // 1: one path, 0: both paths simultaneously
    uint8_t reserved17[3];
    uint32_t path;  // 0, 1, or 3 when no single path is meant
    UMMContRxGainV7 gain;
    uint32_t dlFrequency;  // kHz
};
VOND_SIZE(SMMContRxCmdV7, 40);

// Command of VOND_MMRf_GainSearchV7_r.
struct SMMGainSearchCmdV7
{
    uint32_t radioKind;     // 1: NR
    uint32_t lowPower;      // 1: LPM, 0: HPM
    uint32_t simultaneous;  // 1: both paths
    uint8_t elnaModeMain;   // G of the main antenna
    uint8_t elnaModeDiv;    // G of the diversity antenna
    uint8_t search[4];  // g: single path main, div; simultaneous path 0 main, div, path 1 main, div
    uint8_t reserved18[2];
};
VOND_SIZE(SMMGainSearchCmdV7, 20);

// Command of VOND_MMRf_RssiV7_r.
struct SMMRssiCmdV7
{
    uint32_t routeKind;       // 3: type 2 route with gain mode flag, 1: any other
    uint32_t lowPower;        // 1: LPM, 0: HPM
    uint32_t dlFrequency[5];  // kHz, numFreq of them in use
    uint16_t band;            // NR band number
    uint16_t rxRoute;         // route number
    uint8_t singlePath;       // 1: one path, 0: both paths simultaneously
    uint8_t numFreq;          // frequencies to measure, at most 5
    uint8_t reserved34[2];
    uint32_t path;       // 0, 1, or 3 when no single path is meant
    UMMRssiGainV7 gain;  // singlePath says which layout holds
};
VOND_SIZE(SMMRssiCmdV7, 60);
