#include "Controller/calibration/CalPageLimits.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

#include "Controller/calibration/CalEditor.h"
#include "Controller/calibration/CalRecordTable.h"
#include "Model/JsonPath.h"

namespace {

constexpr int64_t kUnitsADb = 32;

// For a route whose limits the document does not tell for sure.
constexpr SCalShown kAnyFrequency{0, UINT32_MAX};

std::optional<SCalShown> ShownBy(const CCalEditor &editor, ECalText kind)
{
    if (editor.DataType() == QLatin1String("list")) {
        const QJsonArray options = editor.Entry().toArray();
        if (options.isEmpty())
            return {};
        if (kind == ECalText::Option)
            return SCalShown{1, options.size(), true};
        int64_t least = options.first().toString().toLongLong();
        int64_t most = least;
        for (const QJsonValue &option : options) {
            least = std::min<int64_t>(least, option.toString().toLongLong());
            most = std::max<int64_t>(most, option.toString().toLongLong());
        }
        return SCalShown{least, most, true};
    }
    const QJsonValue least = editor.Entry().toObject().value(QLatin1String("min"));
    const QJsonValue most = editor.Entry().toObject().value(QLatin1String("max"));
    if (!least.isDouble() || !most.isDouble())
        return {};
    if (kind == ECalText::Db)
        return SCalShown{static_cast<int64_t>(std::ceil(least.toDouble() * kUnitsADb)),
                         static_cast<int64_t>(std::floor(most.toDouble() * kUnitsADb))};
    const auto whole = [](const QJsonValue &value) {
        return static_cast<int64_t>(value.toDouble());
    };
    if (kind != ECalText::WholeDb)
        return SCalShown{whole(least), whole(most)};
    // The fraction is cut off, toward 0.
    constexpr int64_t kFraction = kUnitsADb - 1;
    return SCalShown{whole(least) * kUnitsADb - (whole(least) <= 0 ? kFraction : 0),
                     whole(most) * kUnitsADb + (whole(most) >= 0 ? kFraction : 0), false,
                     kUnitsADb};
}

// Collects what the fields of a walk show.
class CFieldFinder : public ICalMove
{
public:
    CFieldFinder(const QJsonObject &document, const void *record,
                 std::unordered_map<size_t, SCalShown> &fields)
        : m_document(document), m_record(static_cast<const char *>(record)), m_fields(fields)
    {
    }

    void Field(const SCalField &field) override
    {
        const CCalEditor editor(m_document, PropertyPath(field.group, field.member));
        const std::optional<SCalShown> shown = ShownBy(editor, field.kind);
        for (int i = 0; shown && i < std::max(field.columns, 1); ++i) {
            const auto *address = static_cast<const char *>(field.cell(i).Address());
            m_fields[static_cast<size_t>(address - m_record)] = *shown;
        }
    }
    void Frequencies(const SCalFrequencies &) override {}

private:
    const QJsonObject &m_document;
    const char *const m_record;
    std::unordered_map<size_t, SCalShown> &m_fields;
};

class CFrequencyFinder : public ICalMove
{
public:
    explicit CFrequencyFinder(const QJsonObject &document) : m_document(document) {}

    void Field(const SCalField &) override {}
    void Frequencies(const SCalFrequencies &frequencies) override
    {
        const QString member = QString::fromLatin1(frequencies.member);
        m_shown = ShownBy(CCalEditor(m_document, PropertyPath(frequencies.group, member)),
                          ECalText::Number);
        if (m_shown)
            m_shown->isZeroFree = true;
    }
    const std::optional<SCalShown> &Shown() const { return m_shown; }

private:
    const QJsonObject &m_document;
    std::optional<SCalShown> m_shown;
};

constexpr const char *kRouteMembers[] = {"route", "txRoute"};  // a page has one of them

// The document as a page packages it with the route selected.
QJsonObject WithRoute(QJsonObject document, uint16_t route)
{
    QJsonObject cal = document.value(QLatin1String("calDataIf")).toObject();
    QJsonObject config = cal.value(QLatin1String("config")).toObject();
    QJsonObject group = config.value(QLatin1String("group1")).toObject();
    QJsonObject values = group.value(QLatin1String("memberValue")).toObject();
    for (const char *member : kRouteMembers)
        values.insert(QLatin1String(member), QString::number(route));
    group.insert(QLatin1String("memberValue"), values);
    config.insert(QLatin1String("group1"), group);
    cal.insert(QLatin1String("config"), config);
    document.insert(QLatin1String("calDataIf"), cal);
    return document;
}

// The bands on which the page offers each route. Its entries are of a band, or of a band and a
// type of route ("n77,Type2").
std::map<uint16_t, std::set<QString>> BandsOfRoutes(const QJsonObject &document)
{
    std::map<uint16_t, std::set<QString>> bands;
    for (const char *member : kRouteMembers) {
        const QString path = PropertyPath("calDataIf.config.group1", QLatin1String(member));
        const QJsonObject entries =
            GetJsonValueConst(document, path + QLatin1String(".trait.valuePair")).toObject();
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            for (const QJsonValue &route : entry.value().toArray())
                bands[route.toString().toUShort()].insert(
                    entry.key().section(QLatin1Char(','), 0, 0));
        }
    }
    return bands;
}

}  // namespace

const CCalPageLimits::Fields &CCalPageLimits::FieldsOf(ECalRoute kind)
{
    const auto [place, isNew] = m_fields.try_emplace(kind);
    if (isNew) {
        const SCalRecordRow &row = FindCalRecord(kind);
        const std::shared_ptr<void> record = row.make();
        CFieldFinder finder(m_document, record.get(), place->second);
        row.walkAll(finder, record.get());
    }
    return place->second;
}

CCalPageLimits::CCalPageLimits(const QJsonObject &document)
    : m_document(document), m_bandsOfRoutes(BandsOfRoutes(document))
{
}

const SCalShown &CCalPageLimits::FrequencyOf(ECalRoute kind, uint16_t route)
{
    const auto [place, isNew] = m_frequencies.try_emplace(route, kAnyFrequency);
    const auto bands = m_bandsOfRoutes.find(route);
    if (isNew && bands != m_bandsOfRoutes.end() && bands->second.size() == 1) {
        const SCalRecordRow &row = FindCalRecord(kind);
        const QJsonObject document = WithRoute(m_document, route);
        CFrequencyFinder finder(document);
        row.walkAll(finder, row.make().get());
        place->second = finder.Shown().value_or(kAnyFrequency);
    }
    return place->second;
}

const SCalShown *CCalPageLimits::Of(ECalRoute kind, const SCalPlace &place, size_t offset)
{
    const SCalRecordRow &layout = FindCalRecord(kind);
    if (offset >= layout.freq && offset < layout.freq + kVondCalMaxSubbands * sizeof(uint32_t))
        return &FrequencyOf(kind, place.route);
    const size_t losses = layout.lossOfSubband * kVondCalMaxSubbands;
    if (offset >= layout.loss && offset < layout.loss + losses)
        offset = layout.loss + (offset - layout.loss) % layout.lossOfSubband;
    const Fields &fields = FieldsOf(kind);
    const auto field = fields.find(offset);
    return field == fields.end() ? nullptr : &field->second;
}
