#include "Plots/PlotColors.h"

#include <array>

namespace {

constexpr int kColorCount = 8;

// The last one is the text's.
constexpr std::array<QRgb, kColorCount - 1> kOnLight = {0x0072b2, 0xd55e00, 0x009e73, 0xcc79a7,
                                                        0xe69f00, 0x56b4e9, 0x7f7f7f};
constexpr std::array<QRgb, kColorCount - 1> kOnDark = {0x56b4e9, 0xe69f00, 0x00c08b, 0xcc79a7,
                                                       0xf0e442, 0xe8743b, 0x9a9a9a};
constexpr std::array<QwtSymbol::Style, kColorCount> kSymbols = {
    QwtSymbol::Ellipse,   QwtSymbol::Rect,   QwtSymbol::Diamond, QwtSymbol::Triangle,
    QwtSymbol::DTriangle, QwtSymbol::XCross, QwtSymbol::Cross,   QwtSymbol::Hexagon};
constexpr int kDarkBelow = 128;  // lightness of the ground

}  // namespace

bool IsDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < kDarkBelow;
}

QColor CurveColor(int number, const QPalette &palette)
{
    const size_t at = static_cast<size_t>(number % kColorCount);
    if (at >= kOnLight.size())
        return palette.color(QPalette::Text);
    return QColor(IsDark(palette) ? kOnDark.at(at) : kOnLight.at(at));
}

QwtSymbol::Style CurveSymbol(int number)
{
    return kSymbols.at(static_cast<size_t>(number % kColorCount));
}
