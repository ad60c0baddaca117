#include "Model/NrBandwidth.h"

#include <QRegularExpression>

namespace {

constexpr double kKhzPerMhz = 1000;

// A row of table 5.3.2-1: RB of a channel bandwidth by SCS; 0: there is none.
struct SBandwidth
{
    int mhz = 0;
    int rbOf15 = 0;
    int rbOf30 = 0;
    int rbOf60 = 0;
};

constexpr SBandwidth kBandwidths[] = {
    {.mhz = 5, .rbOf15 = 25, .rbOf30 = 11, .rbOf60 = 0},
    {.mhz = 10, .rbOf15 = 52, .rbOf30 = 24, .rbOf60 = 11},
    {.mhz = 15, .rbOf15 = 79, .rbOf30 = 38, .rbOf60 = 18},
    {.mhz = 20, .rbOf15 = 106, .rbOf30 = 51, .rbOf60 = 24},
    {.mhz = 25, .rbOf15 = 133, .rbOf30 = 65, .rbOf60 = 31},
    {.mhz = 30, .rbOf15 = 160, .rbOf30 = 78, .rbOf60 = 38},
    {.mhz = 40, .rbOf15 = 216, .rbOf30 = 106, .rbOf60 = 51},
    {.mhz = 50, .rbOf15 = 270, .rbOf30 = 133, .rbOf60 = 65},
    {.mhz = 60, .rbOf15 = 0, .rbOf30 = 162, .rbOf60 = 79},
    {.mhz = 70, .rbOf15 = 0, .rbOf30 = 189, .rbOf60 = 93},
    {.mhz = 80, .rbOf15 = 0, .rbOf30 = 217, .rbOf60 = 107},
    {.mhz = 90, .rbOf15 = 0, .rbOf30 = 245, .rbOf60 = 121},
    {.mhz = 100, .rbOf15 = 0, .rbOf30 = 273, .rbOf60 = 135},
};

int RbOf(const SBandwidth &bandwidth, int scsKhz)
{
    switch (scsKhz) {
    case 15:
        return bandwidth.rbOf15;
    case 30:
        return bandwidth.rbOf30;
    case 60:
        return bandwidth.rbOf60;
    default:
        return 0;
    }
}

}  // namespace

std::optional<double> ChannelKhz(const QString &text, int scsKhz)
{
    static const QRegularExpression kText(QStringLiteral("^\\s*(\\d{1,5})\\s*(M|MHz|RB)\\s*$"),
                                          QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = kText.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const int number = match.captured(1).toInt();
    if (match.captured(2).toUpper() != QLatin1String("RB"))
        return number * kKhzPerMhz;
    for (const SBandwidth &bandwidth : kBandwidths) {
        if (number > 0 && RbOf(bandwidth, scsKhz) == number)
            return bandwidth.mhz * kKhzPerMhz;
    }
    return std::nullopt;
}
