// Watches the values of a file while a load reads them, and finds those that are no numbers or that
// the page can't show.
//
// A value is odd when its text is no number, or when its number is beyond what the page's editor
// can show. The watch changes nothing: the record takes the value in any case. The core tells what
// the pages can show. The odd values of a record count when the record is taken over. One thread,
// the worker's.
//
//   CCalValueWatch watch(limits, remarks);
//   watch.BeginRecord(ECalRoute::Tx, place, &record);
//   watch.BeginKey(section, "Temperature Index");
//   CCalCells(record.normalTempIndex).Read(text, ECalValue::Number, &watch);
//   watch.EndRecord();
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "Operations/calibration/CalCells.h"
#include "Operations/calibration/CalRemarks.h"

// What the page's editor of a field shows, in the units of the record.
struct SCalShown
{
    int64_t least;
    int64_t most;
    bool isList = false;      // shows nothing beyond, where others stop at their limits
    int64_t unit = 1;         // shows whole multiples alone
    bool isZeroFree = false;  // 0 stands for an unused place
};

class ICalPageLimits
{
public:
    virtual ~ICalPageLimits() = default;
    // What is shown of the field at an offset in the record, in bytes; null: the field is not on
    // the page.
    virtual const SCalShown *Of(ECalRoute kind, const SCalPlace &place, size_t offset) = 0;
};

class CCalValueWatch : public ICalCellWatch
{
public:
    // limits: null where none are known.
    CCalValueWatch(ICalPageLimits *limits, SCalMoveRemarks &remarks)
        : m_limits(limits), m_remarks(remarks)
    {
    }

    void BeginRecord(ECalRoute kind, const SCalPlace &place, const void *record);
    void BeginKey(const std::string &section, std::string_view key);
    void See(CCalCell cell, std::string_view text, ECalValue kind, int64_t value,
             bool isNumber) override;
    bool AreFine(CCalCell first, size_t distance, std::span<const int64_t> values) override;
    // The record is complete and about to be taken over.
    void EndRecord();

private:
    struct SSeen
    {
        SCalOddValue value;
        CCalCell cell;
        ECalValue kind;
        const SCalShown *shown;
    };

    ptrdiff_t OffsetOf(const CCalCell &cell) const;
    // What is shown of a field of the record; null where that is not known.
    const SCalShown *ShownAt(ptrdiff_t offset) const;
    static bool IsShown(const SCalShown *shown, int64_t value);
    static std::string PageText(const SSeen &seen, int64_t value);

    ICalPageLimits *m_limits;
    SCalMoveRemarks &m_remarks;
    ECalRoute m_kind = ECalRoute::Tx;
    SCalPlace m_place;
    const char *m_record = nullptr;
    const std::string *m_section = nullptr;
    std::string_view m_key;
    int m_count = 0;  // of the record
    int m_noNumberCount = 0;
    std::vector<SSeen> m_seen;
};
