#include "Controller/calibration/CalText.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Controller/fields/CommandConversions.h"

namespace {

constexpr double kDbPerUnit = 0.03125;  // 1/32
constexpr int kDbDecimals = 5;
constexpr int kUnitsPerDb = 32;

// Truncated toward zero and limited to the range of the field. Keeping the low bits would turn a
// gain into a loss.
int64_t FieldOf(double db)
{
    using Field = std::numeric_limits<int16_t>;
    if (!std::isfinite(db))
        return 0;
    return static_cast<int64_t>(
        std::clamp<double>(std::trunc(db * kUnitsPerDb), Field::min(), Field::max()));
}

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
        return FieldOf(text.toDouble());
    case ECalText::WholeDb:
        return FieldOf(DecimalInt<int16_t>(text));
    default:
        return DecimalInt<int64_t>(text);
    }
}
