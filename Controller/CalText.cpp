#include "Controller/CalText.h"

#include "Controller/CommandConversions.h"

namespace {

constexpr double kDbPerUnit = 0.03125;  // 1/32
constexpr int kDbDecimals = 5;
constexpr int kUnitsPerDb = 32;

}  // namespace

QString CalText(ECalText kind, int64_t value)
{
    if (kind == ECalText::Db)
        return QString::number(static_cast<double>(value) * kDbPerUnit, 'f', kDbDecimals);
    if (kind == ECalText::WholeDb)
        value /= kUnitsPerDb;
    return QString::number(value);
}

int64_t CalValue(ECalText kind, const QString &text)
{
    switch (kind) {
    case ECalText::Db:
        return FixedPoint(text, kGainScale);
    case ECalText::WholeDb:
        return static_cast<int16_t>(static_cast<uint16_t>(DecimalInt<int16_t>(text) * kUnitsPerDb));
    default:
        return DecimalInt<int64_t>(text);
    }
}
