// A DUT profile: everything that one simulated DUT is, apart from what its radio does at the
// moment.
//
// The records hold what the wire records of the capability reads tell, in units of their own: kHz,
// band and route numbers as on the wire. A profile that ParseProfile has returned keeps within the
// limits of the wire records and is consistent: every route stands on a listed band and paired TX
// routes exist. Value type, no locks.
#pragma once

#include "Simulator/Bands.h"
#include "Vond/VondCapabilityRecords.h"

#include <string>
#include <vector>

struct SProfileChipName
{
    uint32_t id = 0;
    std::string name;
};

struct SProfileChip
{
    uint32_t id = 0;                      // of this DUT
    std::vector<SProfileChipName> names;  // all ids that the library can name
};

struct SProfileBand
{
    uint16_t band = 0;
    bool downlinkOnly = false;
    bool uplinkOnly = false;
    bool ulMimo = false;
    bool rx4x4 = false;
    SFreqLimits uplink;
    SFreqLimits downlink;
};

// What stands behind a route; TX routes have one port and one path, type 1 routes one path.
struct SProfileHardware
{
    uint32_t antMask = 0;
    uint16_t feRoute = 0;
    std::string port[2];
    uint8_t path[2] = {};  // STX or SRX number, of path 0 and of path 1
    std::vector<uint16_t> mimoPairs;
};

struct SProfileBwRegion
{
    uint32_t kHz = 0;  // upper bound
    SProfileHardware hardware;
};

struct SProfileTxRoute
{
    uint16_t band = 0;
    uint16_t route = 0;
    std::vector<SProfileBwRegion> regions;
};

struct SProfileRxRoute
{
    uint16_t band = 0;
    uint16_t route = 0;
    uint8_t gainMode = 0;  // type 2 only
    SProfileHardware hardware;
    std::vector<uint16_t> txRoutes;  // TX routes that can pair with it
};

struct SProfileRouteLimits
{
    uint16_t band = 0;
    uint16_t route = 0;
    SFreqLimits limits;
};

struct SProfile
{
    std::string name;
    bool plugged = true;
    int32_t modemIndex = 0;
    int32_t modemService = 0;
    SProfileChip lteChip;
    SProfileChip nrChip;
    bool ratValid = false;
    uint32_t worldMode = 0;  // 30 bits
    uint8_t generation = 0;
    bool rasterCheck = true;  // refuse carriers that no NR-ARFCN names
    bool allFunctions = true;
    std::vector<std::string> functions;  // offered ones, when not all
    std::vector<SProfileBand> bands;
    std::vector<SProfileTxRoute> txRoutes;
    std::vector<SProfileRxRoute> rxType1Routes;
    std::vector<SProfileRxRoute> rxType2Routes;
    std::vector<SProfileRouteLimits> txLimits;
    std::vector<SProfileRouteLimits> rxLimits;
    SMMRfRxGainInfoV7 gain[VOND_RX_POWER_MODES] = {};
    std::vector<std::string> faults;  // JSON objects, see Faults.h
};

// The first row of the route, of the band when band is not 0; null when there is none.
template <class Route>
const Route *FindRoute(const std::vector<Route> &routes, uint16_t route, uint16_t band = 0)
{
    for (const Route &row : routes) {
        if (row.route == route && (band == 0 || row.band == band))
            return &row;
    }
    return nullptr;
}

const SProfileBand *FindBand(const SProfile &profile, uint32_t band);
