// The page's action "Plot...", which opens the window of its plot (PlotWindow.h).
//
// It is off, and its tool tip says which Debian package is missing, where no plot can be made
// (PlotLibrary.h). GUI thread; the page owns action and window.
//
//   AddPlotAction(this, m_plot);
#pragma once

class CAutoBindingDataModelDockWidget;
class CPlotSource;

void AddPlotAction(CAutoBindingDataModelDockWidget *page, CPlotSource *source);
