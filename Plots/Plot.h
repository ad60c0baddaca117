// The plot of View/plots/PlotInterface.h, by Qwt: axes, grid, curves, legend, cursors and pictures.
//
// The mouse is PlotMouse.h's. The view is kept here: all points, or a range of x and y that
// the user chose. The right axis shows all of its values, whatever the left one is zoomed to.
//
// GUI thread.
#pragma once

#include <QSet>
#include <qwt_plot.h>

#include "Plots/CurvePoints.h"
#include "View/plots/PlotInterface.h"

class QwtPlotCurve;
class QwtPlotGrid;
class QwtPlotMarker;

class CPlot : public QwtPlot, public IPlot
{
    Q_OBJECT

public:
    explicit CPlot(QWidget *parent);
    ~CPlot() override;

    QWidget *Widget() override { return this; }
    void SetEvents(const SPlotEvents &events) override { m_events = events; }
    void SetShape(const SPlotShape &shape) override;
    void SetCurves(const std::vector<SPlotCurve> &curves) override;
    void ShowData() override;
    void ShowAll() override;
    void Zoom(double factor) override;
    void Pan(double part) override;
    std::array<double, 2> View() const override;
    bool IsShown(int curve) const override;
    SPlotFigures FiguresInView(int curve) const override;
    void ShowCursors(bool areShown) override;
    std::array<double, 2> Cursors() const override;
    void MoveCursor(int cursor, double x) override;
    double ValueAt(int curve, double x) const override;
    QByteArray Picture(EPlotPicture format) const override;

    // For the mouse. Ranges of the bottom and the left axis, from now on the user's; both are brought to a
    // size that can be told apart.
    void SetView(const QRectF &view);
    QRectF ViewRect() const;
    // By canvas pixels.
    void ClickAt(const QPoint &position);
    int CursorAt(const QPoint &position) const;  // -1 when none is near

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct SShown
    {
        SPlotCurve curve;
        QwtPlotCurve *item;
        CCurvePoints *points;
    };

    void ShowHidden(int curve, bool isHidden);
    void ApplyColors();
    void ApplySymbols();
    bool LimitsOf(bool isOnRight, QPointF &low, QPointF &high);
    void FitAll();
    void FitRight();
    void FollowNewest();
    void ShowView();
    void ThinAll();

    SPlotEvents m_events;
    std::vector<SShown> m_curves;
    QSet<QString> m_hidden;
    QwtPlotGrid *m_grid;
    std::array<QwtPlotMarker *, 2> m_cursors;
    bool m_isLive = false;
    bool m_isZoomed = false;
    double m_newest = 0;  // x of the newest point when it was last shown
};
