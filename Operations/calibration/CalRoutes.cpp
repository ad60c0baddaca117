#include "Operations/calibration/CalRoutes.h"

#include <array>
#include <map>

namespace {

template <typename Row>
std::vector<SCalPlace> WalkRows(const Row *rows, int count)
{
    std::vector<SCalPlace> places;
    std::map<uint16_t, int> routesOfBand;
    for (int row = 0; row < count; ++row) {
        SCalPlace place;
        place.band = rows[row].band;
        place.route = rows[row].route;
        place.ordinal = routesOfBand[place.band]++;
        place.row = row;
        places.push_back(place);
    }
    return places;
}

std::vector<SCalPlace> WalkRegions(const SMMRfRouteTableV7 &table)
{
    std::vector<SCalPlace> places;
    for (SCalPlace place : WalkRows(table.txRoute, table.txRouteCount)) {
        const SMMRfTxRouteV7 &route = table.txRoute[place.row];
        place.regions = route.bwRegionCount;
        for (place.region = 0; place.region < route.bwRegionCount; ++place.region) {
            place.bwKhz = route.bwRegionKhz[place.region];
            places.push_back(place);
        }
    }
    return places;
}

struct SRouteKind
{
    ECalRoute id;
    const char *name;
    bool hasRegions;
    int (*rows)(const SMMRfRouteTableV7 &table);
    std::vector<SCalPlace> (*walk)(const SMMRfRouteTableV7 &table);
};

constexpr std::array<SRouteKind, static_cast<size_t>(ECalRoute::Count)> kKinds = {
    SRouteKind{.id = ECalRoute::Tx,
               .name = "TX",
               .hasRegions = true,
               .rows = [](const SMMRfRouteTableV7 &table) -> int { return table.txRouteCount; },
               .walk = &WalkRegions},
    SRouteKind{
        .id = ECalRoute::Type1,
        .name = "T1",
        .hasRegions = false,
        .rows = [](const SMMRfRouteTableV7 &table) -> int { return table.rxType1RouteCount; },
        .walk =
            [](const SMMRfRouteTableV7 &table) {
                return WalkRows(table.rxType1Route, table.rxType1RouteCount);
            }},
    SRouteKind{
        .id = ECalRoute::Type2,
        .name = "T2",
        .hasRegions = false,
        .rows = [](const SMMRfRouteTableV7 &table) -> int { return table.rxType2RouteCount; },
        .walk =
            [](const SMMRfRouteTableV7 &table) {
                return WalkRows(table.rxType2Route, table.rxType2RouteCount);
            }},
};

constexpr bool PositionsAreIds()
{
    for (size_t i = 0; i < kKinds.size(); ++i) {
        if (static_cast<size_t>(kKinds[i].id) != i)
            return false;
    }
    return true;
}
static_assert(PositionsAreIds(), "kKinds is indexed by kind");

const SRouteKind &Find(ECalRoute kind)
{
    return kKinds[static_cast<size_t>(kind)];
}

}  // namespace

const char *RouteName(ECalRoute kind)
{
    return Find(kind).name;
}

bool HasRegions(ECalRoute kind)
{
    return Find(kind).hasRegions;
}

int RouteRows(const SMMRfRouteTableV7 &table, ECalRoute kind)
{
    return Find(kind).rows(table);
}

std::vector<SCalPlace> WalkRoutes(const SMMRfRouteTableV7 &table, ECalRoute kind)
{
    return Find(kind).walk(table);
}

std::string PlaceText(const SCalPlace &place, ECalRoute kind)
{
    const std::string route = std::to_string(place.route);
    return HasRegions(kind) ? route + " bw" + std::to_string(place.bwKhz) : route;
}
