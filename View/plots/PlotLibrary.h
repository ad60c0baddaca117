// libQuorlinPlots.so, which draws: found beside the plug-in, loaded at first use.
//
// It is bound to its own Qwt, whatever Qwt the host has loaded, and what it brings is seen by nobody else
// (not under sanitizers, which allow no such binding). It stays loaded. GUI thread.
//
//   if (IPlot *plot = CPlotLibrary::Get().Make(window))
//       layout->addWidget(plot->Widget());
//   else
//       action->setToolTip(CPlotLibrary::Get().Missing());
#pragma once

#include <QString>

#include "View/plots/PlotInterface.h"

class CPlotLibrary
{
public:
    static CPlotLibrary &Get();

    // What is missing and the Debian package that has it, as a sentence; empty when plots can be made.
    // Looks at files alone as long as nothing seems to be missing.
    QString Missing();
    // Null when something is missing.
    IPlot *Make(QWidget *parent);

private:
    void Load();

    MakePlot m_make = nullptr;
    QString m_missing;
    bool m_isLoaded = false;  // it was tried
};
