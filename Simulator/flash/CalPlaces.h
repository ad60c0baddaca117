// Places of calibration data: which records a profile's DUT has, and what a record must fulfil.
//
// A record is the blocks of one route, and of one bandwidth region for APT. The wire names a record
// by route and bandwidth alone. So a route that stands on several bands has one record, and its
// blocks carry any one of these bands. The functions are templates over the block, which tells the
// kind (CalKinds.h). No state, no locks.
//
//   for (const SCalPlace &place : CalPlaces<SAptBlock>(profile))
//       if (place.key == key) ...
#pragma once

#include <string>
#include <vector>

#include "Simulator/profile/CalKinds.h"
#include "Simulator/profile/Profile.h"

struct SCalKey
{
    uint16_t route = 0;
    uint32_t bandwidth = 0;  // upper bound of the region, kHz; 0 for the path loss kinds

    bool operator==(const SCalKey &other) const
    {
        return route == other.route && bandwidth == other.bandwidth;
    }
    bool operator<(const SCalKey &other) const
    {
        return route != other.route ? route < other.route : bandwidth < other.bandwidth;
    }
};

// A row of the route tables, and of its regions for APT, as it stands on one band.
struct SCalPlace
{
    SCalKey key;
    uint16_t band = 0;
    int region = 0;      // index in the route's list, 0 for the path loss kinds
    SFreqLimits limits;  // of the route where it has some, otherwise of the band
};

// All places of a kind in the order of the route table.
template <class Block>
std::vector<SCalPlace> CalPlaces(const SProfile &profile);

// Why the DUT does not take the record, in at most 63 bytes; empty when it does. The block count
// must be within the record's, each block on a band of the route, each frequency 0 or within the
// limits there.
template <class Block>
std::string CheckCalRecord(const SProfile &profile, const SCalKey &key, const Block *blocks,
                           int count);
// The same for the name of a record and its block count alone.
template <class Block>
std::string CheckCalKey(const SProfile &profile, const SCalKey &key, int count);
