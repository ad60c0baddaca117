// Results of the RSSI page: the gain search and the measurement.
#include "Controller/responses/NrDataModelResponseBuilder.h"

#include <QJsonArray>

#include "Controller/fields/PathGainFields.h"
#include "Model/JsonPath.h"

namespace {

constexpr double kGainUnit = 0.03125;  // 1/32 dB

const QLatin1String kError("ERROR");

using SingleRows = decltype(UMMRssiRowsV7::single);
using BothRows = decltype(UMMRssiRowsV7::simultaneous);
using SingleRow = std::remove_reference_t<decltype(SingleRows::row[0])>;
using BothRow = std::remove_reference_t<decltype(BothRows::row[0])>;

// The answer's fields of one path of a measurement of both.
struct SPathFields
{
    int16_t BothRow::*rssiMain;
    int16_t BothRow::*rssiDiv;
    uint8_t BothRows::*maing;
    uint8_t BothRows::*divg;
};

constexpr SPathFields kPathFields[kPathCount] = {
    {&BothRow::path0Main, &BothRow::path0Div, &BothRows::path0Maing, &BothRows::path0Divg},
    {&BothRow::path1Main, &BothRow::path1Div, &BothRows::path1Maing, &BothRows::path1Divg},
};

// Where the result of a path is shown.
struct SPathPlaces
{
    const char *table;
    const char *gainMode;
};

constexpr SPathPlaces kPathPlaces[kPathCount] = {{"group2", "gainModeP0"},
                                                 {"group3", "gainModeP1"}};

// Members of the calculator that a measurement leaves as they are, and what is read for each. The
// RF gain of path 1 main is taken from div: users know it so.
struct SKeptMember
{
    const char *member;
    const char *source;
};

constexpr SKeptMember kKept[] = {
    {"adviseDlPower", "adviseDlPower"},           {"path0MainRfGain", "path0MainRfGain"},
    {"path0DivRfGain", "path0DivRfGain"},         {"path0MainGainIdx", "path0MainGainIdx"},
    {"path0DivGainIdx", "path0DivGainIdx"},       {"path0MainDigtalGain", "path0MainDigtalGain"},
    {"path0DivDigtalGain", "path0DivDigtalGain"}, {"path1MainRfGain", "path1DivRfGain"},
    {"path1DivRfGain", "path1DivRfGain"},         {"path1MainGainIdx", "path1MainGainIdx"},
    {"path1DivGainIdx", "path1DivGainIdx"},       {"path1MainDigtalGain", "path1MainDigtalGain"},
    {"path1DivDigtalGain", "path1DivDigtalGain"},
};

// Columns of one path, a text a frequency.
struct SPathResult
{
    QJsonArray dlFrequency;
    QJsonArray rssiMain;
    QJsonArray rssiDiv;
    QString gainMode;
};

QString CalType(const QJsonObject &document)
{
    return GetJsonValueConst(document, QStringLiteral("cmdIf.request.group1.memberValue.calType"))
        .toString();
}

bool IsSimultaneous(const QString &calType)
{
    return calType.contains(QLatin1String("Sim"));
}

// The path of a CAL type that asks for one.
int PathOf(const QString &calType)
{
    return calType.contains(QLatin1String("Path0")) ? 0 : 1;
}

QString DbText(int16_t value)
{
    return QString::number(value * kGainUnit, 'f', 5);
}

// Shown as the target gave it, also beyond the gain table: such a target needs a look.
QString IndexText(uint8_t index)
{
    return QString::number(index);
}

void Show(QJsonObject &document, const char *group, const char *member, const QJsonValue &value)
{
    ModifyJsonValue(document,
                    QStringLiteral("cmdIf.response.%1.memberProperty.%2.trait.defaultValue")
                        .arg(QLatin1String(group), QLatin1String(member)),
                    value, 0);
}

void ShowScalar(QJsonObject &document, const char *member, const QJsonValue &value)
{
    Show(document, "group1", member, value);
}

SPathResult SameEverywhere(const QString &text)
{
    SPathResult result;
    for (QJsonArray *column : {&result.dlFrequency, &result.rssiMain, &result.rssiDiv}) {
        for (int i = 0; i < kVondMaxRssiRows; ++i)
            column->append(text);
    }
    result.gainMode = text;
    return result;
}

SPathResult Measured(const SMMRssiCnfV7 &answer, bool both, int path)
{
    const SPathFields &fields = kPathFields[path];
    SPathResult result;
    for (int i = 0; i < kVondMaxRssiRows; ++i) {
        const SingleRow &single = answer.rows.single.row[i];
        const BothRow &pair = answer.rows.simultaneous.row[i];
        result.dlFrequency.append(QString::number(answer.dlFrequency[i]));
        result.rssiMain.append(DbText(both ? pair.*fields.rssiMain : single.rssiMain));
        result.rssiDiv.append(DbText(both ? pair.*fields.rssiDiv : single.rssiDiv));
    }
    const SingleRows &single = answer.rows.single;
    const BothRows &pair = answer.rows.simultaneous;
    result.gainMode = both ? QString::asprintf("(G%d+g%d, G%d+g%d)", pair.mainG, pair.*fields.maing,
                                               pair.divG, pair.*fields.divg)
                           : QString::asprintf("(G%d+g%d, G%d+g%d)", single.mainG, single.maing,
                                               single.divG, single.divg);
    return result;
}

}  // namespace

void CNrDataModelResponseBuilder::UpdateRssiGainResultV7(QJsonObject &document,
                                                         SMMGainSearchCnfV7 result,
                                                         bool success) const
{
    using Gains = decltype(result.gain);
    const auto show = [&](const char *member, const QString &text) {
        ShowScalar(document, member, success ? text : kError);
    };
    const auto showBoth = [&](const auto &rows) {
        for (const auto &row : rows)
            show(row.member, DbText(result.gain.simultaneous.*row.gain));
    };
    const QString calType = CalType(document);
    const auto showSingle = [&](const auto &rows) {
        for (const auto &row : rows)
            show(row.member[PathOf(calType)], DbText(result.gain.single.*row.gain));
    };

    // Any other layout word means the layout of one path. A failed search has filled no record;
    // then the request tells which members show the error.
    if (result.simultaneous == 1 || (!success && IsSimultaneous(calType))) {
        showBoth(kBothRfGains<Gains>);
        showBoth(kBothDigitalGains<Gains>);
        for (const auto &row : kGainIndexes<Gains>)
            show(row.member, IndexText(result.gain.simultaneous.*row.index));
    } else {
        showSingle(kSingleRfGains<Gains>);
        showSingle(kSingleDigitalGains<Gains>);
    }
    ShowScalar(document, "adviseDlPower",
               success ? DbText(result.adviseDlPower) : QStringLiteral("Error"));
}

void CNrDataModelResponseBuilder::UpdateRssiResultV7(QJsonObject &document, SMMRssiCnfV7 result,
                                                     bool success) const
{
    const QString calType = CalType(document);
    const bool both = IsSimultaneous(calType);
    for (int path = 0; path < kPathCount; ++path) {
        const bool asked = both || path == PathOf(calType);
        const SPathResult shown = asked && success ? Measured(result, both, path)
                                                   : SameEverywhere(asked ? kError : QString());
        const SPathPlaces &places = kPathPlaces[path];
        Show(document, places.table, "dlFrequency", shown.dlFrequency);
        Show(document, places.table, "rssiMain", shown.rssiMain);
        Show(document, places.table, "rssiDiv", shown.rssiDiv);
        ShowScalar(document, places.gainMode, shown.gainMode);
    }

    const QJsonObject held =
        GetJsonValueConst(document, QStringLiteral("cmdIf.response.group1.memberValue")).toObject();
    for (const SKeptMember &kept : kKept) {
        const QJsonValue value = held.value(QLatin1String(kept.source));
        if (IsJsonValueValid(value))
            ShowScalar(document, kept.member, value);
    }
}
