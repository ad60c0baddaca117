#include "View/engine/MemberUnit.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

struct SMemberUnit
{
    const char *members = nullptr;  // expression for the whole key
    const char *unit = nullptr;
};
constexpr SMemberUnit kMemberUnits[] = {
    {.members = "RSRP[0-3]|RSSI[0-3]", .unit = "dBm"},
    {.members = "rssiMain|rssiDiv", .unit = "dBm"},
    {.members = "BLER", .unit = "%"},
    {.members = "path[01](Main|Div)(Rf|Digtal)Gain", .unit = "dB"},
    {.members = "adviseDlPower|txPowerValue", .unit = "dBm"},
    {.members = "dlFrequency|ulFrequency", .unit = "kHz"},
    {.members = "freq|ulFreq", .unit = "kHz"},
    {.members = "reportPeriod", .unit = "ms"},
    {.members = "pdValue", .unit = "dBm"},
    {.members = "lna[0-7]|gain[0-2]|couplerLoss(High|Middle|Low)|paGain\\d+", .unit = "dB"},
};

}  // namespace

QString UnitOfMember(const QString &key)
{
    for (const SMemberUnit &row : kMemberUnits) {
        const QString whole = QRegularExpression::anchoredPattern(QLatin1String(row.members));
        if (QRegularExpression(whole).match(key).hasMatch())
            return QLatin1String(row.unit);
    }
    return {};
}

QString UnitOf(const QString &key, const QString &caption)
{
    const QString unit = UnitOfMember(key);
    if (!unit.isEmpty())
        return unit;
    static const QRegularExpression kInBrackets(QStringLiteral("\\(1?(dBm|dB|kHz|ms|%)\\)\\s*$"));
    return kInBrackets.match(caption).captured(1);
}
