// What a page's plot shows: a page has one source, which collects its points and makes curves of them.
//
// The points are kept whether a window shows them or not. GUI thread; the page owns it.
//
//   m_plot = new CRssiPlot(this);
//   AddPlotAction(this, m_plot);
//   m_plot->AddRun(response);
#pragma once

#include <limits>
#include <vector>

#include <QObject>
#include <QString>

#include "Model/CalDifferences.h"
#include "View/plots/PlotInterface.h"

// A second image beside the page's, which the user chooses in the plot's window. Reading it leaves what the page
// shows as it is. What becomes of it comes by the source's signals.
class ISecondImage
{
public:
    virtual ~ISecondImage() = default;

    virtual void CompareWith(const SComparedSide &side) = 0;
    virtual void Drop() = 0;
    virtual bool IsThere() const = 0;
    virtual bool IsUnderWay() const = 0;  // it is being read
};

class CPlotSource : public QObject
{
    Q_OBJECT

public:
    using Xs = std::vector<double>;
    using Ys = std::vector<float>;
    static constexpr double kKhzPerMhz = 1000;
    static constexpr float kNoValue = std::numeric_limits<float>::quiet_NaN();

    using QObject::QObject;

    virtual QString Title() const = 0;  // of its window
    virtual QString Key() const = 0;    // under which settings remember the window
    virtual SPlotShape Shape() const = 0;
    virtual std::vector<SPlotCurve> Curves() const = 0;
    // Words below the curves, such as the formula of a fit.
    virtual QString Remark() const { return {}; }
    // What becomes of the second image; for the status line.
    virtual QString Status() const { return {}; }

    // A window shows it from now on.
    virtual void Open() {}
    virtual bool HasClear() const { return true; }
    virtual void Clear() {}
    // Null where there can be none.
    virtual ISecondImage *Second() { return nullptr; }
    // The user clicked a point.
    virtual void GoTo(int /*curve*/, int /*point*/) {}

signals:
    void Signal_Curves();  // there are others, or other points
    void Signal_Points();  // the same curves have more points
};
