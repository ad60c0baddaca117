#include "View/plots/PdPlot.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "Model/JsonPath.h"

namespace {

constexpr char kPdReading[] = "cmdIf.response.group1.memberProperty.pdValue.trait.defaultValue";
constexpr char kPdSettings[] = "cmdIf.request.group1.memberValue.";

using PdPoints = std::vector<std::pair<double, float>>;

struct SFit
{
    double slope = 0;
    double offset = 0;
    double deviation = 0;  // the largest one, signed
    double at = 0;         // its TX power

    double At(double power) const { return slope * power + offset; }
};

// Least squares; none when all points have one power.
std::optional<SFit> FitOf(const PdPoints &points)
{
    if (points.empty() || points.front().first == points.back().first)
        return {};
    const double n = static_cast<double>(points.size());
    double meanX = 0;
    double meanY = 0;
    for (const auto &[x, y] : points) {
        meanX += x / n;
        meanY += static_cast<double>(y) / n;
    }
    double xx = 0;
    double xy = 0;
    for (const auto &[x, y] : points) {
        xx += (x - meanX) * (x - meanX);
        xy += (x - meanX) * (static_cast<double>(y) - meanY);
    }
    SFit fit = {.slope = xy / xx, .offset = meanY - xy / xx * meanX};
    for (const auto &[x, y] : points) {
        const double deviation = static_cast<double>(y) - fit.At(x);
        if (std::fabs(deviation) > std::fabs(fit.deviation)) {
            fit.deviation = deviation;
            fit.at = x;
        }
    }
    return fit;
}

QString Setting(const QJsonObject &document, const char *member)
{
    return GetJsonValueConst(document, QLatin1String(kPdSettings) + QLatin1String(member))
        .toVariant()
        .toString();
}

}  // namespace

SPlotShape CPdPlot::Shape() const
{
    return {.x = QStringLiteral("TX power (dBm)"), .left = QStringLiteral("Power detector (dBm)")};
}

std::vector<SPlotCurve> CPdPlot::Curves() const
{
    std::vector<SPlotCurve> curves;
    for (size_t s = 0; s < m_series.size(); ++s) {
        auto x = std::make_shared<Xs>();
        auto y = std::make_shared<Ys>();
        for (const auto &[power, reading] : m_series[s].points) {
            x->push_back(power);
            y->push_back(reading);
        }
        const int color = static_cast<int>(s);
        curves.push_back({.name = m_series[s].name,
                          .color = color,
                          .line = EPlotLine::None,
                          .hasPoints = true,
                          .x = x,
                          .y = y});
        if (const std::optional<SFit> fit = FitOf(m_series[s].points))
            curves.push_back(
                {.name = QStringLiteral("Fit ") + m_series[s].name,
                 .color = color,
                 .line = EPlotLine::Dashed,
                 .isThin = true,
                 .hasFigures = false,
                 .x = std::make_shared<Xs>(Xs{x->front(), x->back()}),
                 .y = std::make_shared<Ys>(Ys{static_cast<float>(fit->At(x->front())),
                                              static_cast<float>(fit->At(x->back()))})});
    }
    return curves;
}

QString CPdPlot::Remark() const
{
    QStringList lines;
    for (const SSeries &series : m_series) {
        if (const std::optional<SFit> fit = FitOf(series.points))
            lines.append(QStringLiteral("%1: PD = %2 \u00d7 TX power %3 %4 dB; largest deviation "
                                        "%5 dB at %6 dBm")
                             .arg(series.name, QString::number(fit->slope, 'f', 4),
                                  fit->offset < 0 ? QStringLiteral("\u2212") : QStringLiteral("+"),
                                  QString::number(std::fabs(fit->offset), 'f', 3),
                                  QString::number(fit->deviation, 'f', 3),
                                  QString::number(fit->at, 'f', 2)));
    }
    return lines.isEmpty() ? QStringLiteral("Readings while a tone runs stand here.")
                           : lines.join(QLatin1Char('\n'));
}

void CPdPlot::Clear()
{
    m_series.clear();
    emit Signal_Curves();
}

void CPdPlot::AddReading(const QJsonObject &response)
{
    bool hasReading = false;
    bool hasPower = false;
    const float reading =
        GetJsonValueConst(response, QLatin1String(kPdReading)).toString().toFloat(&hasReading);
    const double power = Setting(response, "txPowerValue").toDouble(&hasPower);
    if (!hasReading || !hasPower)
        return;
    const QString name =
        QStringLiteral("%1, route %2, %3 MHz")
            .arg(Setting(response, "band"), Setting(response, "txRoute"),
                 QString::number(Setting(response, "ulFrequency").toDouble() / kKhzPerMhz, 'f', 3));
    auto series = std::find_if(m_series.begin(), m_series.end(),
                               [&](const SSeries &one) { return one.name == name; });
    if (series == m_series.end())
        series = m_series.insert(m_series.end(), {.name = name});
    const std::pair<double, float> point(power, reading);
    series->points.insert(
        std::upper_bound(series->points.begin(), series->points.end(), point,
                         [](const auto &a, const auto &b) { return a.first < b.first; }),
        point);
    emit Signal_Curves();
}
