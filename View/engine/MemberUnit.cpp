#include "View/engine/MemberUnit.h"

#include <QRegularExpression>

namespace {

struct SMemberUnit
{
    const char *key = nullptr;  // each # is a digit
    const char *unit = nullptr;
};
constexpr SMemberUnit kMemberUnits[] = {
    {.key = "RSRP#", .unit = "dBm"},
    {.key = "RSSI#", .unit = "dBm"},
    {.key = "rssiMain", .unit = "dBm"},
    {.key = "rssiDiv", .unit = "dBm"},
    {.key = "BLER", .unit = "%"},
    {.key = "path#MainRfGain", .unit = "dB"},
    {.key = "path#DivRfGain", .unit = "dB"},
    {.key = "path#MainDigtalGain", .unit = "dB"},
    {.key = "path#DivDigtalGain", .unit = "dB"},
    {.key = "adviseDlPower", .unit = "dBm"},
    {.key = "txPowerValue", .unit = "dBm"},
    {.key = "dlFrequency", .unit = "kHz"},
    {.key = "ulFrequency", .unit = "kHz"},
    {.key = "freq", .unit = "kHz"},
    {.key = "ulFreq", .unit = "kHz"},
    {.key = "reportPeriod", .unit = "ms"},
    {.key = "pdValue", .unit = "dBm"},
    {.key = "lna#", .unit = "dB"},
    {.key = "gain#", .unit = "dB"},
    {.key = "couplerLossHigh", .unit = "dB"},
    {.key = "couplerLossMiddle", .unit = "dB"},
    {.key = "couplerLossLow", .unit = "dB"},
    {.key = "paGain#", .unit = "dB"},
    {.key = "paGain##", .unit = "dB"},
};

bool IsKey(const QString &key, QLatin1String pattern)
{
    if (key.size() != pattern.size())
        return false;
    for (int i = 0; i < key.size(); ++i) {
        const bool isDigit = pattern[i] == QLatin1Char('#');
        if (isDigit ? !key.at(i).isDigit() : key.at(i) != pattern[i])
            return false;
    }
    return true;
}

}  // namespace

QString UnitOfMember(const QString &key)
{
    for (const SMemberUnit &row : kMemberUnits) {
        if (IsKey(key, QLatin1String(row.key)))
            return QLatin1String(row.unit);
    }
    return {};
}

QString UnitOf(const QString &key, const QString &caption)
{
    const QString unit = UnitOfMember(key);
    if (!unit.isEmpty())
        return unit;
    if (!caption.endsWith(QLatin1Char(')')))
        return {};
    static const QRegularExpression kInBrackets(QStringLiteral("\\(1?(dBm|dB|kHz|ms|%)\\)\\s*$"));
    return kInBrackets.match(caption).captured(1);
}
