#include "Simulator/flash/Subbands.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kNormalCelsius = 25.0;
constexpr double kCelsiusAStep = 15.0;

}  // namespace

double AtTemperature(const int16_t (&steps)[kVondCalTemperatures], int normalIndex, double celsius)
{
    const double place = std::clamp(normalIndex + (celsius - kNormalCelsius) / kCelsiusAStep, 0.0,
                                    kVondCalTemperatures - 1.0);
    const auto below = static_cast<int>(std::floor(place));
    const int above = std::min(below + 1, kVondCalTemperatures - 1);
    return (steps[below] + (place - below) * (steps[above] - steps[below])) / 32.0;
}
