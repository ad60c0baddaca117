#include "Plots/CurvePoints.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kPointsPerColumn = 4;

// The points of one column of pixels that are drawn, in their order.
class CColumn
{
public:
    void Add(int at, float y)
    {
        if (m_count++ == 0) {
            m_first = m_low = m_high = at;
            m_lowY = m_highY = y;
        }
        if (y < m_lowY) {
            m_low = at;
            m_lowY = y;
        }
        if (y > m_highY) {
            m_high = at;
            m_highY = y;
        }
        m_last = at;
    }

    template <typename Take>
    void Flush(const Take &take)
    {
        if (m_count == 0)
            return;
        const int inner[] = {std::min(m_low, m_high), std::max(m_low, m_high)};
        take(m_first);
        if (inner[0] != m_first)
            take(inner[0]);
        if (inner[1] != m_first && inner[1] != inner[0])
            take(inner[1]);
        if (m_last != m_first && m_last != inner[0] && m_last != inner[1])
            take(m_last);
        m_count = 0;
    }

private:
    int m_count = 0;
    int m_first = 0;
    int m_low = 0;
    int m_high = 0;
    int m_last = 0;
    float m_lowY = 0;
    float m_highY = 0;
};

}  // namespace

CCurvePoints::CCurvePoints(Xs x, Ys y) : m_x(std::move(x)), m_y(std::move(y))
{
    d_boundingRect = QRectF(0, 0, 1, 1);
}

int CCurvePoints::Count() const
{
    return m_x && m_y ? static_cast<int>(std::min(m_x->size(), m_y->size())) : 0;
}

QPointF CCurvePoints::Point(int at) const
{
    const auto index = static_cast<size_t>(at);
    return {(*m_x)[index], static_cast<double>((*m_y)[index])};
}

int CCurvePoints::First(double x) const
{
    if (Count() == 0)
        return 0;
    const auto begin = m_x->begin();
    return static_cast<int>(std::lower_bound(begin, begin + Count(), x) - begin);
}

// One point more at each side: the line goes on to the edge.
void CCurvePoints::SetView(double from, double to, int columns)
{
    m_drawn.clear();
    const int first = std::max(0, First(from) - 1);
    const int last = std::min(Count(), First(std::nextafter(to, HUGE_VAL)) + 1);
    if (last - first > kPointsPerColumn * columns && to > from) {
        Thin(first, last, from, columns / (to - from));
        return;
    }
    for (int at = first; at < last; ++at) {
        if (const QPointF point = Point(at); !std::isnan(point.y()))
            m_drawn.push_back(point);
    }
}

void CCurvePoints::Thin(int first, int last, double from, double columnsPerX)
{
    const double *const x = m_x->data();
    const float *const y = m_y->data();
    const auto take = [this](int at) { m_drawn.push_back(Point(at)); };
    CColumn column;
    int now = -1;
    for (int at = first; at < last; ++at) {
        if (std::isnan(y[at]))
            continue;
        const int its = static_cast<int>((x[at] - from) * columnsPerX);
        if (its != now)
            column.Flush(take);
        now = its;
        column.Add(at, y[at]);
    }
    column.Flush(take);
}

SPlotFigures CCurvePoints::Figures(double from, double to) const
{
    SPlotFigures figures;
    double sum = 0;
    double squares = 0;  // of the distance to the first point: no digits are lost far from 0
    double base = 0;
    const int last = First(std::nextafter(to, HUGE_VAL));
    for (int at = First(from); at < last; ++at) {
        const double y = static_cast<double>((*m_y)[static_cast<size_t>(at)]);
        if (std::isnan(y))
            continue;
        if (figures.count++ == 0)
            base = figures.minimum = figures.maximum = y;
        figures.minimum = std::min(figures.minimum, y);
        figures.maximum = std::max(figures.maximum, y);
        sum += y - base;
        squares += (y - base) * (y - base);
    }
    if (figures.count == 0)
        return figures;
    const double mean = sum / figures.count;
    figures.mean = base + mean;
    figures.deviation = std::sqrt(std::max(0.0, squares / figures.count - mean * mean));
    return figures;
}

int CCurvePoints::Nearest(double x) const
{
    const auto isNumber = [this](int at) { return !std::isnan(Point(at).y()); };
    const int middle = First(x);
    int right = middle;
    while (right < Count() && !isNumber(right))
        ++right;
    int left = middle - 1;
    while (left >= 0 && !isNumber(left))
        --left;
    if (right >= Count())
        return left;
    return left >= 0 && x - Point(left).x() < Point(right).x() - x ? left : right;
}

bool CCurvePoints::Limits(QPointF &low, QPointF &high)
{
    if (m_looked > Count())
        m_looked = 0, m_hasLimits = false;
    for (; m_looked < Count(); ++m_looked) {
        const QPointF point = Point(m_looked);
        if (std::isnan(point.y()))
            continue;
        if (!std::exchange(m_hasLimits, true))
            m_low = m_high = point;
        m_low = {std::min(m_low.x(), point.x()), std::min(m_low.y(), point.y())};
        m_high = {std::max(m_high.x(), point.x()), std::max(m_high.y(), point.y())};
    }
    low = m_low;
    high = m_high;
    return m_hasLimits;
}
