// How curves, grid and cursors are drawn, by the palette.
#include "Plots/Plot.h"

#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>

#include "Plots/PlotColors.h"

void CPlot::ApplyColors()
{
    setCanvasBackground(palette().base());
    const QColor text = palette().color(QPalette::Text);
    QColor grid = text;
    grid.setAlphaF(0.2);
    m_grid->setPen(grid, 0, Qt::DotLine);
    for (QwtPlotMarker *cursor : m_cursors) {
        cursor->setLinePen(text, 1, Qt::DashDotLine);
        QwtText label = cursor->label();
        label.setColor(text);
        cursor->setLabel(label);
    }
    for (const SShown &shown : m_curves) {
        const bool isDashed = shown.curve.line == EPlotLine::Dashed;
        const QPen pen(CurveColor(shown.curve.color, palette()), shown.curve.isThin ? 1 : 2,
                       isDashed ? Qt::DashLine : Qt::SolidLine);
        shown.item->setPen(pen);
        shown.item->setStyle(shown.curve.line == EPlotLine::None ? QwtPlotCurve::NoCurve
                                                                 : QwtPlotCurve::Lines);
    }
    ApplySymbols();
}

// Symbols and wide or dashed lines are for curves of some points: of many nobody would see them, and
// each would be drawn.
void CPlot::ApplySymbols()
{
    constexpr size_t kMostSymbols = 150;
    constexpr int kSymbolSize = 7;
    for (const SShown &shown : m_curves) {
        const bool isLoose = shown.points->size() <= kMostSymbols;
        const bool hasSymbol = isLoose && shown.curve.hasPoints;
        const QColor color = CurveColor(shown.curve.color, palette());
        if (hasSymbol != (shown.item->symbol() != nullptr) ||
            (hasSymbol && shown.item->symbol()->pen().color() != color)) {
            const int size = shown.curve.isThin ? kSymbolSize - 2 : kSymbolSize;
            shown.item->setSymbol(hasSymbol
                                      ? new QwtSymbol(CurveSymbol(shown.curve.color), QBrush(color),
                                                      QPen(color), QSize(size, size))
                                      : nullptr);
        }
        QPen pen = shown.item->pen();
        pen.setWidth(isLoose && !shown.curve.isThin ? 2 : 1);
        pen.setStyle(isLoose && shown.curve.line == EPlotLine::Dashed ? Qt::DashLine
                                                                      : Qt::SolidLine);
        shown.item->setPen(pen);
        shown.item->setRenderHint(QwtPlotItem::RenderAntialiased, isLoose);
    }
}
