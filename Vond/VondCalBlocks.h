// Calibration blocks: what the target keeps in flash for a route, in pieces of 16 subbands.
//
// All blocks are little-endian and naturally aligned; reserved bytes are 0 on the wire. Gains,
// losses, offsets and power detector values are dB in 1/32 dB; frequencies are kHz, 0 in the unused
// tail of a list. Block k of a route holds its subbands 16k to 16k + 15, and each block repeats
// what belongs to the whole route. A route has at most 64 subbands, so 4 blocks.
//
//   block.loss[subband][VondType1LossPair(EVondRxPath::Div, slot)].hpm = -976;   // -30.5 dB
#pragma once

#include "Vond/VondLayout.h"

constexpr int kVondCalBlockSubbands = 16;  // subbands of one block
constexpr int kVondCalMaxSubbands = 64;    // subbands of one route
constexpr int kVondCalMaxBlocks = kVondCalMaxSubbands / kVondCalBlockSubbands;
constexpr int kVondCalTemperatures = 8;  // steps of every temperature table

constexpr int kVondAptLevels = 10;  // PA control levels
constexpr int kVondAptPaModes = 3;  // 0 high, 1 middle, 2 low

// One PA control level.
struct SAptLevel
{
    uint8_t paMode;       // 0 high, 1 middle, 2 low
    uint8_t dc2dcLevel;   // supply voltage, tenths of a volt
    uint8_t usage256Qam;  // 1: the level is used for 256QAM
    uint8_t reserved3;
    int16_t prf;     // dB, 1/32 dB
    int16_t paGain;  // dB, 1/32 dB
};
VOND_SIZE(SAptLevel, 8);

// The part of an APT block that belongs to one PA mode.
struct SAptPaPart
{
    uint8_t prfIndex;
    uint8_t reserved1;
    int16_t paGain[kVondCalBlockSubbands];                  // by subband, 1/32 dB
    int16_t paGainTempOffset[kVondCalTemperatures];         // by temperature, 1/32 dB
    int16_t powerDetector[kVondCalBlockSubbands];           // by subband, 1/32 dB
    int16_t powerDetectorTempOffset[kVondCalTemperatures];  // by temperature, 1/32 dB
};
VOND_SIZE(SAptPaPart, 98);

// One block of a TX route's bandwidth region.
struct SAptBlock
{
    uint16_t band;  // NR band number
    uint8_t normalTempIndex;
    uint8_t paControlLevel;  // levels in use, at most 10
    uint8_t paModeCount;     // PA modes in use, at most 3
    uint8_t reserved5;
    SAptLevel level[kVondAptLevels];
    int16_t couplerLoss[kVondAptPaModes];  // 1/32 dB
    uint32_t freq[kVondCalBlockSubbands];  // UL, kHz
    SAptPaPart pa[kVondAptPaModes];
    uint8_t reserved450[2];
};
VOND_SIZE(SAptBlock, 452);

enum class EVondRxPath
{
    Main = 0,
    Div = 1,
};

// The loss of one gain on one path.
struct SMMLossPair
{
    int16_t lpm;  // low power mode, 1/32 dB
    int16_t hpm;  // high power mode, 1/32 dB
};
VOND_SIZE(SMMLossPair, 4);

constexpr int kVondLossGainSlots = 8;  // gain modes that a loss table has room for
constexpr int kVondSrxPaths = 2;       // paths of a type 2 route
constexpr int kVondGainRows = 7;       // G0 to G6
constexpr int kVondGainColumns = 3;    // g0 to g2
constexpr int kVondSubGains = 3;       // sub-gains of a gain-by-gain row

constexpr int kVondType1LossPairs = 2 * kVondLossGainSlots;
constexpr int kVondPartialOnPairs = kVondSrxPaths * kVondLossGainSlots;
constexpr int kVondGainByGainPairs =
    kVondSrxPaths * kVondGainRows * kVondGainColumns * kVondSubGains;
constexpr int kVondType2PathPairs = kVondPartialOnPairs + kVondGainByGainPairs;
constexpr int kVondType2LossPairs = 2 * kVondType2PathPairs;
static_assert(kVondType1LossPairs == 16 && kVondType2LossPairs == 284,
              "the loss of one subband is 16 pairs, of type 2 284 pairs");

// Pair index of a gain slot, 0 to 7, of a type 1 route.
constexpr int VondType1LossPair(EVondRxPath path, int slot)
{
    return static_cast<int>(path) * kVondLossGainSlots + slot;
}

// Pair index of a gain slot on an SRX path, 0 or 1, while that path runs alone.
constexpr int VondPartialOnPair(EVondRxPath path, int srxPath, int slot)
{
    return static_cast<int>(path) * kVondType2PathPairs + srxPath * kVondLossGainSlots + slot;
}

// Pair index of a sub-gain, 0 to 2, of gain G (0 to 6), g (0 to 2) on an SRX path.
constexpr int VondGainByGainPair(EVondRxPath path, int srxPath, int bigG, int smallG, int subGain)
{
    const int row = (srxPath * kVondGainRows + bigG) * kVondGainColumns + smallG;
    return static_cast<int>(path) * kVondType2PathPairs + kVondPartialOnPairs +
           row * kVondSubGains + subGain;
}
static_assert(VondGainByGainPair(EVondRxPath::Div, 1, 6, 2, 2) == kVondType2LossPairs - 1,
              "the last gain-by-gain pair is the last pair of a subband");

// One block of a type 1 RX route.
struct SMMType1PathlossBlockV7
{
    uint16_t band;  // NR band number
    uint8_t reserved2[2];
    uint32_t freq[kVondCalBlockSubbands];  // DL, kHz
    SMMLossPair loss[kVondCalBlockSubbands][kVondType1LossPairs];
    int16_t plOffset[kVondCalTemperatures];  // by temperature, 1/32 dB
};
VOND_SIZE(SMMType1PathlossBlockV7, 1108);

// One block of a type 2 RX route.
struct SMMType2PathlossBlockV7
{
    uint16_t band;  // NR band number
    uint8_t reserved2[2];
    uint32_t freq[kVondCalBlockSubbands];  // DL, kHz
    SMMLossPair loss[kVondCalBlockSubbands][kVondType2LossPairs];
    int16_t plOffset[kVondCalTemperatures];  // by temperature, 1/32 dB
};
VOND_SIZE(SMMType2PathlossBlockV7, 18260);
