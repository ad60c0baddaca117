#include "Operations/calibration/CalComparison.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <span>
#include <tuple>
#include <utility>

#include "Trace/dictionary/Number.h"
#include "Trace/dictionary/ValueText.h"

namespace {

constexpr std::string_view kDecibel = "dB";

using RecordName = std::tuple<ECalRoute, uint16_t, int>;

RecordName NameOf(const SCalImageRecord &record)
{
    return {record.kind, record.place.route, record.place.region};
}

// Of a kind's record, in the order of the bytes; each is compared as one.
const std::vector<SFoundField> &PartsOf(ECalRoute kind)
{
    static const std::vector<SFoundField> partsOfKinds[] = {
        ElementsOf(CalRecordLayout(ECalRoute::Tx)),
        ElementsOf(CalRecordLayout(ECalRoute::Type1)),
        ElementsOf(CalRecordLayout(ECalRoute::Type2)),
    };
    return partsOfKinds[static_cast<std::size_t>(kind)];
}

std::span<const uint8_t> BytesOf(const SCalImageRecord &record, const SFoundField &part)
{
    return std::span(record.bytes).subspan(part.offset, part.size);
}

std::string WordsOf(const SCalImageRecord &record, const SFoundField &part)
{
    SFieldValue value;
    value.field = part.field;
    value.bytes = BytesOf(record, part);
    value.number = ReadNumber(part.field->at.type, value.bytes);
    return ValueText(value);
}

// "loss[3][16].hpm" becomes "loss.hpm".
std::string WithoutIndexes(const std::string &name)
{
    std::string bare;
    bool isIndex = false;
    for (const char character : name) {
        isIndex = isIndex || character == '[';
        if (!isIndex)
            bare += character;
        isIndex = isIndex && character != ']';
    }
    return bare;
}

}  // namespace

CCalComparison::CCalComparison(SCalImage left, SCalImage right, double toleranceDb)
    : m_left(std::move(left)), m_right(std::move(right))
{
    PairRecords();
    for (uint32_t pair = 0; pair < m_pairs.size(); ++pair)
        ComparePair(pair, toleranceDb);
}

void CCalComparison::PairRecords()
{
    std::map<RecordName, uint32_t> places;
    for (uint32_t i = 0; i < m_left.records.size(); ++i) {
        places.emplace(NameOf(m_left.records[i]), i);
        m_pairs.push_back({.left = i});
    }
    for (uint32_t i = 0; i < m_right.records.size(); ++i) {
        const auto found = places.find(NameOf(m_right.records[i]));
        if (found != places.end())
            m_pairs[found->second].right = i;
        else
            m_pairs.push_back({.right = i});
    }
}

bool CCalComparison::IsLacking(const SPair &pair)
{
    return pair.left == kNoRecord || pair.right == kNoRecord;
}

const SCalImageRecord &CCalComparison::RecordOf(const SPair &pair) const
{
    return pair.left != kNoRecord ? m_left.records[pair.left] : m_right.records[pair.right];
}

void CCalComparison::ComparePair(uint32_t index, double toleranceDb)
{
    const SPair &pair = m_pairs[index];
    if (IsLacking(pair)) {
        m_differences.push_back({index, 0});
        return;
    }
    const SCalImageRecord &left = m_left.records[pair.left];
    const SCalImageRecord &right = m_right.records[pair.right];
    if (left.bytes == right.bytes)
        return;
    const std::vector<SFoundField> &parts = PartsOf(left.kind);
    for (uint32_t i = 0; i < parts.size(); ++i) {
        const SFoundField &part = parts[i];
        const auto one = BytesOf(left, part);
        if (std::equal(one.begin(), one.end(), BytesOf(right, part).begin()))
            continue;
        const bool isDecibel = part.field->unit.name == kDecibel;
        if (!isDecibel || std::abs(*DifferenceOf(pair, part)) > toleranceDb)
            m_differences.push_back({index, i});
    }
}

const SFoundField &CCalComparison::PartAt(const SPlace &place) const
{
    return PartsOf(RecordOf(m_pairs[place.pair]).kind)[place.part];
}

std::optional<double> CCalComparison::DifferenceOf(const SPair &pair, const SFoundField &part) const
{
    const EFieldType type = part.field->at.type;
    if (IsLacking(pair) || SizeOf(type) == 0)
        return std::nullopt;
    const int64_t left = ReadNumber(type, BytesOf(m_left.records[pair.left], part));
    const int64_t right = ReadNumber(type, BytesOf(m_right.records[pair.right], part));
    return static_cast<double>(right - left) / part.field->unit.perUnit;
}

SCalDifference CCalComparison::At(std::size_t index) const
{
    const SPlace &place = m_differences[index];
    const SPair &pair = m_pairs[place.pair];
    const SCalImageRecord &record = RecordOf(pair);
    SCalDifference difference = {.kind = record.kind, .place = record.place};
    if (IsLacking(pair)) {
        difference.lack = pair.left == kNoRecord ? ECalLack::Left : ECalLack::Right;
        return difference;
    }
    const SFoundField &part = PartAt(place);
    difference.field = NameAt(CalRecordLayout(record.kind), part.offset);
    difference.left = WordsOf(m_left.records[pair.left], part);
    difference.right = WordsOf(m_right.records[pair.right], part);
    difference.difference = DifferenceOf(pair, part);
    difference.unit = part.field->unit.name;
    return difference;
}

SCalDifferenceSpot CCalComparison::SpotAt(std::size_t index) const
{
    const SPlace &place = m_differences[index];
    const SPair &pair = m_pairs[place.pair];
    if (IsLacking(pair))
        return {.record = place.pair};
    const SFoundField &part = PartAt(place);
    SCalDifferenceSpot spot = {.record = place.pair, .field = part.field, .offset = part.offset};
    const EFieldType type = part.field->at.type;
    if (SizeOf(type) == 0)
        return spot;
    const double perUnit = part.field->unit.perUnit;
    const auto inUnit = [&](const SCalImageRecord &record) {
        return static_cast<double>(ReadNumber(type, BytesOf(record, part))) / perUnit;
    };
    spot.left = inUnit(m_left.records[pair.left]);
    spot.right = inUnit(m_right.records[pair.right]);
    spot.difference = *spot.right - *spot.left;
    return spot;
}

std::vector<SCalStatistic> CCalComparison::ByRoute() const
{
    std::vector<SCalStatistic> routes;
    uint32_t last = kNoRecord;
    for (const SPlace &place : m_differences) {
        if (place.pair != last) {
            const SCalImageRecord &record = RecordOf(m_pairs[place.pair]);
            routes.push_back({.name = RouteName(record.kind) + std::string(" ") +
                                      PlaceText(record.place, record.kind),
                              .record = place.pair});
        }
        last = place.pair;
        ++routes.back().count;
    }
    return routes;
}

// A field is the row of the table, wherever it stands: all losses of all subbands are one.
std::vector<SCalStatistic> CCalComparison::ByField() const
{
    std::vector<SCalStatistic> fields;
    std::map<const SField *, std::size_t> places;
    for (const SPlace &place : m_differences) {
        const SPair &pair = m_pairs[place.pair];
        if (IsLacking(pair))
            continue;
        const SFoundField &part = PartAt(place);
        const auto [found, isNew] = places.emplace(part.field, fields.size());
        if (isNew) {
            const SLayout &layout = CalRecordLayout(RecordOf(pair).kind);
            fields.push_back({.name = WithoutIndexes(NameAt(layout, part.offset)),
                              .field = part.field,
                              .unit = part.field->unit.name});
        }
        SCalStatistic &statistic = fields[found->second];
        ++statistic.count;
        if (const auto difference = DifferenceOf(pair, part))
            statistic.largest = std::max(statistic.largest.value_or(0), std::abs(*difference));
    }
    return fields;
}
