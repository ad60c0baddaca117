// What a plot is asked for: the one header between the tool and libQuorlinPlots.so, which draws.
//
// The library stands beside the plug-in and is loaded at first use (PlotLibrary.h), so the tool works
// without it. It exports one C function, QuorlinMakePlot; all else goes through IPlot.
//
// A plot shows curves over one x axis. The points belong to the one who has measured them: a curve is
// handed over with its points, and ShowData tells that there are more or others. Points are thinned
// for drawing, never for the figures. The x of a curve never fall; a y that is no number is left out.
//
// The user zooms by wheel and by dragging a rectangle, pans with the middle button or with Ctrl and the
// left one, hides curves in the legend, and drags the two cursors. Until he zooms, all points are shown.
// GUI thread.
//
//   IPlot *plot = make(kPlotVersion, parent);
//   plot->SetShape({.x = "Time (s)", .left = "RSRP (dBm)"});
//   plot->SetCurves({{.name = "RSRP0", .x = times, .y = levels}});
//   levels->push_back(-95.5F);
//   plot->ShowData();
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include <QByteArray>
#include <QString>

class QWidget;

// Rises with every change of this header: a library of another version makes no plot.
constexpr int kPlotVersion = 1;
constexpr char kPlotFunction[] = "QuorlinMakePlot";

enum class EPlotLine
{
    None,
    Solid,
    Dashed,
};

enum class EPlotPicture
{
    Png,
    Svg,
    Pdf,
};

struct SPlotShape
{
    QString x = {};  // titles of the axes, with the unit
    QString left = {};
    QString right = {};   // empty: there is no such axis
    bool isLive = false;  // points come at the right end: a zoomed view that shows it goes with it
};

struct SPlotCurve
{
    QString name = {};  // in the legend; by it the plot remembers what the user has hidden
    int color = 0;      // its number among colours that everybody tells apart, with a symbol each
    EPlotLine line = EPlotLine::Solid;
    bool hasPoints = false;  // a symbol at each point, while there is room for them
    bool isThin = false;
    bool hasFigures = true;  // it is measured; a line of best fit is not
    bool isOnRight = false;  // goes by the right axis
    std::shared_ptr<const std::vector<double>> x = {};
    std::shared_ptr<const std::vector<float>> y = {};  // as many as x
};

// Of the points of a curve that are in view, by x; all 0 when there is none.
struct SPlotFigures
{
    int count = 0;
    double minimum = 0;
    double maximum = 0;
    double mean = 0;
    double deviation = 0;  // standard deviation of these points
};

// What the user does; called on the GUI thread, from the event loop.
struct SPlotEvents
{
    std::function<void(int curve, int point)> onPoint = {};  // clicked
    std::function<void()> onView = {};                       // another part is in view
    std::function<void()> onCursors = {};
    std::function<void()> onHidden = {};  // a curve was hidden or shown
};

class IPlot
{
public:
    IPlot() = default;
    virtual ~IPlot() = default;
    IPlot(const IPlot &) = delete;
    IPlot &operator=(const IPlot &) = delete;

    // The plot itself; it dies with its parent, and the IPlot with it.
    virtual QWidget *Widget() = 0;
    virtual void SetEvents(const SPlotEvents &events) = 0;

    virtual void SetShape(const SPlotShape &shape) = 0;
    // In place of those there were; the view stays.
    virtual void SetCurves(const std::vector<SPlotCurve> &curves) = 0;
    virtual void ShowData() = 0;

    // All points, from now on, too.
    virtual void ShowAll() = 0;
    // Around the middle of the view; factor: of what is seen, 0.5 shows the half of it.
    virtual void Zoom(double factor) = 0;
    // By parts of the view's width; negative to the left.
    virtual void Pan(double part) = 0;
    // From and to, on the x axis.
    virtual std::array<double, 2> View() const = 0;

    virtual bool IsShown(int curve) const = 0;
    virtual SPlotFigures FiguresInView(int curve) const = 0;

    // Two lines across, on the x axis; switched on they stand at the thirds of the view.
    virtual void ShowCursors(bool areShown) = 0;
    virtual std::array<double, 2> Cursors() const = 0;
    virtual void MoveCursor(int cursor, double x) = 0;
    // The y of the point that is nearest by x; no number when the curve has no points.
    virtual double ValueAt(int curve, double x) const = 0;

    // The plot as it is seen, as the bytes of a file; a PNG has twice the screen's resolution.
    virtual QByteArray Picture(EPlotPicture format) const = 0;
};

// Null when the library is of another version.
using MakePlot = IPlot *(*)(int version, QWidget *parent);
