#include "Model/NrArfcn.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// TS 38.104, table 5.4.2.1-1.
struct SGlobalRaster
{
    double leastKhz = 0;
    double stepKhz = 0;
    qint64 first = 0;  // NR-ARFCN
    qint64 last = 0;
};

constexpr std::array kGlobalRaster = {
    SGlobalRaster{.leastKhz = 0, .stepKhz = 5, .first = 0, .last = 599999},
    SGlobalRaster{.leastKhz = 3000000, .stepKhz = 15, .first = 600000, .last = 2016666},
    SGlobalRaster{.leastKhz = 24250080, .stepKhz = 60, .first = 2016667, .last = 3279165},
};

// TS 38.104, table 5.4.2.3-1: bands whose raster goes by the SCS. All others of frequency range 1 have
// carriers every 100 kHz.
constexpr std::array kScsRasterBands = {"n41", "n48", "n77", "n78", "n79", "n90"};
constexpr std::array kFineRasterBands = {"n46", "n47"};  // every 15 kHz, whatever the SCS
constexpr double kUsualRasterKhz = 100;
constexpr double kFineRasterKhz = 15;
constexpr double kCoarseRasterKhz = 30;

template <typename Bands>
bool Has(const Bands &bands, const QString &band)
{
    return std::any_of(bands.begin(), bands.end(),
                       [&](const char *one) { return band == QLatin1String(one); });
}

struct SUnit
{
    char letter;
    double khz;
};
constexpr std::array kUnits = {SUnit{'k', 1}, SUnit{'m', 1000}, SUnit{'g', 1000000}};

}  // namespace

std::optional<double> KhzOfArfcn(qint64 arfcn)
{
    for (const SGlobalRaster &part : kGlobalRaster) {
        if (arfcn >= part.first && arfcn <= part.last)
            return part.leastKhz + part.stepKhz * static_cast<double>(arfcn - part.first);
    }
    return std::nullopt;
}

std::optional<qint64> ArfcnOfKhz(double khz)
{
    const SGlobalRaster &top = kGlobalRaster.back();
    const double mostKhz = top.leastKhz + top.stepKhz * static_cast<double>(top.last - top.first);
    if (!(khz >= 0 && khz <= mostKhz))
        return std::nullopt;
    qint64 nearest = 0;
    for (const SGlobalRaster &part : kGlobalRaster) {
        const double steps = std::round((khz - part.leastKhz) / part.stepKhz);
        const qint64 arfcn =
            std::clamp(part.first + static_cast<qint64>(steps), part.first, part.last);
        if (std::abs(*KhzOfArfcn(arfcn) - khz) < std::abs(*KhzOfArfcn(nearest) - khz))
            nearest = arfcn;
    }
    return nearest;
}

double RasterStepKhz(const QString &band, int scsKhz)
{
    if (Has(kFineRasterBands, band))
        return kFineRasterKhz;
    if (!Has(kScsRasterBands, band))
        return kUsualRasterKhz;
    return scsKhz >= kCoarseRasterKhz ? kCoarseRasterKhz : kFineRasterKhz;
}

// The raster of a band counts from where its part of the global raster begins.
std::optional<double> NearestRasterKhz(const QString &band, int scsKhz, double khz)
{
    if (!ArfcnOfKhz(khz))
        return std::nullopt;
    const double step = RasterStepKhz(band, scsKhz);
    const double from = khz < kGlobalRaster[1].leastKhz ? 0 : kGlobalRaster[1].leastKhz;
    return from + step * std::round((khz - from) / step);
}

std::optional<double> KhzOfEntry(const QString &entry, double leastKhz, double mostKhz)
{
    QString number = entry.trimmed();
    if (number.endsWith(QLatin1String("hz"), Qt::CaseInsensitive))
        number.chop(2);
    double khzOfOne = 0;
    for (const SUnit &unit : kUnits) {
        if (number.endsWith(QLatin1Char(unit.letter), Qt::CaseInsensitive))
            khzOfOne = unit.khz;
    }
    if (khzOfOne > 0)
        number.chop(1);
    bool isNumber = false;
    const double value = number.trimmed().toDouble(&isNumber);
    constexpr double kMostKhz = 100000000;  // the end of the global raster
    if (!isNumber || !(value >= 0 && value <= kMostKhz))
        return std::nullopt;
    if (khzOfOne > 0)
        return value * khzOfOne;
    const auto isWithin = [&](double khz) { return khz >= leastKhz && khz <= mostKhz; };
    if (!isWithin(value) && value == std::floor(value)) {
        const std::optional<double> khz = KhzOfArfcn(static_cast<qint64>(value));
        if (khz && isWithin(*khz))
            return khz;
    }
    return value;
}
