#include "Controller/calibration/CalCellPlaces.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "Controller/calibration/CalEditor.h"
#include "Controller/calibration/CalWalks.h"

namespace {

// Looks for the field at an offset of the record that is walked.
class CPlaceFinder : public ICalMove
{
public:
    CPlaceFinder(const void *record, uint32_t offset)
        : m_wanted(static_cast<const char *>(record) + offset)
    {
    }

    void Field(const SCalField &field) override
    {
        for (int i = 0; i < std::max(field.columns, 1) && !IsFound(); ++i) {
            if (field.cell(i).Address() == m_wanted)
                Take(field.group, field.member, i);
        }
    }
    void Frequencies(const SCalFrequencies &frequencies) override
    {
        for (int i = 0; i < kVondCalMaxSubbands && !IsFound(); ++i) {
            if (static_cast<const void *>(&frequencies.freq[i]) == m_wanted)
                Take(frequencies.group, QString::fromLatin1(frequencies.member), i);
        }
    }

    bool IsFound() const { return !m_member.isEmpty(); }
    void WriteTo(SCalCellPlace &place) const
    {
        place.member = m_member;
        place.column = m_column;
    }

private:
    void Take(const char *group, const QString &member, int column)
    {
        m_member = PropertyPath(group, member);
        m_column = column;
    }

    const void *const m_wanted;
    QString m_member;
    int m_column = 0;
};

struct SMode
{
    int16_t SMMLossPair::*half;
    const char *name;
};
constexpr SMode kModes[] = {{&SMMLossPair::hpm, "HPM"}, {&SMMLossPair::lpm, "LPM"}};

void Choose(SCalCellPlace &place, const char *member, const QString &text)
{
    place.selection.append({QString::fromLatin1(member), text});
}

template <typename Record>
bool IsLoss(uint32_t offset)
{
    return offset >= offsetof(Record, loss) &&
           offset < offsetof(Record, loss) + sizeof(Record::loss);
}

void FindInApt(SCalCellPlace &place, uint32_t offset)
{
    SAptRouteBwRecord record = {};
    CPlaceFinder finder(&record, offset);
    MoveApt(finder, record);
    finder.WriteTo(place);
}

void FindInType1(SCalCellPlace &place, uint32_t offset)
{
    const auto record = std::make_unique<SMMType1PathlossByRouteV7>();
    for (const SMode &mode : kModes) {
        CPlaceFinder finder(record.get(), offset);
        MoveType1(finder, *record, {.half = mode.half});
        if (!finder.IsFound())
            continue;
        if (IsLoss<SMMType1PathlossByRouteV7>(offset))
            Choose(place, "powerMode", QLatin1String(mode.name));
        finder.WriteTo(place);
        return;
    }
}

// What a page shows of a type 2 route's losses, one after another.
std::vector<std::pair<SLossView, const char *>> Type2Views(int freqIdx)
{
    std::vector<std::pair<SLossView, const char *>> views;
    for (const SMode &mode : kModes) {
        for (int path = 0; path < kVondSrxPaths; ++path) {
            for (int bigG = 0; bigG < kVondGainRows; ++bigG)
                views.push_back(
                    {{.half = mode.half, .freqIdx = freqIdx, .path = path, .bigG = bigG},
                     mode.name});
        }
    }
    return views;
}

void FindInType2(SCalCellPlace &place, uint32_t offset)
{
    using Record = SMMType2PathlossByRouteV7;
    const auto record = std::make_unique<Record>();
    const bool isLoss = IsLoss<Record>(offset);
    const int freqIdx =
        isLoss ? static_cast<int>((offset - offsetof(Record, loss)) / sizeof(Record::loss[0])) : 0;
    for (const auto &[view, mode] : Type2Views(freqIdx)) {
        CPlaceFinder finder(record.get(), offset);
        MoveType2(finder, *record, view);
        if (!finder.IsFound())
            continue;
        if (isLoss) {
            Choose(place, "powerMode", QLatin1String(mode));
            Choose(place, "freqIdx", QString::number(view.freqIdx));
            Choose(place, "path", QString::number(view.path));
            Choose(place, "type2GainModeIdx", QLatin1Char('G') + QString::number(view.bigG));
        }
        finder.WriteTo(place);
        return;
    }
}

}  // namespace

SCalCellPlace CalRecordPlaceOf(ECalRoute kind, const SCalPlace &place)
{
    SCalCellPlace cell;
    Choose(cell, "band", QLatin1Char('n') + QString::number(place.band));
    if (kind == ECalRoute::Tx) {
        Choose(cell, "txRoute", QString::number(place.route));
        Choose(cell, "aggBwRegion", QLatin1String("BW") + QString::number(place.region));
    } else {
        Choose(cell, "routeType", QLatin1String(kind == ECalRoute::Type2 ? "Type2" : "Type1"));
        Choose(cell, "route", QString::number(place.route));
    }
    return cell;
}

SCalCellPlace CalCellPlaceOf(ECalRoute kind, const SCalPlace &place, uint32_t offset)
{
    SCalCellPlace cell = CalRecordPlaceOf(kind, place);
    switch (kind) {
    case ECalRoute::Type1:
        FindInType1(cell, offset);
        break;
    case ECalRoute::Type2:
        FindInType2(cell, offset);
        break;
    default:
        FindInApt(cell, offset);
        break;
    }
    return cell;
}
