// RSRP and RSSI by antenna, and BLER, over the time since the run began.
//
// The DUT does not tell when it measured a report. The reports of one fetch stand evenly between the
// fetch before and this one. A report without a value, as of a failed fetch, is a gap in the figures.
// GUI thread.
//
//   m_plot->Add(document);   // with the cells of the new rows alone
//   m_plot->Clear();
#pragma once

#include <array>
#include <memory>

#include <QElapsedTimer>
#include <QJsonObject>

#include "View/plots/PlotSource.h"

class CRsrpPlot : public CPlotSource
{
    Q_OBJECT

public:
    explicit CRsrpPlot(QObject *page);

    QString Title() const override;
    QString Key() const override { return QStringLiteral("rsrp"); }
    SPlotShape Shape() const override;
    std::vector<SPlotCurve> Curves() const override;
    void Clear() override;

    // The answer of a fetch; rows that were here before must not be in it.
    void Add(const QJsonObject &document);

private:
    static constexpr size_t kColumnCount = 9;

    bool AddRows(const QJsonObject &properties);
    void Begin();

    QElapsedTimer m_clock;
    double m_lastFetch = 0;  // s
    std::shared_ptr<Xs> m_times;
    std::array<std::shared_ptr<Ys>, kColumnCount> m_values;  // null: the column has no row
};
