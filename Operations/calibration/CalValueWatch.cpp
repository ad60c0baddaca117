#include "Operations/calibration/CalValueWatch.h"

#include <algorithm>

namespace {

// Band and route: a record takes them from its section's name, not from the values in the section.
constexpr ptrdiff_t kHead = 4;

std::string TextOf(ECalValue kind, int64_t value)
{
    std::string text;
    constexpr bool kIsLone = false;
    AppendCalValue(text, kind, value, kIsLone);
    return text;
}

}  // namespace

void CCalValueWatch::BeginRecord(ECalRoute kind, const SCalPlace &place, const void *record)
{
    m_kind = kind;
    m_place = place;
    m_record = static_cast<const char *>(record);
    m_count = 0;
    m_noNumberCount = 0;
    m_seen.clear();
}

void CCalValueWatch::BeginKey(const std::string &section, std::string_view key)
{
    m_section = &section;
    m_key = key;
}

void CCalValueWatch::See(CCalCell cell, std::string_view text, ECalValue kind, int64_t value,
                         bool isNumber)
{
    const ptrdiff_t offset = OffsetOf(cell);
    if (offset < kHead)
        return;
    const SCalShown *shown = ShownAt(offset);
    if (isNumber && IsShown(shown, value))
        return;
    ++m_count;
    m_noNumberCount += isNumber ? 0 : 1;
    if (m_remarks.oddValues.size() + m_seen.size() >= SCalMoveRemarks::kOddValuesKept)
        return;
    m_seen.push_back({{*m_section, std::string(m_key), std::string(text), {}, {}, shown != nullptr},
                      cell,
                      kind,
                      shown});
}

bool CCalValueWatch::AreFine(CCalCell first, size_t distance, std::span<const int64_t> values)
{
    if (!m_limits)
        return true;
    ptrdiff_t offset = OffsetOf(first);
    for (const int64_t value : values) {
        if (offset >= kHead && !IsShown(ShownAt(offset), value))
            return false;
        offset += static_cast<ptrdiff_t>(distance);
    }
    return true;
}

ptrdiff_t CCalValueWatch::OffsetOf(const CCalCell &cell) const
{
    return static_cast<const char *>(cell.Address()) - m_record;
}

const SCalShown *CCalValueWatch::ShownAt(ptrdiff_t offset) const
{
    return m_limits ? m_limits->Of(m_kind, m_place, static_cast<size_t>(offset)) : nullptr;
}

bool CCalValueWatch::IsShown(const SCalShown *shown, int64_t value)
{
    return !shown || (shown->isZeroFree && value == 0) ||
           (value >= shown->least && value <= shown->most);
}

void CCalValueWatch::EndRecord()
{
    m_remarks.oddValueCount += m_count;
    m_remarks.noNumberCount += m_noNumberCount;
    for (SSeen &seen : m_seen) {
        const int64_t value = seen.cell.Get();
        seen.value.memory = TextOf(seen.kind, value);
        seen.value.page = PageText(seen, value);
        m_remarks.oddValues.push_back(std::move(seen.value));
    }
    m_count = 0;
    m_noNumberCount = 0;
    m_seen.clear();
}

std::string CCalValueWatch::PageText(const SSeen &seen, int64_t value)
{
    if (!seen.shown)
        return {};
    const SCalShown &shown = *seen.shown;
    if (shown.isList && (value < shown.least || value > shown.most))
        return {};
    const int64_t held = std::clamp(value, shown.least, shown.most);
    return TextOf(seen.kind, held / shown.unit * shown.unit);
}
