#include "View/editors/DbStep.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include <QDoubleSpinBox>

namespace {

constexpr int kDbDecimals = 5;
constexpr double kStepsPerDb = 32.0;

using Wire = std::numeric_limits<int16_t>;

}  // namespace

void SetDbStep(QDoubleSpinBox *box)
{
    if (box->decimals() == kDbDecimals)
        box->setSingleStep(1.0 / kStepsPerDb);
}

double ToDbStep(const QDoubleSpinBox *box)
{
    return ToDbStep(box, box->value());
}

double ToDbStep(const QDoubleSpinBox *box, double value)
{
    if (box->decimals() != kDbDecimals)
        return value;
    const double least = std::max<double>(std::ceil(box->minimum() * kStepsPerDb), Wire::min());
    const double most = std::min<double>(std::floor(box->maximum() * kStepsPerDb), Wire::max());
    // Limits that have no step between them are no limits of such a value.
    if (least > most)
        return value;
    // 0 without a sign, which would be shown.
    return std::clamp(std::round(value * kStepsPerDb), least, most) / kStepsPerDb + 0.0;
}
