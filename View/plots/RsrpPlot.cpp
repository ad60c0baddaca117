#include "View/plots/RsrpPlot.h"

#include <algorithm>
#include <cmath>

#include <QWidget>

#include "Model/JsonPath.h"

namespace {

struct SReportColumn
{
    const char *key = "";
    const char *name = "";
    int color = 0;  // an antenna's
    EPlotLine line = EPlotLine::Solid;
    bool isOnRight = false;
};

constexpr SReportColumn kReportColumns[] = {
    {.key = "RSRP0", .name = "RSRP0", .color = 0},
    {.key = "RSRP1", .name = "RSRP1", .color = 1},
    {.key = "RSRP2", .name = "RSRP2", .color = 2},
    {.key = "RSRP3", .name = "RSRP3", .color = 3},
    {.key = "RSSI0", .name = "RSSI0", .color = 0, .line = EPlotLine::Dashed},
    {.key = "RSSI1", .name = "RSSI1", .color = 1, .line = EPlotLine::Dashed},
    {.key = "RSSI2", .name = "RSSI2", .color = 2, .line = EPlotLine::Dashed},
    {.key = "RSSI3", .name = "RSSI3", .color = 3, .line = EPlotLine::Dashed},
    {.key = "BLER", .name = "BLER", .color = 7, .isOnRight = true},
};

constexpr const char *kReportGroups[] = {"cmdIf.response.group1.memberProperty",
                                         "cmdIf.response.group2.memberProperty"};
constexpr double kMsPerSecond = 1000;

// A column's cells stand in its member, each below the number of its row, beside what the member is.
QJsonObject Cells(const QJsonObject &properties, const char *column)
{
    return properties.value(QLatin1String(column)).toObject();
}

// Numbers of the rows that have cells, in their order.
std::vector<int> RowNumbers(const QJsonObject &cells)
{
    std::vector<int> rows;
    for (auto cell = cells.begin(); cell != cells.end(); ++cell) {
        if (const int row = cell.key().toInt(); row > 0)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

float Value(const QJsonObject &cells, int row)
{
    const QJsonObject cell = cells.value(QString::number(row)).toObject();
    bool isNumber = false;
    const float value = cell.value(QLatin1String("defaultValue")).toString().toFloat(&isNumber);
    // "NAN" stands for a rate of no blocks at all.
    return isNumber && std::isfinite(value) ? value : CPlotSource::kNoValue;
}

}  // namespace

CRsrpPlot::CRsrpPlot(QObject *page) : CPlotSource(page)
{
    static_assert(std::size(kReportColumns) == kColumnCount);
    Begin();
}

QString CRsrpPlot::Title() const
{
    return qobject_cast<QWidget *>(parent())->windowTitle() + QStringLiteral(" - plot");
}

SPlotShape CRsrpPlot::Shape() const
{
    return {.x = QStringLiteral("Time (s)"),
            .left = QStringLiteral("RSRP, RSSI (dBm)"),
            .right = QStringLiteral("BLER (%)"),
            .isLive = true};
}

std::vector<SPlotCurve> CRsrpPlot::Curves() const
{
    std::vector<SPlotCurve> curves;
    for (size_t c = 0; c < kColumnCount; ++c) {
        const SReportColumn &column = kReportColumns[c];
        if (m_values[c])
            curves.push_back({.name = QLatin1String(column.name),
                              .color = column.color,
                              .line = column.line,
                              .hasPoints = true,
                              .isThin = column.line == EPlotLine::Dashed,
                              .isOnRight = column.isOnRight,
                              .x = m_times,
                              .y = m_values[c]});
    }
    return curves;
}

void CRsrpPlot::Begin()
{
    m_clock.start();
    m_lastFetch = 0;
    m_times = std::make_shared<Xs>();
    m_values = {};
}

void CRsrpPlot::Clear()
{
    Begin();
    emit Signal_Curves();
}

void CRsrpPlot::Add(const QJsonObject &document)
{
    bool hasOthers = false;
    const size_t before = m_times->size();
    for (const char *group : kReportGroups) {
        const QJsonObject properties = GetJsonValueConst(document, QLatin1String(group)).toObject();
        hasOthers = AddRows(properties) || hasOthers;
    }
    if (m_times->size() == before)
        return;
    if (hasOthers)
        emit Signal_Curves();
    else
        emit Signal_Points();
}

// True when a column has its first row.
bool CRsrpPlot::AddRows(const QJsonObject &properties)
{
    const std::vector<int> rows = RowNumbers(Cells(properties, kReportColumns[0].key));
    if (rows.empty())
        return false;
    const double now = static_cast<double>(m_clock.elapsed()) / kMsPerSecond;
    const double step = (now - m_lastFetch) / static_cast<double>(rows.size());
    for (size_t r = 0; r < rows.size(); ++r)
        m_times->push_back(m_lastFetch + step * static_cast<double>(r + 1));
    m_lastFetch = now;

    bool hasOthers = false;
    for (size_t c = 0; c < kColumnCount; ++c) {
        const QJsonObject cells = Cells(properties, kReportColumns[c].key);
        if (!m_values[c] && !cells.contains(QString::number(rows.front())))
            continue;
        if (!m_values[c]) {
            m_values[c] = std::make_shared<Ys>();
            hasOthers = true;
        }
        m_values[c]->resize(m_times->size() - rows.size(), kNoValue);
        for (const int row : rows)
            m_values[c]->push_back(Value(cells, row));
    }
    return hasOthers;
}
