#include "Operations/calibration/CalComparison.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <map>
#include <span>
#include <tuple>
#include <utility>

#include "Operations/calibration/CalFieldName.h"
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

// Most parts are numbers of two bytes, millions of them.
bool IsSame(const uint8_t *one, const uint8_t *other, uint32_t size)
{
    constexpr uint32_t kWord = sizeof(uint16_t);
    return size == kWord ? std::memcmp(one, other, kWord) == 0 : std::memcmp(one, other, size) == 0;
}

// What ByField counts of a field.
struct SFieldSum
{
    const SField *field = nullptr;
    const SLayout *layout = nullptr;
    uint32_t offset = 0;  // of its first part that differs
    std::size_t count = 0;
    int64_t largest = 0;  // as the record has it
};

// Of each part of a kind's record, the place of its field among the kind's fields.
struct SFieldsOfKind
{
    std::vector<const SField *> fields;
    std::vector<uint16_t> ofPart;
};

const SFieldsOfKind &FieldsOf(ECalRoute kind)
{
    const auto make = [](ECalRoute of) {
        SFieldsOfKind made;
        std::map<const SField *, uint16_t> places;
        for (const SFoundField &part : PartsOf(of)) {
            const auto [place, isNew] =
                places.emplace(part.field, static_cast<uint16_t>(made.fields.size()));
            if (isNew)
                made.fields.push_back(part.field);
            made.ofPart.push_back(place->second);
        }
        return made;
    };
    static const SFieldsOfKind fieldsOfKinds[] = {make(ECalRoute::Tx), make(ECalRoute::Type1),
                                                  make(ECalRoute::Type2)};
    return fieldsOfKinds[static_cast<std::size_t>(kind)];
}

// Of numbers; 0 for what is none.
int64_t SizeOfDifference(const SFoundField &part, const uint8_t *left, const uint8_t *right)
{
    const EFieldType type = part.field->at.type;
    if (type == EFieldType::I16) {
        int16_t one = 0;
        int16_t other = 0;
        std::memcpy(&one, left, sizeof one);
        std::memcpy(&other, right, sizeof other);
        return std::abs(int{other} - int{one});
    }
    return std::abs(ReadNumber(type, {right, part.size}) - ReadNumber(type, {left, part.size}));
}

}  // namespace

CCalComparison::CCalComparison(SCalImage left, SCalImage right, double toleranceDb)
    : m_left(std::move(left)), m_right(std::move(right))
{
    PairRecords();
    for (uint32_t pair = 0; pair < m_pairs.size(); ++pair) {
        ComparePair(pair, toleranceDb);
        if (!m_runs.empty() && m_runs.back().first == m_parts.size())
            m_runs.pop_back();
    }
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
    m_runs.push_back({.pair = index, .first = m_parts.size()});
    if (IsLacking(pair)) {
        m_parts.push_back(0);
        return;
    }
    const SCalImageRecord &left = m_left.records[pair.left];
    const SCalImageRecord &right = m_right.records[pair.right];
    if (left.bytes == right.bytes)
        return;
    const std::vector<SFoundField> &parts = PartsOf(left.kind);
    const uint8_t *const one = left.bytes.data();
    const uint8_t *const other = right.bytes.data();
    const std::size_t first = m_parts.size();
    m_parts.resize(first + parts.size());  // room for all of them
    uint16_t *next = m_parts.data() + first;
    for (uint32_t i = 0; i < parts.size(); ++i) {
        const SFoundField &part = parts[i];
        if (IsSame(one + part.offset, other + part.offset, part.size))
            continue;
        if (toleranceDb <= 0) {
            *next++ = static_cast<uint16_t>(i);
            continue;
        }
        const bool isDecibel = part.field->unit.name == kDecibel;
        if (!isDecibel || std::abs(*DifferenceOf(pair, part)) > toleranceDb)
            *next++ = static_cast<uint16_t>(i);
    }
    m_parts.resize(static_cast<std::size_t>(next - m_parts.data()));
}

CCalComparison::SPlace CCalComparison::PlaceAt(std::size_t index) const
{
    const auto behind =
        std::upper_bound(m_runs.begin(), m_runs.end(), index,
                         [](std::size_t at, const SRun &run) { return at < run.first; });
    return {.pair = std::prev(behind)->pair, .part = m_parts[index]};
}

std::size_t CCalComparison::EndOf(std::size_t run) const
{
    return run + 1 < m_runs.size() ? m_runs[run + 1].first : m_parts.size();
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
    const SPlace place = PlaceAt(index);
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
    const SPlace place = PlaceAt(index);
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
    spot.difference = DifferenceOf(pair, part);
    return spot;
}

std::vector<SCalStatistic> CCalComparison::ByRoute() const
{
    std::vector<SCalStatistic> routes;
    for (std::size_t run = 0; run < m_runs.size(); ++run) {
        const SCalImageRecord &record = RecordOf(m_pairs[m_runs[run].pair]);
        routes.push_back({.name = RouteName(record.kind) + std::string(" ") +
                                  PlaceText(record.place, record.kind),
                          .record = m_runs[run].pair,
                          .count = EndOf(run) - m_runs[run].first});
    }
    return routes;
}

// A field is the row of the table, wherever it stands: all losses of all subbands are one.
std::vector<SCalStatistic> CCalComparison::ByField() const
{
    std::vector<SFieldSum> sums;
    std::map<const SField *, std::size_t> places;
    constexpr std::size_t kNone = SIZE_MAX;
    for (std::size_t run = 0; run < m_runs.size(); ++run) {
        const SPair &pair = m_pairs[m_runs[run].pair];
        if (IsLacking(pair))
            continue;
        const SCalImageRecord &left = m_left.records[pair.left];
        const uint8_t *const right = m_right.records[pair.right].bytes.data();
        const std::vector<SFoundField> &parts = PartsOf(left.kind);
        const SFieldsOfKind &fields = FieldsOf(left.kind);
        std::vector<std::size_t> sumOfField(fields.fields.size(), kNone);
        for (std::size_t i = m_runs[run].first; i < EndOf(run); ++i) {
            const SFoundField &part = parts[m_parts[i]];
            std::size_t &place = sumOfField[fields.ofPart[m_parts[i]]];
            if (place == kNone) {
                place = places.emplace(part.field, sums.size()).first->second;
                if (place == sums.size())
                    sums.push_back({.field = part.field,
                                    .layout = &CalRecordLayout(left.kind),
                                    .offset = part.offset});
            }
            SFieldSum &sum = sums[place];
            ++sum.count;
            sum.largest =
                std::max(sum.largest, SizeOfDifference(part, left.bytes.data() + part.offset,
                                                       right + part.offset));
        }
    }
    std::vector<SCalStatistic> statistics;
    for (const SFieldSum &sum : sums) {
        SCalStatistic statistic = {.name = SplitCalField(NameAt(*sum.layout, sum.offset)).name,
                                   .field = sum.field,
                                   .count = sum.count,
                                   .unit = sum.field->unit.name};
        if (SizeOf(sum.field->at.type) != 0)
            statistic.largest = static_cast<double>(sum.largest) / sum.field->unit.perUnit;
        statistics.push_back(std::move(statistic));
    }
    return statistics;
}
