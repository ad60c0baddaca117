// What memory holds of a calibration record, valid or not: for whoever brings a record back to what it
// was. Plain values; a record has one name, whatever bands its route stands on.
//
//   const std::optional<SCalState> before = item.StateOf({ECalRoute::Tx, 7, 0});
//   ... item.LoadFromFile(&file) ...
//   item.Restore(*before);   // as if the file had not had it
#pragma once

#include <cstdint>
#include <tuple>
#include <vector>

#include "Operations/calibration/CalRoutes.h"

struct SCalName
{
    ECalRoute kind = ECalRoute::Tx;
    uint16_t route = 0;
    int region = 0;  // 0 on RX

    bool operator==(const SCalName &) const = default;
    friend bool operator<(const SCalName &one, const SCalName &other)
    {
        return std::tie(one.kind, one.route, one.region) <
               std::tie(other.kind, other.route, other.region);
    }
};

struct SCalState
{
    SCalName name = {};
    bool isValid = false;
    bool isEdited = false;            // by a user, and not valid
    std::vector<uint8_t> bytes = {};  // of the kind's record in CalRecords.h

    bool operator==(const SCalState &) const = default;
};
