// What a calibration item holds, record by record, and the way back to it.
#include "Operations/calibration/CalItemByL1Operation.h"

#include <set>

std::vector<SCalPlace> ICalItemByL1Operation::Places(ECalRoute kind) const
{
    const SMMRfRouteTableV7 *table = FindRouteTable();
    return table && AreaOf(kind) ? WalkRoutes(*table, kind) : std::vector<SCalPlace>();
}

CCalArea *ICalItemByL1Operation::AreaOf(ECalRoute kind) const
{
    for (const SPart &part : m_parts) {
        if (part.area->Kind() == kind)
            return part.area;
    }
    return nullptr;
}

std::optional<SCalState> ICalItemByL1Operation::StateOf(const SCalName &name) const
{
    const CCalArea *area = AreaOf(name.kind);
    if (!area)
        return std::nullopt;
    SCalPlace place;
    place.route = name.route;
    place.region = name.region;
    return SCalState{.name = name,
                     .isValid = area->IsValid(place),
                     .isEdited = area->IsEdited(place),
                     .bytes = area->Bytes(place)};
}

std::vector<SCalState> ICalItemByL1Operation::States() const
{
    std::vector<SCalState> states;
    for (const SPart &part : m_parts) {
        std::set<SCalName> seen;  // a route stands in the table once a band
        for (const SCalPlace &place : Places(part.area->Kind())) {
            const SCalName name = {part.area->Kind(), place.route, place.region};
            if (seen.insert(name).second)
                states.push_back(*StateOf(name));
        }
    }
    return states;
}

void ICalItemByL1Operation::Restore(const SCalState &state)
{
    SCalPlace place;
    place.route = state.name.route;
    place.region = state.name.region;
    if (CCalArea *area = AreaOf(state.name.kind))
        area->Restore(place, state);
}

SCalImage ICalItemByL1Operation::Arrived() const
{
    SCalImage image;
    for (const SPart &part : m_parts) {
        std::set<SCalName> seen;
        const ECalRoute kind = part.area->Kind();
        for (const SCalPlace &place : Places(kind)) {
            if (part.area->HasArrived(place) &&
                seen.insert({kind, place.route, place.region}).second)
                image.records.push_back({kind, place, part.area->Bytes(place)});
        }
    }
    return image;
}
