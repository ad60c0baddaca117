#include "Simulator/profile/ProfileGenerator.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "Simulator/basis/JsonReader.h"

using nlohmann::json;

namespace {

constexpr std::size_t kMostType1Pairs = std::size(decltype(SRxRouteHw::type1){}.mimoPair);
constexpr std::size_t kMostType2Pairs = std::size(decltype(SRxRouteHw::type2){}.mimoPair);
constexpr std::size_t kMostTxPairs = std::size(decltype(STxBwRegionHw{}.mimoPair){});
constexpr uint32_t kEdgeKhz = 1000;

std::vector<SProfileBand> BandsWith(const SProfile &profile, bool uplink)
{
    std::vector<SProfileBand> bands;
    for (const SProfileBand &band : profile.bands) {
        if (uplink ? band.uplink.Exists() : band.downlink.Exists())
            bands.push_back(band);
    }
    return bands;
}

// Hardware that differs from route to route and fills every field. The MIMO pairs are the next
// route numbers; the first follows the last.
SProfileHardware Hardware(uint16_t route, uint16_t first, uint16_t count, std::size_t pairs,
                          const std::string &port)
{
    SProfileHardware hardware;
    hardware.antMask = 1u << (route % 8);
    hardware.feRoute = static_cast<uint16_t>(1000 + route);
    hardware.port[0] = port + "_M_" + std::to_string(route);
    hardware.port[1] = port + "_D_" + std::to_string(route);
    hardware.path[0] = static_cast<uint8_t>(route % 16);
    hardware.path[1] = static_cast<uint8_t>((route + 1) % 16);
    const std::size_t others = count > 0 ? count - 1u : 0u;
    for (std::size_t i = 1; i <= std::min(pairs, others); ++i)
        hardware.mimoPairs.push_back(static_cast<uint16_t>(first + (route - first + i) % count));
    return hardware;
}

void AddTxRoutes(SProfile &profile, uint16_t count, const std::vector<uint32_t> &regionsKhz)
{
    const std::vector<SProfileBand> bands = BandsWith(profile, true);
    if (count > 0 && bands.empty())
        CJsonReader::Fail("generate.txRoutes", "no band has an uplink");
    for (uint16_t i = 0; i < count; ++i) {
        SProfileTxRoute row;
        row.route = static_cast<uint16_t>(i + 1);
        row.band = bands[i % bands.size()].band;
        for (const uint32_t kHz : regionsKhz)
            row.regions.push_back({kHz, Hardware(row.route, 1, count, kMostTxPairs, "TX")});
        profile.txRoutes.push_back(row);
    }
}

struct SRxRule
{
    const char *key;
    uint16_t first;  // number of the first route
    uint16_t count;
    std::size_t pairs;  // MIMO pairs of a route
    uint8_t gainMode;
    uint16_t txRoutes;  // paired TX routes
};

void AddRxRoutes(const SProfile &profile, const SRxRule &rule, std::vector<SProfileRxRoute> &routes)
{
    const std::vector<SProfileBand> bands = BandsWith(profile, false);
    if (rule.count > 0 && bands.empty())
        CJsonReader::Fail(std::string("generate.") + rule.key, "no band has a downlink");
    for (uint16_t i = 0; i < rule.count; ++i) {
        SProfileRxRoute row;
        row.route = static_cast<uint16_t>(rule.first + i);
        row.band = bands[i % bands.size()].band;
        row.gainMode = rule.gainMode;
        row.hardware = Hardware(row.route, rule.first, rule.count, rule.pairs, "RX");
        for (uint16_t tx = 1; tx <= rule.txRoutes; ++tx)
            row.txRoutes.push_back(tx);
        routes.push_back(row);
    }
}

// Limits lie 1 MHz inside the edges of their band, so that they differ from the band's own. A band
// narrower than 4 MHz loses less at each edge.
template <class Route>
void AddLimits(const SProfile &profile, const std::vector<Route> &routes,
               SFreqLimits SProfileBand::*direction, std::size_t count,
               std::vector<SProfileRouteLimits> &limits)
{
    for (std::size_t i = 0; i < std::min(count, routes.size()); ++i) {
        const SFreqLimits whole = FindBand(profile, routes[i].band)->*direction;
        const uint32_t edge = std::min(kEdgeKhz, (whole.high - whole.low) / 4);
        limits.push_back({routes[i].band, routes[i].route, {whole.low + edge, whole.high - edge}});
    }
}

}  // namespace

void GenerateRoutes(const json &rule, SProfile &profile)
{
    CJsonReader reader(rule, "generate");
    const auto txRoutes = reader.Integer<uint16_t>("txRoutes", 0, kVondMaxTxRoutes);
    std::vector<uint32_t> regions;
    reader.Each("bwRegionsKhz", kVondMaxBwRegions,
                [&](const json &value, const std::string &place) {
                    regions.push_back(
                        static_cast<uint32_t>(CJsonReader::IntegerOf(value, place, 1, 400000)));
                });
    const auto type1 = reader.Integer<uint16_t>("rxType1Routes", 0, kVondMaxRxRoutes);
    const auto type2 = reader.Integer<uint16_t>("rxType2Routes", 0, kVondMaxRxRoutes);
    const auto gainMode = reader.Integer<uint8_t>("gainMode", 0, 255, uint8_t(0));
    const auto paired = reader.Integer<uint16_t>("pairedTxRoutes", 0, txRoutes, uint16_t(0));
    const auto limits = reader.Integer<uint16_t>("freqLimits", 0, kVondMaxFreqLimits, uint16_t(0));
    reader.Done();

    AddTxRoutes(profile, txRoutes, regions);
    AddRxRoutes(profile, {"rxType1Routes", 1, type1, kMostType1Pairs, 0, paired},
                profile.rxType1Routes);
    AddRxRoutes(
        profile,
        {"rxType2Routes", static_cast<uint16_t>(type1 + 1), type2, kMostType2Pairs, gainMode, 0},
        profile.rxType2Routes);
    AddLimits(profile, profile.txRoutes, &SProfileBand::uplink, limits, profile.txLimits);
    AddLimits(profile, profile.rxType1Routes, &SProfileBand::downlink, limits, profile.rxLimits);
}
