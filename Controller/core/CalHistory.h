// What a calibration item's memory was: the base, which is what the last Read or Import brought, record
// by record; where memory differs from it; and the changes that can be taken back.
//
// A record that never came in has no base and counts as unchanged. Records that a failed flow brought
// are the base of these records. A step that is taken back takes its base along.
//
// The count of changed cells is kept a record, and made anew for the records that a step touches. Two
// things are compared byte by byte first, and field by field when that fails; the block count is no cell.
//
// Belongs to the item's records and is used under their lock. Learn, BeginFlow and EndFlow ask for the
// route table, so they run under the core's lock; the others work on memory alone.
//
//   history.BeginFlow(item, document);
//   item.UploadFromFlash();
//   const CalChange change = history.EndFlow(item);
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "Controller/core/CalChange.h"
#include "Operations/calibration/CalItemByL1Operation.h"

class CCalHistory
{
public:
    using Item = ICalItemByL1Operation;

    // base: an item of the same kind, without a valid record. connection: a number of the DUT.
    CCalHistory(std::unique_ptr<Item> base, uint64_t connection);

    // The places of the route table, once it is known.
    void Learn();
    // True for a record that the route table has.
    bool Knows(const SCalName &name) const { return m_names.count(name) > 0; }
    const std::vector<SCalPlace> &Places(ECalRoute kind) { return m_places[kind]; }

    // storePage: takes what the page shows into the item; it is taken out again, but counts as what
    // the flow replaces.
    void BeginFlow(Item &item, const std::function<void()> &storePage);
    // Of a flow that fills records, good or bad: the records that came in are the new base.
    CalChange EndFlow(const Item &item);

    // Runs a step that changes these records of the item; what it did.
    CalChange Change(Item &item, const std::vector<SCalName> &names,
                     const std::function<void()> &step);
    // Changes all of these records back to the base, if they have one.
    void Revert(Item &item, const std::vector<SCalName> &names) const;
    std::vector<SCalName> ChangedNames() const;
    // A change of another DUT does nothing.
    void Apply(Item &item, const SCalChange &change, ECalWay way);

    const Item &Base() const { return *m_base; }
    // Cells of all records that differ from the base.
    int Count() const;
    int CountOf(const SCalName &name) const;
    void Recount(const Item &item, const SCalName &name);

private:
    int Compare(const Item &item, const SCalName &name) const;

    const std::unique_ptr<Item> m_base;
    const uint64_t m_connection;
    std::map<SCalName, int> m_names;  // with the cells that differ
    std::map<ECalRoute, std::vector<SCalPlace>> m_places;
    std::vector<SCalState> m_before;  // of the flow that runs
};
