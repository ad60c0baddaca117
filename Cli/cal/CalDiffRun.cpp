// quorlin cal diff
#include <cmath>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include "Cli/ExitCodes.h"
#include "Cli/cal/CalRuns.h"
#include "Cli/cal/CalSides.h"
#include "Cli/cal/CalTerminal.h"
#include "Operations/calibration/CalBlockDifferences.h"
#include "Operations/calibration/CalComparison.h"
#include "Operations/calibration/CalFieldName.h"
#include "Support/CsvField.h"

namespace {

// "0.1dB", "0.1 dB", "0.1". Nothing where it is none of these.
std::optional<double> ToleranceOf(const std::string &text)
{
    if (text.empty())
        return 0;
    const QRegularExpression form(QStringLiteral("^\\s*([0-9]*\\.?[0-9]+)\\s*(dB)?\\s*$"),
                                  QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(QString::fromStdString(text));
    return match.hasMatch() ? std::optional(match.captured(1).toDouble()) : std::nullopt;
}

QString Words(const std::string &text)
{
    return QString::fromStdString(text);
}

QString UnitOf(std::string_view unit)
{
    return QString::fromUtf8(unit.data(), static_cast<int>(unit.size()));
}

QString LackText(ECalLack lack)
{
    return lack == ECalLack::Left    ? QStringLiteral("not on the left")
           : lack == ECalLack::Right ? QStringLiteral("not on the right")
                                     : QString();
}

QJsonObject RowObject(const SCalDifference &one)
{
    QJsonObject object = {
        {"kind", RouteName(one.kind)}, {"band", one.place.band}, {"route", one.place.route}};
    if (HasRegions(one.kind)) {
        object.insert("region", one.place.region);
        object.insert("bandwidthKhz", static_cast<qint64>(one.place.bwKhz));
    }
    if (one.lack != ECalLack::None) {
        object.insert("lack", one.lack == ECalLack::Left ? "left" : "right");
        return object;
    }
    object.insert("path", Words(one.field));
    const SCalFieldName field = SplitCalField(one.field);
    object.insert("field", Words(field.name));
    QJsonArray indexes;
    for (const int index : field.indexes)
        indexes.append(index);
    object.insert("indexes", indexes);
    object.insert("left", Words(one.left));
    object.insert("right", Words(one.right));
    if (one.difference) {
        object.insert("difference", *one.difference);
        object.insert("unit", UnitOf(one.unit));
    }
    return object;
}

QJsonArray StatisticArray(const std::vector<SCalStatistic> &statistics)
{
    QJsonArray array;
    for (const SCalStatistic &one : statistics) {
        QJsonObject object = {{"name", Words(one.name)}, {"count", static_cast<qint64>(one.count)}};
        if (one.largest) {
            object.insert("largest", *one.largest);
            object.insert("unit", UnitOf(one.unit));
        }
        array.append(object);
    }
    return array;
}

QByteArray JsonText(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// A difference a line: there may be a million, which no object has to hold.
void SayJson(const SCalRequest &request, const SCalSides &sides, const CCalComparison &fields,
             const QStringList &bytes)
{
    QByteArray head = JsonText({{"item", sides.item},
                                {"left", Words(request.file)},
                                {"right", Words(request.right)},
                                {"byRoute", StatisticArray(fields.ByRoute())},
                                {"byField", StatisticArray(fields.ByField())},
                                {"bytesAlone", QJsonArray::fromStringList(bytes)}});
    head.chop(1);
    SayBytes(head + ",\n\"differences\":[");
    for (std::size_t i = 0; i < fields.Count(); ++i)
        SayBytes((i == 0 ? "\n" : ",\n") + JsonText(RowObject(fields.At(i))));
    SayBytes("]}\n");
}

void SayCsv(const SCalSides &sides, const CCalComparison &fields)
{
    Say(QStringLiteral("item,kind,band,route,bandwidth_khz,field,indexes,left,right,difference,"
                       "unit,lack"));
    for (std::size_t i = 0; i < fields.Count(); ++i) {
        const SCalDifference one = fields.At(i);
        const SCalFieldName field = SplitCalField(one.field);
        QStringList indexes;
        for (const int index : field.indexes)
            indexes.append(QString::number(index));
        const QString bandwidth =
            HasRegions(one.kind) ? QString::number(one.place.bwKhz) : QString();
        const QString difference =
            one.difference ? QString::number(*one.difference, 'g', 10) : QString();
        QStringList cells = {sides.item,
                             QLatin1String(RouteName(one.kind)),
                             QString::number(one.place.band),
                             QString::number(one.place.route),
                             bandwidth,
                             Words(field.name),
                             indexes.join(QLatin1Char(',')),
                             Words(one.left),
                             Words(one.right),
                             difference,
                             UnitOf(one.unit),
                             LackText(one.lack)};
        for (QString &cell : cells)
            cell = QString::fromUtf8(CsvField(cell.toUtf8()));
        Say(cells.join(QLatin1Char(',')));
    }
}

void SayText(const CCalComparison &fields, const QStringList &bytes)
{
    for (std::size_t i = 0; i < fields.Count(); ++i) {
        const SCalDifference one = fields.At(i);
        const QString name = Words(CalRecordName(one.kind, one.place));
        if (one.lack != ECalLack::None) {
            Say(QStringLiteral("%1: %2").arg(name, LackText(one.lack)));
            continue;
        }
        QString line = QStringLiteral("%1 %2: %3 | %4")
                           .arg(name, Words(one.field), Words(one.left), Words(one.right));
        if (one.difference)
            line += QStringLiteral(" (%1%2)")
                        .arg(*one.difference > 0 ? QStringLiteral("+") : QString())
                        .arg(*one.difference, 0, 'g', 10);
        Say(line);
    }
    for (const QString &line : bytes)
        Say(line);
    const std::size_t count = fields.Count() + static_cast<std::size_t>(bytes.size());
    Say(count == 0 ? QStringLiteral("The same.") : QStringLiteral("%1 differences.").arg(count));
}

// Of records that are the same in every field, and whose blocks are not.
QStringList BytesAlone(const SCalSides &sides)
{
    QStringList lines;
    for (const SCalBlockRecord &left : sides.left.records) {
        const SCalBlockRecord *right = sides.right.Find(left.kind, left.place);
        if (!right || right->blocks == left.blocks || DiffersInFields(left, *right))
            continue;
        for (const std::string &line : CalBlockDifferences(left, right, {"left", "right"}))
            lines.append(Words(CalRecordName(left.kind, left.place) + ' ' + line));
    }
    return lines;
}

}  // namespace

int RunCalDiff(const SCalRequest &request)
{
    const std::optional<double> tolerance = ToleranceOf(request.tolerance);
    SCalSides sides;
    const QString why = tolerance ? ReadSides(request, sides)
                                  : QStringLiteral("--tolerance %1: it is a number of dB, such as "
                                                   "0.1dB")
                                        .arg(Words(request.tolerance));
    if (!why.isEmpty()) {
        Complain(why);
        return kExitTrouble;
    }
    EndProgress();
    for (const QString &note : sides.notes)
        Complain(note);
    const CCalComparison fields(JoinedImage(sides.left), JoinedImage(sides.right), *tolerance);
    const QStringList bytes = *tolerance > 0 ? QStringList() : BytesAlone(sides);
    if (request.isJson)
        SayJson(request, sides, fields, bytes);
    else if (request.isCsv)
        SayCsv(sides, fields);
    else
        SayText(fields, bytes);
    return fields.Count() == 0 && bytes.isEmpty() ? kExitGood : kExitDifferent;
}
