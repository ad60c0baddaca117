// RSSI over the channels' frequencies, main and diversity, of the last ten runs of the RSSI page.
//
// The newest run has wide lines, the runs before it thin ones. Channels that the DUT did not measure have
// no point. GUI thread.
//
//   m_plot->AddRun(response);
#pragma once

#include <deque>
#include <memory>

#include <QJsonObject>

#include "View/plots/PlotSource.h"

class CRssiPlot : public CPlotSource
{
    Q_OBJECT

public:
    using CPlotSource::CPlotSource;

    QString Title() const override { return QStringLiteral("RSSI - plot"); }
    QString Key() const override { return QStringLiteral("rssi"); }
    SPlotShape Shape() const override;
    std::vector<SPlotCurve> Curves() const override;
    void Clear() override;

    // The answer of a run that succeeded.
    void AddRun(const QJsonObject &response);

private:
    struct SRun
    {
        int number = 0;
        std::vector<SPlotCurve> curves = {};
    };

    std::deque<SRun> m_runs;  // the newest first
    int m_lastNumber = 0;
};
