#include "Controller/CalPageLimits.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "Controller/CalEditor.h"
#include "Controller/CalWalks.h"

namespace {

constexpr int64_t kUnitsADb = 32;

// A route may stand on several bands, and the document has the limits of one of them: a record's
// own frequencies are no mistake of the file.
constexpr SCalShown kAnyFrequency{0, UINT32_MAX};

// Where a record has its frequencies, and the losses, which have the limits of the first subband.
struct SLayout
{
    size_t freq;
    size_t loss;
    size_t lossOfSubband;  // 0: no losses
};

SLayout LayoutOf(ECalRoute kind)
{
    using Type1 = SMMType1PathlossByRouteV7;
    using Type2 = SMMType2PathlossByRouteV7;
    switch (kind) {
    case ECalRoute::Type1:
        return {offsetof(Type1, freq), offsetof(Type1, loss), sizeof(Type1::loss[0])};
    case ECalRoute::Type2:
        return {offsetof(Type2, freq), offsetof(Type2, loss), sizeof(Type2::loss[0])};
    case ECalRoute::Tx:
        break;
    }
    return {offsetof(SAptRouteBwRecord, freq), 0, 0};
}

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

QString PropertyPath(const char *group, const QString &member)
{
    return QLatin1String(group) + QLatin1String(".memberProperty.") + member;
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

// All that the page of a kind of record shows, selection by selection; of type 2 the first subband.
void WalkAll(ICalMove &move, ECalRoute kind, void *record)
{
    if (kind == ECalRoute::Tx)
        return MoveApt(move, *static_cast<SAptRouteBwRecord *>(record));
    for (auto half : {&SMMLossPair::hpm, &SMMLossPair::lpm}) {
        if (kind == ECalRoute::Type1) {
            MoveType1(move, *static_cast<SMMType1PathlossByRouteV7 *>(record), {half});
            continue;
        }
        for (int path = 0; path < VOND_SRX_PATHS; ++path) {
            for (int bigG = 0; bigG < VOND_GAIN_ROWS; ++bigG)
                MoveType2(move, *static_cast<SMMType2PathlossByRouteV7 *>(record),
                          {half, 0, path, bigG});
        }
    }
}

// Room for a record of any kind, to be walked over.
using Room = SMMType2PathlossByRouteV7;
static_assert(sizeof(Room) >= sizeof(SAptRouteBwRecord) &&
              sizeof(Room) >= sizeof(SMMType1PathlossByRouteV7));

}  // namespace

const CCalPageLimits::Fields &CCalPageLimits::FieldsOf(ECalRoute kind)
{
    const auto [place, isNew] = m_fields.try_emplace(kind);
    if (isNew) {
        const auto room = std::make_unique<Room>();
        CFieldFinder finder(m_document, room.get(), place->second);
        WalkAll(finder, kind, room.get());
    }
    return place->second;
}

const SCalShown *CCalPageLimits::Of(ECalRoute kind, const SCalPlace &, size_t offset)
{
    const SLayout layout = LayoutOf(kind);
    if (offset >= layout.freq && offset < layout.freq + VOND_CAL_MAX_SUBBANDS * sizeof(uint32_t))
        return &kAnyFrequency;
    const size_t losses = layout.lossOfSubband * VOND_CAL_MAX_SUBBANDS;
    if (offset >= layout.loss && offset < layout.loss + losses)
        offset = layout.loss + (offset - layout.loss) % layout.lossOfSubband;
    const Fields &fields = FieldsOf(kind);
    const auto field = fields.find(offset);
    return field == fields.end() ? nullptr : &field->second;
}
