#include "Controller/guard/GuardChecks.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "Operations/calibration/CalBlockDifferences.h"

namespace {

constexpr int kShownNames = 12;
constexpr int kShownValues = 10;

}  // namespace

QString RecordText(const SCalBlockRecord &record)
{
    return QString::fromStdString(CalRecordName(record.kind, record.place));
}

SCalBlockImage SameRecords(const SCalBlockImage &image, const SCalBlockImage &other)
{
    SCalBlockImage same;
    for (const SCalBlockRecord &record : other.records) {
        if (const SCalBlockRecord *own = image.Find(record.kind, record.place))
            same.records.push_back(*own);
    }
    return same;
}

QString FirstOf(const QStringList &names)
{
    QString text = names.mid(0, kShownNames).join(QLatin1String(", "));
    if (names.size() > kShownNames)
        text += QStringLiteral(" and %1 more").arg(names.size() - kShownNames);
    return text;
}

bool IsChosen(const QStringList &only, ECalRoute kind, const SCalPlace &place)
{
    const QString number = QString::number(place.route);
    const QString whole = QStringLiteral("%1:%2").arg(QLatin1String(RouteName(kind)), number);
    return only.isEmpty() || std::any_of(only.begin(), only.end(), [&](const QString &entry) {
               return entry == number || entry.compare(whole, Qt::CaseInsensitive) == 0;
           });
}

QString KeepChosen(const QStringList &only, SCalBlockImage &wanted)
{
    for (const QString &entry : only) {
        const bool isThere = std::any_of(wanted.records.begin(), wanted.records.end(),
                                         [&entry](const SCalBlockRecord &record) {
                                             return IsChosen({entry}, record.kind, record.place);
                                         });
        if (!isThere)
            return QStringLiteral("There is no record of route %1 to write.").arg(entry);
    }
    std::erase_if(wanted.records, [&only](const SCalBlockRecord &record) {
        return !IsChosen(only, record.kind, record.place);
    });
    return {};
}

QString RefuseNoNumbers(const SCalMoveRemarks &remarks)
{
    if (remarks.noNumberCount == 0)
        return {};
    QStringList lines = {
        QStringLiteral("%1 values of the file are no numbers. Among the first odd values:")
            .arg(remarks.noNumberCount)};
    for (const SCalOddValue &value : remarks.oddValues)
        lines.append(QStringLiteral("[%1] %2: \"%3\"")
                         .arg(QString::fromStdString(value.section),
                              QString::fromStdString(value.key),
                              QString::fromStdString(value.text)));
    return lines.join(QLatin1Char('\n'));
}

QString RefuseOtherRoutes(const SCalMoveRemarks &remarks, const QStringList &only)
{
    QStringList lines;
    for (const SCalOtherRoute &other : remarks.otherRoutes) {
        if (IsChosen(only, other.kind, other.place))
            lines.append(QStringLiteral("[%1] goes to %2, but its %3 is %4")
                             .arg(QString::fromStdString(other.section),
                                  QString::fromStdString(CalRecordName(other.kind, other.place)),
                                  QString::fromStdString(other.key),
                                  QString::fromStdString(other.text)));
    }
    if (lines.isEmpty())
        return {};
    const QString heading =
        QStringLiteral("The file is of other routes than those that it would be written to: %1 of "
                       "its sections name another route.")
            .arg(lines.size());
    return heading + QLatin1Char('\n') + lines.mid(0, kShownValues).join(QLatin1Char('\n'));
}

QString RefuseOddValues(const SCalImage &flash, const SCalImage &wanted, ICalPageLimits *limits)
{
    if (!limits)
        return {};
    std::map<std::tuple<ECalRoute, uint16_t, int>, const SCalImageRecord *> old;
    for (const SCalImageRecord &record : flash.records)
        old[{record.kind, record.place.route, record.place.region}] = &record;
    QStringList lines;
    for (const SCalImageRecord &record : wanted.records) {
        const auto before = old.find({record.kind, record.place.route, record.place.region});
        for (const std::string &line :
             CalValuesBeyond(record, before == old.end() ? nullptr : before->second, *limits))
            lines.append(QString::fromStdString(line));
    }
    if (lines.isEmpty())
        return {};
    return QStringLiteral("%1 values are beyond what the page's editors take:\n%2")
        .arg(lines.size())
        .arg(lines.mid(0, kShownValues).join(QLatin1Char('\n')));
}

QString RefuseLongRecords(const SCalBlockImage &wanted)
{
    for (const SCalBlockRecord &record : wanted.records) {
        const std::size_t blocks = record.blocks.size() / CalBlockSize(record.kind);
        if (blocks > static_cast<std::size_t>(CalBlocksOfRound(record.kind)))
            return QStringLiteral("%1 has %2 blocks, more than the %3 that one transfer holds.")
                .arg(RecordText(record))
                .arg(blocks)
                .arg(CalBlocksOfRound(record.kind));
    }
    return {};
}
