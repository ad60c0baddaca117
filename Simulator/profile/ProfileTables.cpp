#include "Simulator/profile/ProfileTables.h"

#include <iterator>
#include <set>
#include <utility>

#include "Simulator/profile/ProfileGenerator.h"

using nlohmann::json;

namespace {

constexpr std::size_t kLongestPort = sizeof(STxBwRegionHw::port) - 1;
constexpr uint16_t kMost = 65535;

SFreqLimits ReadLimits(const json &value, const std::string &place)
{
    if (!value.is_array() || value.size() != 2)
        CJsonReader::Fail(place, "is not a pair [low, high] in kHz");
    SFreqLimits limits;
    limits.low =
        static_cast<uint32_t>(CJsonReader::IntegerOf(value[0], place + "[0]", 1, INT32_MAX));
    limits.high = static_cast<uint32_t>(
        CJsonReader::IntegerOf(value[1], place + "[1]", limits.low, INT32_MAX));
    return limits;
}

SFreqLimits ReadDirection(CJsonReader &reader, const char *key, const SFreqLimits &fallback)
{
    return reader.Has(key) ? ReadLimits(reader.Take(key), reader.Place(key)) : fallback;
}

std::vector<uint16_t> ReadNumbers(CJsonReader &reader, const char *key, std::size_t most)
{
    std::vector<uint16_t> numbers;
    reader.Each(key, most, [&](const json &value, const std::string &place) {
        numbers.push_back(static_cast<uint16_t>(CJsonReader::IntegerOf(value, place, 0, kMost)));
    });
    return numbers;
}

void ReadHardwareHead(CJsonReader &reader, SProfileHardware &hardware, std::size_t mimoPairs)
{
    hardware.antMask = reader.Integer<uint32_t>("antMask", 0, UINT32_MAX);
    hardware.feRoute = reader.Integer<uint16_t>("feRoute", 0, kMost);
    hardware.mimoPairs = ReadNumbers(reader, "mimoPairs", mimoPairs);
}

SProfileTxRoute ReadTxRoute(const json &entry, const std::string &place)
{
    SProfileTxRoute row;
    CJsonReader reader(entry, place);
    row.band = reader.Integer<uint16_t>("band", 1, kMost);
    row.route = reader.Integer<uint16_t>("route", 0, kMost);
    reader.Each("regions", kVondMaxBwRegions, [&](const json &value, const std::string &where) {
        SProfileBwRegion region;
        CJsonReader part(value, where);
        region.kHz = part.Integer<uint32_t>("kHz", 1, UINT32_MAX);
        ReadHardwareHead(part, region.hardware, std::size(STxBwRegionHw{}.mimoPair));
        region.hardware.port[0] = part.Text("port", kLongestPort);
        region.hardware.path[0] = part.Integer<uint8_t>("stx", 0, 255);
        part.Done();
        row.regions.push_back(region);
    });
    reader.Done();
    return row;
}

// A fixed-size array of a JSON object, such as the two ports of a route.
template <class Use>
void ReadExactly(CJsonReader &reader, const char *key, std::size_t count, const Use &use)
{
    std::size_t index = 0;
    reader.Each(key, count,
                [&](const json &value, const std::string &place) { use(index++, value, place); });
    if (index != count)
        CJsonReader::Fail(reader.Place(key), "needs " + std::to_string(count) + " entries");
}

SProfileRxRoute ReadRxRoute(const json &entry, const std::string &place, bool type2)
{
    SProfileRxRoute row;
    CJsonReader reader(entry, place);
    row.band = reader.Integer<uint16_t>("band", 1, kMost);
    row.route = reader.Integer<uint16_t>("route", 0, kMost);
    SProfileHardware &hardware = row.hardware;
    ReadHardwareHead(reader, hardware,
                     type2 ? std::size(decltype(SRxRouteHw::type2){}.mimoPair)
                           : std::size(decltype(SRxRouteHw::type1){}.mimoPair));
    ReadExactly(reader, "ports", 2, [&](std::size_t i, const json &value, const std::string &at) {
        hardware.port[i] = CJsonReader::TextOf(value, at, kLongestPort);
    });
    if (type2) {
        row.gainMode = reader.Integer<uint8_t>("gainMode", 0, 255, uint8_t(0));
        ReadExactly(reader, "srx", 2, [&](std::size_t i, const json &value, const std::string &at) {
            hardware.path[i] = static_cast<uint8_t>(CJsonReader::IntegerOf(value, at, 0, 255));
        });
    } else {
        hardware.path[0] = reader.Integer<uint8_t>("srx", 0, 255);
    }
    row.txRoutes = ReadNumbers(reader, "txRoutes", kVondMaxRouteValues);
    reader.Done();
    return row;
}

void ReadRouteLimits(CJsonReader &reader, const char *key, std::vector<SProfileRouteLimits> &rows)
{
    reader.Each(key, kVondMaxFreqLimits, [&](const json &entry, const std::string &place) {
        SProfileRouteLimits row;
        CJsonReader part(entry, place);
        row.band = part.Integer<uint16_t>("band", 1, kMost);
        row.route = part.Integer<uint16_t>("route", 0, kMost);
        row.limits = ReadLimits(part.Take("kHz"), part.Place("kHz"));
        part.Done();
        rows.push_back(row);
    });
}

// Three characters of 0 and 1 from a text, such as "110".
void ReadBits(const std::string &text, const std::string &place, std::size_t from,
              uint8_t (&bits)[3])
{
    for (std::size_t i = 0; i < 3; ++i) {
        const char bit = from + i < text.size() ? text[from + i] : ' ';
        if (bit != '0' && bit != '1')
            CJsonReader::Fail(place, "is not made of groups of three 0 or 1");
        bits[i] = static_cast<uint8_t>(bit - '0');
    }
}

void ReadGainMode(const json &entry, const std::string &place, SMMRfRxGainInfoV7 &gain)
{
    CJsonReader reader(entry, place);
    ReadExactly(reader, "t1", 7, [&](std::size_t i, const json &value, const std::string &at) {
        const std::string text = CJsonReader::TextOf(value, at, 3);
        ReadBits(text, at, 0, gain.t1[i]);
    });
    ReadExactly(reader, "t2", 7, [&](std::size_t i, const json &value, const std::string &at) {
        const std::string text = CJsonReader::TextOf(value, at, 11);
        for (std::size_t g = 0; g < 3; ++g)
            ReadBits(text, at, g * 4, gain.t2[i][g]);
        if (text[3] != ' ' || text[7] != ' ')
            CJsonReader::Fail(at, "needs one blank between its groups");
    });
    reader.Done();
}

template <class Route>
void CheckRoutes(const SProfile &profile, const char *table, const std::vector<Route> &routes,
                 SFreqLimits SProfileBand::*direction)
{
    std::set<std::pair<uint16_t, uint16_t>> seen;
    for (std::size_t i = 0; i < routes.size(); ++i) {
        const std::string place = std::string(table) + "[" + std::to_string(i) + "]";
        const SProfileBand *band = FindBand(profile, routes[i].band);
        if (band == nullptr)
            CJsonReader::Fail(place, "band " + std::to_string(routes[i].band) + " is not listed");
        if (!(band->*direction).Exists())
            CJsonReader::Fail(place, "band " + std::to_string(routes[i].band) +
                                         " does not have that direction");
        if (!seen.emplace(routes[i].band, routes[i].route).second)
            CJsonReader::Fail(place, "route " + std::to_string(routes[i].route) +
                                         " stands twice on band " + std::to_string(routes[i].band));
    }
}

std::size_t CheckPairing(const SProfile &profile, const char *table,
                         const std::vector<SProfileRxRoute> &routes)
{
    std::size_t paired = 0;
    for (const SProfileRxRoute &row : routes) {
        for (const uint16_t tx : row.txRoutes) {
            if (FindRoute(profile.txRoutes, tx) == nullptr)
                CJsonReader::Fail(table, "route " + std::to_string(row.route) +
                                             " pairs with unknown TX route " + std::to_string(tx));
        }
        paired += row.txRoutes.empty() ? 0 : 1;
    }
    return paired;
}

}  // namespace

void ReadBands(CJsonReader &reader, SProfile &profile)
{
    reader.Each("bands", kVondMaxBands, [&](const json &entry, const std::string &place) {
        SProfileBand row;
        CJsonReader part(entry, place);
        row.band = part.Integer<uint16_t>("band", 1, kMost);
        row.downlinkOnly = part.Boolean("downlinkOnly", false);
        row.uplinkOnly = part.Boolean("uplinkOnly", false);
        row.ulMimo = part.Boolean("ulMimo", false);
        row.rx4x4 = part.Boolean("rx4x4", false);
        const SBandRow *standard = FindBandRow(row.band);
        row.uplink = ReadDirection(part, "uplink", standard ? standard->uplink : SFreqLimits());
        row.downlink =
            ReadDirection(part, "downlink", standard ? standard->downlink : SFreqLimits());
        part.Done();
        if (!row.uplink.Exists() && !row.downlink.Exists())
            CJsonReader::Fail(place, "is no 3GPP band and has no frequency limits");
        if ((row.downlinkOnly && row.uplink.Exists()) || (row.uplinkOnly && row.downlink.Exists()))
            CJsonReader::Fail(place, "has limits in the direction that its flag rules out");
        if (FindBand(profile, row.band) != nullptr)
            CJsonReader::Fail(place, "band " + std::to_string(row.band) + " is listed twice");
        profile.bands.push_back(row);
    });
}

void ReadRoutes(CJsonReader &reader, SProfile &profile)
{
    const json *rule = reader.Has("generate") ? &reader.Take("generate") : nullptr;
    if (rule != nullptr)
        GenerateRoutes(*rule, profile);
    const auto own = [&](const char *key) {
        if (rule != nullptr && reader.Has(key))
            CJsonReader::Fail(key, "cannot stand beside \"generate\"");
    };
    for (const char *key : {"txRoutes", "rxType1Routes", "rxType2Routes", "txLimits", "rxLimits"})
        own(key);
    reader.Each("txRoutes", kVondMaxTxRoutes, [&](const json &entry, const std::string &place) {
        profile.txRoutes.push_back(ReadTxRoute(entry, place));
    });
    reader.Each("rxType1Routes", kVondMaxRxRoutes,
                [&](const json &entry, const std::string &place) {
                    profile.rxType1Routes.push_back(ReadRxRoute(entry, place, false));
                });
    reader.Each("rxType2Routes", kVondMaxRxRoutes,
                [&](const json &entry, const std::string &place) {
                    profile.rxType2Routes.push_back(ReadRxRoute(entry, place, true));
                });
    ReadRouteLimits(reader, "txLimits", profile.txLimits);
    ReadRouteLimits(reader, "rxLimits", profile.rxLimits);
}

void ReadGainTables(CJsonReader &reader, SProfile &profile)
{
    if (!reader.Has("gain"))
        return;
    CJsonReader part(reader.Take("gain"), "gain");
    ReadGainMode(part.Take("hpm"), "gain.hpm", profile.gain[0]);
    ReadGainMode(part.Take("lpm"), "gain.lpm", profile.gain[1]);
    part.Done();
}

void CheckTables(const SProfile &profile)
{
    CheckRoutes(profile, "txRoutes", profile.txRoutes, &SProfileBand::uplink);
    CheckRoutes(profile, "rxType1Routes", profile.rxType1Routes, &SProfileBand::downlink);
    CheckRoutes(profile, "rxType2Routes", profile.rxType2Routes, &SProfileBand::downlink);
    CheckRoutes(profile, "txLimits", profile.txLimits, &SProfileBand::uplink);
    CheckRoutes(profile, "rxLimits", profile.rxLimits, &SProfileBand::downlink);
    const std::size_t paired = CheckPairing(profile, "rxType1Routes", profile.rxType1Routes) +
                               CheckPairing(profile, "rxType2Routes", profile.rxType2Routes);
    if (paired > kVondMaxRxRoutes)
        CJsonReader::Fail("rxType2Routes", std::to_string(paired) +
                                               " RX routes have TX routes, at most " +
                                               std::to_string(kVondMaxRxRoutes) + " fit");
}
