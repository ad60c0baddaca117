// Capability records: what the target tells about its radio.
//
// All records are little-endian and naturally aligned. Reserved bytes are not read by the tool; a
// target may leave anything in them. Counts say how many rows of the fixed table behind them are in
// use. Bands are 3GPP NR band numbers (TS 38.101-1 table 5.2-1, 78 for n78).
#pragma once

#include "Vond/VondLayout.h"

constexpr int kVondMaxBands = 25;
constexpr int kVondMaxTxRoutes = 100;
constexpr int kVondMaxRxRoutes = 100;       // of each type
constexpr int kVondMaxBwRegions = 4;        // aggregate bandwidth regions of a TX route
constexpr int kVondMaxRouteValues = 100;    // TX routes paired with one RX route
constexpr int kVondMaxFreqLimits = 14;      // routes with limits of their own, a direction
constexpr int kVondMaxDetailRoutes = 1181;  // rows of a hardware detail table
constexpr int kVondRxPowerModes = 2;        // 0 high power mode (HPM), 1 low power mode (LPM)

// An item word: a value that may be absent.
constexpr bool VondItemValid(uint32_t word)
{
    return (word & 1u) != 0;
}
constexpr uint32_t VondItemValue(uint32_t word)
{
    return word >> 2;
}

// Request of the three capability reads: the sizes of the two parts that the caller expects.
struct SVondCapabilityReq
{
    uint32_t capabilitySize;   // bytes
    uint32_t calibrationSize;  // bytes
};
VOND_SIZE(SVondCapabilityReq, 8);

// Answer of VOND_ERf_GetRfCapability_r.
struct SERfCapability
{
    uint8_t reserved0[8];
    uint32_t rfChipId;  // LTE-side RF chip, a key of VOND_ERf_GetChipIdName
    uint8_t reserved12[236];
};
VOND_SIZE(SERfCapability, 248);

constexpr uint32_t kVondRatNr = 0x40;  // bit of NR in the value of the world mode word

// Answer of VOND_MMRf_GetRfCapability_r.
struct SMMRfCapability
{
    uint8_t reserved0[44];
    uint32_t worldMode;  // item word: valid when RAT information is there; value bit 6 (0x40) is NR
    uint8_t reserved48[96];
};
VOND_SIZE(SMMRfCapability, 144);

// Answer of VOND_NRf_GetRfCapability_r.
struct SNRfCapability
{
    uint8_t reserved0[8];
    uint32_t rfChipId;    // NR RF chip, a key of VOND_NRf_GetChipIdName
    uint32_t generation;  // item word: bits 2 to 9 are the modem generation
    uint8_t reserved16[20];
};
VOND_SIZE(SNRfCapability, 36);

struct SMMRfBandEntryV7
{
    uint16_t band;         // NR band number
    uint8_t downlinkOnly;  // 1: supplementary downlink, left out of TX lists
    uint8_t uplinkOnly;    // 1: supplementary uplink, left out of RX lists
};
VOND_SIZE(SMMRfBandEntryV7, 4);

// Frequency limits that the target declares for single routes, one direction.
struct SRouteFreqRangeHalf
{
    uint16_t count;
    uint16_t band[kVondMaxFreqLimits];   // NR band number
    uint16_t route[kVondMaxFreqLimits];  // route number
    uint8_t reserved58[2];
    int32_t low[kVondMaxFreqLimits];   // lowest carrier frequency, kHz
    int32_t high[kVondMaxFreqLimits];  // highest carrier frequency, kHz
};
VOND_SIZE(SRouteFreqRangeHalf, 172);

struct SRouteFreqRangeV7
{
    SRouteFreqRangeHalf tx;
    SRouteFreqRangeHalf rx;
};
VOND_SIZE(SRouteFreqRangeV7, 344);

struct SMMRfTxRouteV7
{
    uint16_t band;           // NR band number
    uint16_t route;          // route number
    uint16_t bwRegionCount;  // rows of bwRegionKhz in use, at most 4
    uint16_t reserved;
    uint32_t bwRegionKhz[kVondMaxBwRegions];  // upper bound of each region, kHz
};
VOND_SIZE(SMMRfTxRouteV7, 24);

struct SMMRfRxType1RouteV7
{
    uint16_t band;   // NR band number
    uint16_t route;  // route number
};
VOND_SIZE(SMMRfRxType1RouteV7, 4);

struct SMMRfRxType2RouteV7
{
    uint16_t band;   // NR band number
    uint16_t route;  // route number
    uint8_t reserved4[4];
    uint8_t gainModeFlag;  // not 0: the route takes the type 2 gain layout
    uint8_t reserved9;
};
VOND_SIZE(SMMRfRxType2RouteV7, 10);

// Which RX gain modes (g0..g2) go with which eLNA gain (G0..G6), for one power mode.
struct SMMRfRxGainInfoV7
{
    uint8_t t1[7][3];     // [G][g]: 1 when g is allowed while one path runs alone
    uint8_t t2[7][3][3];  // [G][g of path 0][g of path 1]: 1 when both can run together
    uint8_t reserved84[526];
};
VOND_SIZE(SMMRfRxGainInfoV7, 610);

// The part of the route configuration that the capability readers hand out as one table.
struct SMMRfRouteTableV7
{
    uint16_t txRouteCount;
    uint16_t rxType1RouteCount;
    uint16_t rxType2RouteCount;
    uint8_t reserved6[2];
    SMMRfTxRouteV7 txRoute[kVondMaxTxRoutes];
    SMMRfRxType1RouteV7 rxType1Route[kVondMaxRxRoutes];
    SMMRfRxType2RouteV7 rxType2Route[kVondMaxRxRoutes];
};
VOND_SIZE(SMMRfRouteTableV7, 3808);

// Answer of VOND_MMRf_GetRouteConfigV7_r; the request is one u32 radio kind (0 LTE side, 1 NR).
struct SMMRfRouteConfigV7
{
    uint32_t bandCount;
    SMMRfBandEntryV7 band[kVondMaxBands];
    SRouteFreqRangeV7 freqRange;
    SMMRfRouteTableV7 routes;
    SMMRfRxGainInfoV7 rxGainInfo[kVondRxPowerModes];  // index 0 HPM, 1 LPM
};
VOND_SIZE(SMMRfRouteConfigV7, 5476);

// Answer of VOND_NRf_GetBandRxInfo_r: MIMO ability by band.
struct SNRfBandRxInfo
{
    uint16_t count;
    uint16_t band[kVondMaxBands];   // NR band number
    uint8_t ulMimo[kVondMaxBands];  // 1: UL MIMO
    uint8_t rx4x4[kVondMaxBands];   // 1: 4x4 RX
};
VOND_SIZE(SNRfBandRxInfo, 102);

struct SNRfRxRouteValueEntry
{
    uint16_t route;                       // RX route number
    uint16_t valueCount;                  // TX routes in use
    uint16_t value[kVondMaxRouteValues];  // TX route numbers that can pair with the RX route
};
VOND_SIZE(SNRfRxRouteValueEntry, 204);

// Answer of VOND_NRf_GetRxRouteValues_r.
struct SNRfRxRouteValues
{
    uint16_t count;
    SNRfRxRouteValueEntry entry[kVondMaxRxRoutes];
};
VOND_SIZE(SNRfRxRouteValues, 20402);

struct SMMRfRouteDetailTxPair
{
    uint16_t route;  // TX route number
    uint8_t reserved2[2];
    uint32_t bwRegionKhz;  // one bandwidth region of that route, kHz
};
VOND_SIZE(SMMRfRouteDetailTxPair, 8);

// Request of VOND_MMRf_GetRouteDetailV7_r. The counts are bytes: at most 255 rows of each kind.
struct SMMRfRouteDetailReqV7
{
    uint32_t radioKind;  // 1: NR
    uint8_t rxType1Count;
    uint8_t rxType2Count;
    uint8_t txPairCount;
    uint8_t reserved7;
    uint16_t rxType1Route[kVondMaxDetailRoutes];
    uint16_t rxType2Route[kVondMaxDetailRoutes];
    SMMRfRouteDetailTxPair txPair[kVondMaxDetailRoutes];
    uint8_t reserved14180[4200];
};
VOND_SIZE(SMMRfRouteDetailReqV7, 18380);

// Hardware behind one RX route. Type 1 and type 2 routes read the tail differently.
struct SRxRouteHw
{
    uint32_t antMask;     // antenna mask, bit per antenna
    uint16_t feRouteNum;  // front-end route number
    char port[2][16];     // port names, zero-terminated
    union
    {
        struct
        {
            uint8_t srx;            // SRX number
            uint8_t mimoPairCount;  // rows of mimoPair in use
            uint16_t mimoPair[6];   // RX route numbers
        } type1;
        struct
        {
            uint8_t srx[2];         // SRX number of path 0 and of path 1
            uint8_t mimoPairCount;  // rows of mimoPair in use
            uint8_t reserved;
            uint16_t mimoPair[5];  // RX route numbers
        } type2;
    };
};
VOND_SIZE(SRxRouteHw, 52);

// Hardware behind one bandwidth region of a TX route.
struct STxBwRegionHw
{
    uint32_t antMask;       // antenna mask, bit per antenna
    uint16_t feRouteNum;    // front-end route number
    char port[16];          // port name, zero-terminated
    uint8_t stx;            // STX number
    uint8_t mimoPairCount;  // rows of mimoPair in use
    uint16_t mimoPair[6];   // TX route numbers
};
VOND_SIZE(STxBwRegionHw, 36);

// Answer of VOND_MMRf_GetRouteDetailV7_r, a hardware block for each row of the request, in its
// order.
struct SMMRfRouteDetailCnfV7
{
    uint8_t reserved0[18376];
    SRxRouteHw rxType1[kVondMaxDetailRoutes];
    SRxRouteHw rxType2[kVondMaxDetailRoutes];
    STxBwRegionHw txPair[kVondMaxDetailRoutes];
};
VOND_SIZE(SMMRfRouteDetailCnfV7, 183716);
