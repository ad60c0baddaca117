// Calibration records of one kind of route in memory: one for each route number, or for each route
// number and bandwidth region, with a flag that tells whether it holds data.
//
// Only what was read from the target or a file is valid. Records are made once and keep their place
// for the life of the store. One thread at a time.
//
//   CCalStore<SAptRouteBwRecord> store(VOND_MAX_BW_REGIONS);
//   if (SAptRouteBwRecord *record = store.Find(7, 0))
//       record->couplerLoss[0] = 16;
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "Operations/CalRoutes.h"
#include "Vond/VondCalBlocks.h"

template <typename Record>
class CCalStore
{
public:
    explicit CCalStore(int recordsOfRoute = 1)
        : m_recordsOfRoute(recordsOfRoute),
          m_records(static_cast<size_t>(kCalRoutes) * recordsOfRoute), m_valid(m_records.size())
    {
    }

    // Null for a route or region that has no record.
    const Record *Find(int route, int region = 0) const
    {
        return Has(route, region) ? &m_records[Index(route, region)] : nullptr;
    }
    Record *Find(int route, int region = 0)
    {
        return Has(route, region) ? &m_records[Index(route, region)] : nullptr;
    }

    // The record of a place in the walk, which has one.
    const Record &At(const SCalPlace &place) const { return m_records[Index(place)]; }
    Record &At(const SCalPlace &place) { return m_records[Index(place)]; }

    bool IsValid(const SCalPlace &place) const { return m_valid[Index(place)] != 0; }
    void SetValid(const SCalPlace &place) { m_valid[Index(place)] = 1; }
    bool HasValid() const { return std::find(m_valid.begin(), m_valid.end(), 1) != m_valid.end(); }
    void Invalidate() { std::fill(m_valid.begin(), m_valid.end(), uint8_t(0)); }

    // Takes a record over as the store can hold it; false for a route or region without one. Does
    // not make it valid.
    bool Put(int route, int region, const Record &record)
    {
        if (!Has(route, region))
            return false;
        Record &own = m_records[Index(route, region)];
        own = record;
        own.blockCount = std::min<uint32_t>(own.blockCount, VOND_CAL_MAX_BLOCKS);
        return true;
    }

private:
    bool Has(int route, int region) const
    {
        return route >= 0 && route < kCalRoutes && region >= 0 && region < m_recordsOfRoute;
    }
    size_t Index(int route, int region) const
    {
        return static_cast<size_t>(route) * m_recordsOfRoute + region;
    }
    size_t Index(const SCalPlace &place) const { return Index(place.route, place.region); }

    int m_recordsOfRoute;
    std::vector<Record> m_records;
    std::vector<uint8_t> m_valid;
};
