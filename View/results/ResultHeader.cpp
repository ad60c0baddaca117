#include "View/results/ResultHeader.h"

#include <QRegularExpression>

namespace {

struct SReadingUnit
{
    const char *members = nullptr;  // expression for the whole name
    const char *unit = nullptr;
    const char *caption = nullptr;  // where the document has none
};
constexpr SReadingUnit kReadingUnits[] = {
    {.members = "RSRP[0-3]|RSSI[0-3]", .unit = "dBm"},
    {.members = "rssiMain|rssiDiv", .unit = "dBm"},
    {.members = "BLER", .unit = "%"},
    {.members = "path[01](Main|Div)(Rf|Digtal)Gain", .unit = "dB"},
    {.members = "adviseDlPower|txPowerValue", .unit = "dBm"},
    {.members = "dlFrequency|ulFrequency", .unit = "kHz"},
    {.members = "reportPeriod", .unit = "ms"},
    {.members = "pdValue", .unit = "dBm", .caption = "PD value"},
};

const SReadingUnit *FindReadingUnit(const QString &member)
{
    for (const SReadingUnit &row : kReadingUnits) {
        const QString whole = QRegularExpression::anchoredPattern(QLatin1String(row.members));
        if (QRegularExpression(whole).match(member).hasMatch())
            return &row;
    }
    return nullptr;
}

}  // namespace

QString ResultHeader(const QString &member, const QString &caption)
{
    const SReadingUnit *row = FindReadingUnit(member);
    const QString own =
        row && row->caption && caption.isEmpty() ? QLatin1String(row->caption) : caption;
    if (!row)
        return own.isEmpty() ? member : own;
    static const QRegularExpression kBrackets(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    QString words = own;
    words.remove(kBrackets);
    return (words.isEmpty() ? member : words) +
           QStringLiteral(" (%1)").arg(QLatin1String(row->unit));
}

QStringList DistinctHeaders(const QStringList &headers)
{
    QStringList distinct;
    for (const QString &header : headers) {
        QString name = header;
        for (int number = 2; distinct.contains(name); ++number)
            name = header + QStringLiteral(" #%1").arg(number);
        distinct.append(name);
    }
    return distinct;
}
