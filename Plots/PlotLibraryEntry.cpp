// The one function of the library.
#include "Plots/Plot.h"

#include "Plots/PlotMouse.h"

extern "C" Q_DECL_EXPORT IPlot *QuorlinMakePlot(int version, QWidget *parent)
{
    if (version != kPlotVersion)
        return nullptr;
    auto *const plot = new CPlot(parent);
    new CPlotMouse(plot);
    return plot;
}
