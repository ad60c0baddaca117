#include "View/access/Contrast.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSteps = 100;  // from one colour to the other

// By the definition of relative luminance of the guidelines.
double Linear(double share)
{
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor &color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
           0.0722 * Linear(color.blueF());
}

QColor Between(const QColor &from, const QColor &to, int step)
{
    const auto mix = [step](int a, int b) { return a + (b - a) * step / kSteps; };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

// The first colour on the way that text on the ground may have; the end when none may.
QColor FirstReadable(const QColor &from, const QColor &to, const QColor &ground)
{
    for (int step = 0; step < kSteps; ++step) {
        const QColor color = Between(from, to, step);
        if (Contrast(color, ground) >= kTextContrast)
            return color;
    }
    return to;
}

}  // namespace

double Contrast(const QColor &one, const QColor &other)
{
    constexpr double kFlare = 0.05;  // light that a screen throws back
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + kFlare) / (dark + kFlare);
}

QColor Readable(const QColor &wanted, const QColor &ground)
{
    const bool isToBlack = Contrast(Qt::black, ground) >= Contrast(Qt::white, ground);
    return FirstReadable(wanted, isToBlack ? Qt::black : Qt::white, ground);
}

QColor FadedText(const QColor &text, const QColor &ground)
{
    return FirstReadable(ground, Readable(text, ground), ground);
}
