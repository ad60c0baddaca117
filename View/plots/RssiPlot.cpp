#include "View/plots/RssiPlot.h"

#include <algorithm>

#include <QJsonArray>

#include "Model/JsonPath.h"

namespace {

struct SRssiRow
{
    const char *group = "";
    const char *member = "";
    const char *name = "";
    int color = 0;
    EPlotLine line = EPlotLine::Solid;
};

constexpr SRssiRow kRssiRows[] = {
    {.group = "group2", .member = "rssiMain", .name = "Path0 Main", .color = 0},
    {.group = "group2", .member = "rssiDiv", .name = "Path0 Div", .color = 1},
    {.group = "group3",
     .member = "rssiMain",
     .name = "Path1 Main",
     .color = 2,
     .line = EPlotLine::Dashed},
    {.group = "group3",
     .member = "rssiDiv",
     .name = "Path1 Div",
     .color = 3,
     .line = EPlotLine::Dashed},
};

constexpr size_t kMostRuns = 10;

QJsonArray Channels(const QJsonObject &response, const char *group, const char *member)
{
    const QString path = QStringLiteral("cmdIf.response.%1.memberProperty.%2.trait.defaultValue")
                             .arg(QLatin1String(group), QLatin1String(member));
    return GetJsonValueConst(response, path).toArray();
}

// By frequency; without points when the path was not measured.
SPlotCurve RunCurve(const SRssiRow &row, const QJsonObject &response)
{
    const QJsonArray frequencies = Channels(response, row.group, "dlFrequency");
    const QJsonArray levels = Channels(response, row.group, row.member);
    std::vector<std::pair<double, float>> points;
    for (int c = 0; c < std::min(frequencies.size(), levels.size()); ++c) {
        bool isNumber = false;
        const double frequency = frequencies[c].toString().toDouble();
        const float level = levels[c].toString().toFloat(&isNumber);
        if (isNumber && frequency > 0)
            points.emplace_back(frequency / CPlotSource::kKhzPerMhz, level);
    }
    std::stable_sort(points.begin(), points.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    auto x = std::make_shared<CPlotSource::Xs>();
    auto y = std::make_shared<CPlotSource::Ys>();
    for (const auto &[frequency, level] : points) {
        x->push_back(frequency);
        y->push_back(level);
    }
    return {.name = QLatin1String(row.name),
            .color = row.color,
            .line = row.line,
            .hasPoints = true,
            .x = x,
            .y = y};
}

}  // namespace

SPlotShape CRssiPlot::Shape() const
{
    return {.x = QStringLiteral("DL frequency (MHz)"), .left = QStringLiteral("RSSI (dBm)")};
}

std::vector<SPlotCurve> CRssiPlot::Curves() const
{
    std::vector<SPlotCurve> curves;
    for (const SRun &run : m_runs) {
        for (SPlotCurve curve : run.curves) {
            curve.name += QStringLiteral(", run %1").arg(run.number);
            curve.isThin = run.number != m_lastNumber;
            curves.push_back(curve);
        }
    }
    return curves;
}

void CRssiPlot::Clear()
{
    m_runs.clear();
    emit Signal_Curves();
}

void CRssiPlot::AddRun(const QJsonObject &response)
{
    SRun run = {.number = ++m_lastNumber};
    for (const SRssiRow &row : kRssiRows) {
        const SPlotCurve curve = RunCurve(row, response);
        if (!curve.x->empty())
            run.curves.push_back(curve);
    }
    m_runs.push_front(run);
    if (m_runs.size() > kMostRuns)
        m_runs.pop_back();
    emit Signal_Curves();
}
