// Capabilities in the shapes that the rest of the system reads.
//
// Values only, made by CTargetCapability from the cached records; copied freely, any thread.
#pragma once

#include <cstdint>
#include <vector>

#include <QStringList>

#include "Vond/VondCapabilityRecords.h"

// What became of one cached read.
struct SVondSupportFlags
{
    bool attempted = false;  // the read was tried since the last reset
    bool supported = false;  // the target offers the function, or the read had no gate
    bool succeeded = false;  // the data in the cache is real
};

enum class ERadioKind
{
    Lte = 0,
    Nr = 1,
};

enum class EBandDirection
{
    Rx = 0,  // downlink: supplementary uplink bands are left out
    Tx = 1,  // uplink: supplementary downlink bands are left out
};

// One band that the DUT supports in a direction.
struct SBandCapEntry
{
    uint16_t band = 0;          // NR band number
    uint8_t supplementary = 0;  // 1: downlink-only or uplink-only
    uint8_t mimoSupported = 0;  // TX: UL MIMO, RX: 4x4; 0 when the DUT's band table lacks the band
};

// One TX route.
struct STxRouteInfoV7
{
    uint16_t band = 0;
    uint16_t route = 0;
    uint16_t bwRegionCount = 0;                         // at most 4
    uint32_t bwRegionLimitKhz[kVondMaxBwRegions] = {};  // upper bound of each region, kHz
    uint8_t hwValid = 0;                                // 1: bwRegion holds hardware detail
    STxBwRegionHw bwRegion[kVondMaxBwRegions] = {};
};

// One RX route.
struct SRxRouteInfoV7
{
    uint16_t band = 0;
    uint16_t route = 0;
    uint32_t routeType = 0;  // 1 or 2
    uint8_t hwValid = 0;     // 1: hw holds hardware detail
    SRxRouteHw hw = {};
    QStringList txRoutes;  // TX route numbers that can pair with this one; type 1 routes only
};
