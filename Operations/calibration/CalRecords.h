// Calibration data of a route as it is held in memory: the whole route in one record, where the
// target's flash has blocks of 16 subbands.
//
// Gains, losses, offsets and power detector values are dB in 1/32 dB; frequencies are kHz, 0 in the
// unused tail. blockCount is the number of 16-entry frequency groups in use, 0 to 4. The layout is
// fixed, since a record is compared and kept as bytes; its offsets are in CalRecordLayouts.h.
//
//   SMMType1PathlossByRouteV7 record = {};
//   record.loss[subband][VondType1LossPair(EVondRxPath::Main, slot)].lpm = 48;   // 1.5 dB
#pragma once

#include "Vond/VondCalBlocks.h"

// A TX route in one bandwidth region.
struct SAptRouteBwRecord
{
    uint16_t band;  // NR band number
    uint16_t route;
    uint8_t normalTempIndex;
    uint8_t paControlLevel;  // levels in use, at most 10
    uint8_t paModeCount;     // PA modes in use, at most 3
    uint8_t reserved7;
    SAptLevel level[kVondAptLevels];
    int16_t paGainTempOffset[kVondAptPaModes][kVondCalTemperatures];         // 1/32 dB
    int16_t powerDetectorTempOffset[kVondAptPaModes][kVondCalTemperatures];  // 1/32 dB
    uint8_t prfIndex[kVondAptPaModes];
    uint8_t reserved187;
    int16_t couplerLoss[kVondAptPaModes];  // 1/32 dB
    uint8_t reserved194[2];
    uint32_t blockCount;
    uint32_t freq[kVondCalMaxSubbands];                           // UL, kHz
    int16_t paGain[kVondAptPaModes][kVondCalMaxSubbands];         // 1/32 dB
    int16_t powerDetector[kVondAptPaModes][kVondCalMaxSubbands];  // 1/32 dB
};
VOND_SIZE(SAptRouteBwRecord, 1224);

// A type 1 RX route.
struct SMMType1PathlossByRouteV7
{
    uint16_t band;  // NR band number
    uint16_t route;
    uint32_t blockCount;
    uint32_t freq[kVondCalMaxSubbands];                          // DL, kHz
    SMMLossPair loss[kVondCalMaxSubbands][kVondType1LossPairs];  // index of VondType1LossPair
    int16_t plOffset[kVondCalTemperatures];                      // 1/32 dB
};
VOND_SIZE(SMMType1PathlossByRouteV7, 4376);

// A type 2 RX route.
struct SMMType2PathlossByRouteV7
{
    uint16_t band;  // NR band number
    uint16_t route;
    uint32_t blockCount;
    uint32_t freq[kVondCalMaxSubbands];  // DL, kHz
    // Index of VondPartialOnPair and VondGainByGainPair.
    SMMLossPair loss[kVondCalMaxSubbands][kVondType2LossPairs];
    int16_t plOffset[kVondCalTemperatures];  // 1/32 dB
};
VOND_SIZE(SMMType2PathlossByRouteV7, 72984);
