// The points of a curve, as Qwt draws them: those in view, thinned to what a screen can tell apart.
//
// Of the points that fall into one column of pixels the first, the lowest, the highest and the last are
// drawn: the curve looks as if all were. Figures, nearest points and limits come from all points.
//
//   auto *points = new CCurvePoints(curve.x, curve.y);
//   points->SetView(0, 3600, 800);
//   qwtCurve->setSamples(points);   // takes it over
#pragma once

#include <memory>
#include <vector>

#include <qwt_series_data.h>

#include "View/plots/PlotInterface.h"

class CCurvePoints : public QwtSeriesData<QPointF>
{
public:
    using Xs = std::shared_ptr<const std::vector<double>>;
    using Ys = std::shared_ptr<const std::vector<float>>;

    CCurvePoints(Xs x, Ys y);

    size_t size() const override { return m_drawn.size(); }
    QPointF sample(size_t at) const override { return m_drawn[at]; }
    QRectF boundingRect() const override { return d_boundingRect; }

    // Chooses what is drawn; columns: of pixels between from and to.
    void SetView(double from, double to, int columns);

    // Of all points that have a number, between from and to: none is an empty figure.
    SPlotFigures Figures(double from, double to) const;
    // Index of the point with a number that is nearest by x; -1 when there is none.
    int Nearest(double x) const;
    int First(double x) const;  // index of the first point that is not left of x
    int Count() const;
    QPointF Point(int at) const;
    // Range of x and y; false when there is no point with a number. Looks at new points alone.
    bool Limits(QPointF &low, QPointF &high);

private:
    void Thin(int first, int last, double from, double columnsPerX);

    const Xs m_x;
    const Ys m_y;
    std::vector<QPointF> m_drawn;

    // Of the points that Limits has looked at.
    int m_looked = 0;
    bool m_hasLimits = false;
    QPointF m_low;
    QPointF m_high;
};
