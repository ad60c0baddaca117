// What of the curves is in view: all, or what the user chose.
#include "Plots/Plot.h"

#include <cmath>
#include <limits>
#include <utility>

#include <qwt_plot_curve.h>

namespace {

constexpr double kMargin = 0.04;  // of a range, at each end
constexpr double kSmallestRange = 1e-9;

void SetRange(QwtPlot *plot, int axis, double from, double to)
{
    if (!(to - from > kSmallestRange * std::max({1.0, std::fabs(from), std::fabs(to)}))) {
        const double middle = (from + to) / 2;
        const double half = std::max(0.5, std::fabs(middle) * kSmallestRange);
        from = middle - half;
        to = middle + half;
    }
    plot->setAxisScale(axis, from, to);
}

}  // namespace

bool CPlot::LimitsOf(bool isOnRight, QPointF &low, QPointF &high)
{
    bool hasLimits = false;
    for (const SShown &shown : m_curves) {
        QPointF curveLow;
        QPointF curveHigh;
        if (shown.curve.isOnRight != isOnRight || !shown.item->isVisible() ||
            !shown.points->Limits(curveLow, curveHigh))
            continue;
        if (!std::exchange(hasLimits, true)) {
            low = curveLow;
            high = curveHigh;
        }
        low = {std::min(low.x(), curveLow.x()), std::min(low.y(), curveLow.y())};
        high = {std::max(high.x(), curveHigh.x()), std::max(high.y(), curveHigh.y())};
    }
    return hasLimits;
}

void CPlot::FitAll()
{
    QPointF low;
    QPointF high;
    QPointF rightLow;
    QPointF rightHigh;
    const bool hasLeft = LimitsOf(false, low, high);
    const bool hasRight = LimitsOf(true, rightLow, rightHigh);
    if (!hasLeft && !hasRight)
        return;
    const double from =
        hasLeft && hasRight ? std::min(low.x(), rightLow.x()) : (hasLeft ? low : rightLow).x();
    const double to =
        hasLeft && hasRight ? std::max(high.x(), rightHigh.x()) : (hasLeft ? high : rightHigh).x();
    SetRange(this, xBottom, from - (to - from) * kMargin / 2, to + (to - from) * kMargin / 2);
    if (!hasLeft)
        return;
    const double margin = std::max((high.y() - low.y()) * kMargin, 0.05);
    SetRange(this, yLeft, low.y() - margin, high.y() + margin);
}

void CPlot::FitRight()
{
    QPointF low;
    QPointF high;
    if (!axisEnabled(yRight) || !LimitsOf(true, low, high))
        return;
    // A rate begins at nothing.
    const double from = std::min(low.y(), 0.0);
    const double margin = std::max((high.y() - from) * kMargin, 0.05);
    SetRange(this, yRight, from - margin, std::max(high.y(), 1.0) + margin);
}

// A zoomed view that reached the newest point goes on with it.
void CPlot::FollowNewest()
{
    double newest = -std::numeric_limits<double>::infinity();
    for (const SShown &shown : m_curves) {
        if (const int count = shown.points->Count(); count > 0)
            newest = std::max(newest, shown.points->Point(count - 1).x());
    }
    const QRectF view = ViewRect();
    if (m_isLive && m_isZoomed && newest > m_newest && m_newest <= view.right() &&
        newest > view.right()) {
        const double distance = newest - view.right();
        SetRange(this, xBottom, view.left() + distance, view.right() + distance);
    }
    m_newest = newest;
}

void CPlot::ShowData()
{
    FollowNewest();
    ShowView();
}

void CPlot::ShowView()
{
    if (!m_isZoomed)
        FitAll();
    FitRight();
    updateAxes();
    ThinAll();
    replot();
    if (m_events.onView)
        m_events.onView();
}

void CPlot::ThinAll()
{
    const QRectF view = ViewRect();
    for (const SShown &shown : m_curves)
        shown.points->SetView(view.left(), view.right(), std::max(canvas()->width(), 100));
    ApplySymbols();
}

void CPlot::ShowAll()
{
    m_isZoomed = false;
    ShowView();
}

void CPlot::Zoom(double factor)
{
    QRectF view = ViewRect();
    const QPointF middle = view.center();
    view.setSize(view.size() * factor);
    view.moveCenter(middle);
    SetView(view);
}

void CPlot::Pan(double part)
{
    const QRectF view = ViewRect();
    SetView(view.translated(view.width() * part, 0));
}

void CPlot::SetView(const QRectF &view)
{
    m_isZoomed = true;
    SetRange(this, xBottom, view.left(), view.right());
    SetRange(this, yLeft, view.top(), view.bottom());
    ShowView();
}

QRectF CPlot::ViewRect() const
{
    const QwtScaleDiv x = axisScaleDiv(xBottom);
    const QwtScaleDiv y = axisScaleDiv(yLeft);
    return {QPointF(x.lowerBound(), y.lowerBound()), QPointF(x.upperBound(), y.upperBound())};
}

std::array<double, 2> CPlot::View() const
{
    const QRectF view = ViewRect();
    return {view.left(), view.right()};
}
