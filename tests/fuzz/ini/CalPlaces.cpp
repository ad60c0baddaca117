#include "tests/fuzz/ini/CalPlaces.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <set>
#include <tuple>
#include <type_traits>

#include "Operations/capability/TargetCapability.h"

namespace {

constexpr ERadioKind kKind = ERadioKind::Nr;

template <typename Record>
QByteArray BytesOf(const Record &record)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    return QByteArray(reinterpret_cast<const char *>(&record), sizeof record);
}

template <typename Record>
std::unique_ptr<Record> RecordOf(const QByteArray &bytes)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    auto record = std::make_unique<Record>();
    std::copy(bytes.begin(), bytes.end(), reinterpret_cast<char *>(record.get()));
    return record;
}

void Append(std::vector<SRecordPlace> &places, const CCalSections &sections)
{
    std::set<std::tuple<uint16_t, int>> known;
    const SMMRfRouteTableV7 &table = *CTargetCapability().GetRouteTableNr();
    for (const SCalPlace &place : WalkRoutes(table, sections.Kind())) {
        if (known.emplace(place.route, place.region).second)
            places.push_back({sections.Kind(), place, sections.SectionsOf(kKind, place).front()});
    }
}

void Mark(QByteArray &bytes, size_t first, size_t count)
{
    std::fill_n(bytes.begin() + static_cast<int>(first), count, '\1');
}

template <typename Record>
QByteArray KeptOfPathLoss()
{
    QByteArray kept(sizeof(Record), '\0');
    Mark(kept, offsetof(Record, loss), sizeof(Record::loss));
    return kept;
}

QByteArray KeptOfApt()
{
    using Record = SAptRouteBwRecord;
    QByteArray kept(sizeof(Record), '\0');
    Mark(kept, offsetof(Record, reserved7), sizeof(Record::reserved7));
    for (size_t level = 0; level < kVondAptLevels; ++level)
        Mark(kept,
             offsetof(Record, level) + level * sizeof(SAptLevel) + offsetof(SAptLevel, reserved3),
             sizeof(SAptLevel::reserved3));
    Mark(kept, offsetof(Record, reserved187), sizeof(Record::reserved187));
    Mark(kept, offsetof(Record, reserved194), sizeof(Record::reserved194));
    return kept;
}

// Band and route stand at the head of every record.
template <typename Record>
bool IsHeadOf(int at)
{
    const int count = offsetof(Record, blockCount);
    return at < 4 || (at >= count && at < count + 4);
}

}  // namespace

std::vector<SRecordPlace> PlacesOf(const CMultiRatAptProfileV7 &)
{
    CCalStore<SAptRouteBwRecord> store(kVondMaxBwRegions);
    std::vector<SRecordPlace> places;
    Append(places, CAptSections(store));
    return places;
}

std::vector<SRecordPlace> PlacesOf(const CMultiRatPathLossV7 &)
{
    CCalStore<SMMType1PathlossByRouteV7> type1;
    CCalStore<SMMType2PathlossByRouteV7> type2;
    std::vector<SRecordPlace> places;
    Append(places, CPathLossSections<SMMType1PathlossByRouteV7>(type1));
    Append(places, CPathLossSections<SMMType2PathlossByRouteV7>(type2));
    return places;
}

QByteArray RecordBytes(const CMultiRatAptProfileV7 &item, const SRecordPlace &place)
{
    return BytesOf(
        *item.GetAptCalibrationData(place.place.route, static_cast<uint16_t>(place.place.region)));
}

QByteArray RecordBytes(const CMultiRatPathLossV7 &item, const SRecordPlace &place)
{
    const uint16_t route = place.place.route;
    if (place.kind == ECalRoute::Type1)
        return BytesOf(*item.GetPathLossCalibrationData<SMMType1PathlossByRouteV7>(route));
    return BytesOf(*item.GetPathLossCalibrationData<SMMType2PathlossByRouteV7>(route));
}

void PutRecord(CMultiRatAptProfileV7 &item, const SRecordPlace &place, const QByteArray &bytes)
{
    item.SetAptCalibrationData(place.place.route, static_cast<uint16_t>(place.place.region),
                               *RecordOf<SAptRouteBwRecord>(bytes));
}

void PutRecord(CMultiRatPathLossV7 &item, const SRecordPlace &place, const QByteArray &bytes)
{
    const uint16_t route = place.place.route;
    if (place.kind == ECalRoute::Type1)
        item.SetPathLossCalibrationData(route, *RecordOf<SMMType1PathlossByRouteV7>(bytes));
    else
        item.SetPathLossCalibrationData(route, *RecordOf<SMMType2PathlossByRouteV7>(bytes));
}

QByteArray KeptBytes(const SRecordPlace &place)
{
    if (place.kind == ECalRoute::Type1)
        return KeptOfPathLoss<SMMType1PathlossByRouteV7>();
    if (place.kind == ECalRoute::Type2)
        return KeptOfPathLoss<SMMType2PathlossByRouteV7>();
    return KeptOfApt();
}

bool IsHead(const SRecordPlace &place, int at)
{
    return place.kind == ECalRoute::Tx ? IsHeadOf<SAptRouteBwRecord>(at)
                                       : IsHeadOf<SMMType1PathlossByRouteV7>(at);
}
