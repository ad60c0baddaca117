// The curves of a calibration page: rows of its tables over the frequencies in another table, a curve a
// row, as the page shows them, following each edit.
//
// A second image stands beside them as thin lines of the same colours, under the selection that the page
// shows. A click on a point goes to its cell, which gets the focus. GUI thread; the record outlives the page.
//
//   constexpr SCurveTable kTables[] = {{.table = "...paHighPaGain"}};
//   constexpr SCalibrationCurves kCurves = {.curves = {.frequencies = "...ulFreq", .tables = kTables}, ...};
//   AddPlotAction(this, new CCalibrationPlot(this, kCurves, new CSecondImage(page)));
#pragma once

#include <QTimer>

#include "View/plots/CalibrationCurves.h"
#include "View/plots/PlotSource.h"

class CAutoBindingDataModelDockWidget;
class CSecondImage;

struct SCalibrationCurves
{
    const char *title = "";
    const char *key = "";
    const char *x = "";  // titles of the axes
    const char *left = "";
    SCurveSource curves = {};
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
    // The page owns the second image.
    CCalibrationPlot(CAutoBindingDataModelDockWidget *page, const SCalibrationCurves &curves,
                     CSecondImage *second);

    QString Title() const override { return QLatin1String(m_is.title); }
    QString Key() const override { return QLatin1String(m_is.key); }
    SPlotShape Shape() const override;
    std::vector<SPlotCurve> Curves() const override;
    QString Remark() const override;
    QString Status() const override;
    bool HasClear() const override { return false; }
    ISecondImage *Second() override;
    void Open() override;
    void GoTo(int curve, int point) override;

private:
    QString Selection() const;
    bool HasCurves() const;
    void Follow(const char *table);
    bool Read();
    void AddSecond();
    void Refresh();

    CAutoBindingDataModelDockWidget *const m_page;
    const SCalibrationCurves &m_is;
    CSecondImage *const m_second;
    QTimer m_refresh;
    std::vector<SCalibrationCurve> m_curves;
    bool m_hasSecond = false;  // some of them are the second image's
};
