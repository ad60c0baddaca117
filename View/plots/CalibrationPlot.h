// The curves of a calibration page: rows of its tables over the frequencies in another table, a curve a
// row, as the page shows them, following each edit.
//
// A frequency of 0 is none. A click on a point goes to its cell, which gets the focus. GUI thread; the
// record outlives the page.
//
//   constexpr SCurveTable kTables[] = {{.table = "...paHighPaGain"}};
//   constexpr SCalibrationCurves kCurves = {.frequencies = "...ulFreq", .tables = kTables, ...};
//   AddPlotAction(this, new CCalibrationPlot(this, kCurves));
#pragma once

#include <memory>
#include <span>

#include <QTimer>

#include "View/plots/PlotSource.h"

class CAutoBindingDataModelDockWidget;
class QTableWidget;

struct SCurveTable
{
    const char *table = "";  // object name
    const char *name = "";   // in front of the row's caption
    EPlotLine line = EPlotLine::Solid;
};

struct SCalibrationCurves
{
    const char *title = "";
    const char *key = "";
    const char *x = "";  // titles of the axes
    const char *left = "";
    const char *frequencies = "";  // object name of the table, kHz
    std::span<const SCurveTable> tables = {};
    // A selector, by object name, that has to show this for the curves to be there, and what is
    // said while it does not; null: they always are.
    const char *selector = nullptr;
    const char *selected = nullptr;
    const char *otherwise = "";
};

class CCalibrationPlot : public CPlotSource
{
    Q_OBJECT

public:
    CCalibrationPlot(CAutoBindingDataModelDockWidget *page, const SCalibrationCurves &curves);

    QString Title() const override { return QLatin1String(m_is.title); }
    QString Key() const override { return QLatin1String(m_is.key); }
    SPlotShape Shape() const override;
    std::vector<SPlotCurve> Curves() const override { return m_curves; }
    QString Remark() const override;
    bool HasClear() const override { return false; }
    void Open() override;
    void GoTo(int curve, int point) override;

private:
    struct SRow
    {
        QTableWidget *table;
        int row;
    };

    QTableWidget *Table(const char *name) const;
    bool HasCurves() const;
    void Follow(QTableWidget *table);
    bool Read();
    void Refresh();

    CAutoBindingDataModelDockWidget *const m_page;
    const SCalibrationCurves &m_is;
    QTimer m_refresh;
    std::vector<SPlotCurve> m_curves;
    std::vector<SRow> m_rows;    // of each curve
    std::vector<int> m_columns;  // of each point
};
