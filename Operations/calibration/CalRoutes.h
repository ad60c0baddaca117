// The kinds of route that have calibration records, and the walk over a route table that all moves
// share: one place for each record of a kind, in the order of the table.
//
// What is known of a kind is its row in CalRoutes.cpp.
//
// A route may stand in a table more than once, on several bands: it has several places then, but
// the one record of its number. Pure functions, any thread.
//
//   for (const SCalPlace &place : WalkRoutes(*table, ECalRoute::Tx))
//       ... place.route, place.region
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Vond/VondCapabilityRecords.h"

enum class ECalRoute
{
    Tx,     // a record for each bandwidth region of a route
    Type1,  // a record for each route
    Type2,
    Count,
};

struct SCalPlace
{
    uint16_t band = 0;
    uint16_t route = 0;
    int region = 0;      // index of the bandwidth region; 0 on RX
    int regions = 1;     // bandwidth regions of the route; 1 on RX
    uint32_t bwKhz = 0;  // upper bound of that region; 0 on RX
    int ordinal = 0;     // position of the route among the routes of its band in this table
    int row = 0;         // row of the table
};

const char *RouteName(ECalRoute kind);  // "TX", "T1", "T2"
bool HasRegions(ECalRoute kind);
int RouteRows(const SMMRfRouteTableV7 &table, ECalRoute kind);
std::vector<SCalPlace> WalkRoutes(const SMMRfRouteTableV7 &table, ECalRoute kind);

// "7", on TX "7 bw100000", as the log has it.
std::string PlaceText(const SCalPlace &place, ECalRoute kind);
