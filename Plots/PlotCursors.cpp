// The cursors of a plot, and what a click finds.
#include "Plots/Plot.h"

#include <cmath>

#include <qwt_plot_curve.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_map.h>

namespace {

constexpr double kCursorReach = 6;  // pixels
constexpr double kPointReach = 12;

}  // namespace

void CPlot::ShowCursors(bool areShown)
{
    const QRectF view = ViewRect();
    for (size_t i = 0; i < m_cursors.size(); ++i) {
        const double part = static_cast<double>(i + 1) / 3;
        if (areShown && !m_cursors[i]->isVisible())
            m_cursors[i]->setXValue(view.left() + view.width() * part);
        m_cursors[i]->setVisible(areShown);
    }
    replot();
    if (m_events.onCursors)
        m_events.onCursors();
}

std::array<double, 2> CPlot::Cursors() const
{
    return {m_cursors[0]->xValue(), m_cursors[1]->xValue()};
}

void CPlot::MoveCursor(int cursor, double x)
{
    m_cursors.at(static_cast<size_t>(cursor))->setXValue(x);
    replot();
    if (m_events.onCursors)
        m_events.onCursors();
}

int CPlot::CursorAt(const QPoint &position) const
{
    const QwtScaleMap map = canvasMap(xBottom);
    for (size_t i = 0; i < m_cursors.size(); ++i) {
        if (m_cursors[i]->isVisible() &&
            std::fabs(map.transform(m_cursors[i]->xValue()) - position.x()) <= kCursorReach)
            return static_cast<int>(i);
    }
    return -1;
}

// The nearest point of the curves in sight, if it is within reach.
void CPlot::ClickAt(const QPoint &position)
{
    const QwtScaleMap mapX = canvasMap(xBottom);
    const double from = mapX.invTransform(position.x() - kPointReach);
    const double to = mapX.invTransform(position.x() + kPointReach);
    int curve = -1;
    int point = -1;
    double nearest = kPointReach;
    for (size_t i = 0; i < m_curves.size(); ++i) {
        const SShown &shown = m_curves[i];
        if (!shown.item->isVisible())
            continue;
        const QwtScaleMap mapY = canvasMap(shown.item->yAxis());
        for (int at = shown.points->First(from); at < shown.points->Count(); ++at) {
            const QPointF its = shown.points->Point(at);
            if (its.x() > to)
                break;
            const double distance = std::hypot(mapX.transform(its.x()) - position.x(),
                                               mapY.transform(its.y()) - position.y());
            if (distance < nearest) {
                nearest = distance;
                curve = static_cast<int>(i);
                point = at;
            }
        }
    }
    if (curve >= 0 && m_events.onPoint)
        m_events.onPoint(curve, point);
}
