#include "Operations/calibration/CalRoutes.h"

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

}  // namespace

int RouteRows(const SMMRfRouteTableV7 &table, ECalRoute kind)
{
    switch (kind) {
    case ECalRoute::Tx:
        return table.txRouteCount;
    case ECalRoute::Type1:
        return table.rxType1RouteCount;
    case ECalRoute::Type2:
        return table.rxType2RouteCount;
    }
    return 0;
}

std::vector<SCalPlace> WalkRoutes(const SMMRfRouteTableV7 &table, ECalRoute kind)
{
    switch (kind) {
    case ECalRoute::Tx:
        return WalkRegions(table);
    case ECalRoute::Type1:
        return WalkRows(table.rxType1Route, table.rxType1RouteCount);
    case ECalRoute::Type2:
        return WalkRows(table.rxType2Route, table.rxType2RouteCount);
    }
    return {};
}

std::string PlaceText(const SCalPlace &place, ECalRoute kind)
{
    const std::string route = std::to_string(place.route);
    return kind == ECalRoute::Tx ? route + " bw" + std::to_string(place.bwKhz) : route;
}
