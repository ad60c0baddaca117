// Calibration records of one kind of route in memory: one for each route number, or for each route
// number and bandwidth region, with a flag that tells whether it holds data.
//
// A record is valid once it was read from the target or a file, and stays so. A second flag tells
// that a user has edited a record that is not valid yet. A record is made, all 0, when it is first
// asked for, and keeps its address for the life of the store. One thread at a time.
//
//   CCalStore<SAptRouteBwRecord> store(kVondMaxBwRegions);
//   const SAptRouteBwRecord *record = store.Find(7, 0);
#pragma once

#include <algorithm>
#include <cstdint>
#include <map>

#include "Operations/calibration/CalRoutes.h"
#include "Vond/VondCalBlocks.h"

template <typename Record>
class CCalStore
{
public:
    explicit CCalStore(int recordsOfRoute = 1) : m_recordsOfRoute(recordsOfRoute) {}
    CCalStore(const CCalStore &) = delete;
    CCalStore &operator=(const CCalStore &) = delete;

    // Null for a region that has no record.
    const Record *Find(uint16_t route, int region = 0) const
    {
        return Has(region) ? &m_slots[Key(route, region)].record : nullptr;
    }
    // Takes a record over, with no more than 4 blocks; false for a region that has no record. Does
    // not make it valid.
    bool Put(uint16_t route, int region, const Record &record)
    {
        if (!Has(region))
            return false;
        Record &own = m_slots[Key(route, region)].record;
        own = record;
        own.blockCount = std::min<uint32_t>(own.blockCount, kVondCalMaxBlocks);
        return true;
    }

    // The record of a place in the walk over the route table, which has one.
    Record &At(const SCalPlace &place) { return m_slots[Key(place)].record; }

    bool IsValid(const SCalPlace &place) const
    {
        const auto slot = m_slots.find(Key(place));
        return slot != m_slots.end() && slot->second.valid;
    }
    void SetValid(const SCalPlace &place)
    {
        m_slots[Key(place)].valid = true;
        m_slots[Key(place)].edited = false;
        m_slots[Key(place)].arrived = true;
    }
    // Filled since ForgetArrivals.
    bool HasArrived(const SCalPlace &place) const
    {
        const auto slot = m_slots.find(Key(place));
        return slot != m_slots.end() && slot->second.arrived;
    }
    void ForgetArrivals()
    {
        for (auto &slot : m_slots)
            slot.second.arrived = false;
    }
    // Brings a record back, with its flags.
    void Restore(const SCalPlace &place, const Record &record, bool isValid, bool isEdited)
    {
        SSlot &slot = m_slots[Key(place)];
        slot.record = record;
        slot.valid = isValid;
        slot.edited = isEdited;
    }
    // Edited by a user, and never filled.
    bool IsEdited(const SCalPlace &place) const
    {
        const auto slot = m_slots.find(Key(place));
        return slot != m_slots.end() && slot->second.edited;
    }
    void NoteEdit(uint16_t route, int region = 0)
    {
        if (Has(region) && !m_slots[Key(route, region)].valid)
            m_slots[Key(route, region)].edited = true;
    }
    // No record is valid or edited any more; they keep their bytes.
    void Forget()
    {
        for (auto &slot : m_slots)
            slot.second.valid = slot.second.edited = false;
    }
    bool HasValid() const
    {
        return std::any_of(m_slots.begin(), m_slots.end(),
                           [](const auto &slot) { return slot.second.valid; });
    }

private:
    struct SSlot
    {
        Record record = {};
        bool valid = false;
        bool edited = false;   // without being valid
        bool arrived = false;  // by the last move
    };

    bool Has(int region) const { return region >= 0 && region < m_recordsOfRoute; }
    int Key(uint16_t route, int region) const { return route * m_recordsOfRoute + region; }
    int Key(const SCalPlace &place) const { return Key(place.route, place.region); }

    int m_recordsOfRoute;
    mutable std::map<int, SSlot> m_slots;  // made on demand, also by a look
};
