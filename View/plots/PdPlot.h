// The power detector against TX power, of all readings while a tone ran: a curve a band, route and
// frequency, each with its line of best fit.
//
// The remark has the formula of each line and the largest deviation of a reading from it. A line needs
// readings at two powers. GUI thread.
//
//   m_plot->AddReading(response);
#pragma once

#include <memory>

#include <QJsonObject>

#include "View/plots/PlotSource.h"

class CPdPlot : public CPlotSource
{
    Q_OBJECT

public:
    using CPlotSource::CPlotSource;

    QString Title() const override { return QStringLiteral("Power detector - plot"); }
    QString Key() const override { return QStringLiteral("powerDetector"); }
    SPlotShape Shape() const override;
    std::vector<SPlotCurve> Curves() const override;
    QString Remark() const override;
    void Clear() override;

    // The answer of a reading, with the settings that it was asked with; one that has failed is left out.
    void AddReading(const QJsonObject &response);

private:
    struct SSeries
    {
        QString name = {};
        std::vector<std::pair<double, float>> points = {};  // TX power and reading, dBm, by power
    };

    std::vector<SSeries> m_series;
};
