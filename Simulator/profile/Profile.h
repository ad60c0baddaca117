// A DUT profile: all that is fixed of one simulated DUT.
//
// The records hold the content of the capability records. Frequencies are kHz; band and route
// numbers are those of the wire. A profile that ParseProfile has returned keeps within the limits
// of the wire records and is consistent: every route stands on a listed band and paired TX routes
// exist. Value type, no locks.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Simulator/basis/Bands.h"
#include "Vond/VondCapabilityRecords.h"

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

// The hardware of a route. TX routes have one port and one path, type 1 routes one path.
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

// The test set at the connectors, and what is analog in the DUT. Levels are those of a whole cell,
// path losses lie between the test set and the RX route's connector.
struct SProfileRadio
{
    uint32_t seed = 1;
    double fluctuationDb = 0.2;  // a reading strays by no more
    double noiseFigureDb = 6.0;
    double temperatureC = 25.0;
    double levelDbm = -65.0;
    std::map<uint16_t, double> bandLevelDbm;  // by band, where it differs
    double pathLossDb = 0.5;
    std::map<uint16_t, double> routeLossDb;  // by RX route, where it differs
    double pdSlope = 0.98;                   // of the power detector over the TX power
    double pdOffsetDb = 0.6;                 // its reading at 0 dBm

    double LevelOf(uint16_t band) const { return ValueOr(bandLevelDbm, band, levelDbm); }
    double LossOf(uint16_t route) const { return ValueOr(routeLossDb, route, pathLossDb); }

private:
    static double ValueOr(const std::map<uint16_t, double> &values, uint16_t key, double fallback)
    {
        const auto found = values.find(key);
        return found != values.end() ? found->second : fallback;
    }
};

// Number of subbands in the calibration records of one kind. None: one for each 5 MHz of the
// limits.
struct SProfileSubbands
{
    std::optional<int> fallback;
    std::map<uint16_t, int> byBand;
};

// Field order of the TX entries in an upload answer.
enum class ETxEntries
{
    BandwidthFirst,
    CountFirst,
    InTurn,  // the one and the other, entry by entry
};

// The content of the flash without a file, and the field order of an upload answer.
struct SProfileCalibration
{
    uint32_t seed = 1;
    ETxEntries txEntries = ETxEntries::BandwidthFirst;
    SProfileSubbands tx;
    SProfileSubbands rxType1;
    SProfileSubbands rxType2;
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
    SMMRfRxGainInfoV7 gain[kVondRxPowerModes] = {};
    SProfileRadio radio;
    SProfileCalibration calibration;
    std::vector<std::string> faults;  // JSON objects, see Fault.h
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
