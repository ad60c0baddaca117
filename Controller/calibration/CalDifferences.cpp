#include "Controller/calibration/CalDifferences.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include <QStringList>

#include "Controller/calibration/CalCellPlaces.h"
#include "Operations/calibration/CalFieldName.h"

namespace {

constexpr int kKhzPerMhz = 1000;

QString InUnit(double value, std::string_view unit)
{
    const QString number = QString::number(value, 'g', 10);
    return unit.empty() ? number
                        : number + QLatin1Char(' ') +
                              QString::fromLatin1(unit.data(), static_cast<int>(unit.size()));
}

// Fields of one name are one, in whatever kind of record they are.
std::vector<SCalStatistic> MergeNames(const std::vector<SCalStatistic> &statistics)
{
    std::vector<SCalStatistic> merged;
    for (const SCalStatistic &statistic : statistics) {
        const auto same =
            std::find_if(merged.begin(), merged.end(),
                         [&](const SCalStatistic &other) { return other.name == statistic.name; });
        if (same == merged.end()) {
            merged.push_back(statistic);
            continue;
        }
        same->count += statistic.count;
        same->largest = std::max(same->largest, statistic.largest);
    }
    return merged;
}

QVector<SCalCount> CountsOf(const std::vector<SCalStatistic> &statistics)
{
    QVector<SCalCount> counts;
    for (const SCalStatistic &statistic : statistics)
        counts.append({QString::fromStdString(statistic.name), static_cast<int>(statistic.count),
                       statistic.largest ? InUnit(*statistic.largest, statistic.unit) : QString()});
    return counts;
}

class CDifferences : public ICalDifferences
{
public:
    explicit CDifferences(CCalComparison comparison) : m_comparison(std::move(comparison))
    {
        const std::vector<SCalStatistic> routes = m_comparison.ByRoute();
        const std::vector<SCalStatistic> fields = m_comparison.ByField();
        for (std::size_t i = 0; i < routes.size(); ++i)
            m_routeOfRecord.emplace(routes[i].record, static_cast<int>(i));
        const std::vector<SCalStatistic> names = MergeNames(fields);
        for (const SCalStatistic &field : fields) {
            const auto name =
                std::find_if(names.begin(), names.end(), [&](const SCalStatistic &merged) {
                    return merged.name == field.name;
                });
            m_positionOfField.emplace(field.field, static_cast<int>(name - names.begin()));
        }
        m_routes = CountsOf(routes);
        m_fields = CountsOf(names);
    }

    int Count() const override { return static_cast<int>(m_comparison.Count()); }
    SCalDifferenceRow Row(int index) const override;
    SCalDifferenceKey Key(int index) const override;
    SCalCellPlace Place(int index) const override;
    const QVector<SCalCount> &Routes() const override { return m_routes; }
    const QVector<SCalCount> &Fields() const override { return m_fields; }
    int RecordsLeft() const override
    {
        return static_cast<int>(m_comparison.Left().records.size());
    }
    int RecordsRight() const override
    {
        return static_cast<int>(m_comparison.Right().records.size());
    }

private:
    const CCalComparison m_comparison;
    std::unordered_map<uint32_t, int> m_routeOfRecord;
    std::unordered_map<const SField *, int> m_positionOfField;
    QVector<SCalCount> m_routes;
    QVector<SCalCount> m_fields;
};

SCalDifferenceRow CDifferences::Row(int index) const
{
    const SCalDifference difference = m_comparison.At(static_cast<std::size_t>(index));
    const SCalPlace &place = difference.place;
    SCalDifferenceRow row = {
        .route = QLatin1String(RouteName(difference.kind)) + QLatin1Char(' ') +
                 QString::number(place.route),
        .band = QLatin1Char('n') + QString::number(place.band),
    };
    if (HasRegions(difference.kind))
        row.region =
            QString::number(static_cast<double>(place.bwKhz) / kKhzPerMhz) + QLatin1String(" MHz");
    if (difference.lack != ECalLack::None) {
        const bool isLeft = difference.lack == ECalLack::Left;
        row.field = QStringLiteral("record");
        row.left = isLeft ? QStringLiteral("lacking") : QStringLiteral("there");
        row.right = isLeft ? QStringLiteral("there") : QStringLiteral("lacking");
        return row;
    }
    const SCalFieldName field = SplitCalField(difference.field);
    QStringList indexes;
    for (const int position : field.indexes)
        indexes.append(QString::number(position));
    row.field = QString::fromStdString(field.name);
    row.index = indexes.join(QLatin1String(", "));
    row.left = QString::fromStdString(difference.left);
    row.right = QString::fromStdString(difference.right);
    if (difference.difference)
        row.difference = InUnit(*difference.difference, difference.unit);
    return row;
}

SCalDifferenceKey CDifferences::Key(int index) const
{
    const SCalDifferenceSpot spot = m_comparison.SpotAt(static_cast<std::size_t>(index));
    const auto field = m_positionOfField.find(spot.field);
    return {.route = m_routeOfRecord.at(spot.record),
            .field = field == m_positionOfField.end() ? -1 : field->second,
            .place = static_cast<int>(spot.offset),
            .left = spot.left,
            .right = spot.right,
            .difference = spot.difference};
}

SCalCellPlace CDifferences::Place(int index) const
{
    const SCalDifferenceSpot spot = m_comparison.SpotAt(static_cast<std::size_t>(index));
    const SCalDifference difference = m_comparison.At(static_cast<std::size_t>(index));
    return spot.field ? CalCellPlaceOf(difference.kind, difference.place, spot.offset)
                      : CalRecordPlaceOf(difference.kind, difference.place);
}

}  // namespace

CalDifferences MakeCalDifferences(CCalComparison comparison)
{
    return std::make_shared<CDifferences>(std::move(comparison));
}
