// The table below a plot: a row a curve that is shown, with the figures of its points in view.
//
// With cursors, the values at both and their difference stand behind them, and a row on top has their
// places on the x axis. GUI thread.
//
//   ShowPlotFigures(table, *plot, curves, true);
#pragma once

#include <vector>

#include "View/plots/PlotInterface.h"

class QTableWidget;

// The number of the curve in the current row; -1 when there is none.
int PlotCurveOf(const QTableWidget &table);

void ShowPlotFigures(QTableWidget *table, const IPlot &plot, const std::vector<SPlotCurve> &curves,
                     bool hasCursors);
