// Curves of calibration data from the texts of a page's tables: rows of some tables over the frequencies in
// another one.
//
// A frequency of 0 is none. The texts come from what the page shows, or from a document of the same page with
// other values. GUI thread.
//
//   std::vector<SCalibrationCurve> curves = MakeCurves(page, what, ShownTexts);
//   curves[0].curve.name   // "Main G0"
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <vector>

#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include "View/plots/PlotInterface.h"

class QTableWidget;
class QWidget;

struct SCurveTable
{
    const char *table = "";  // object name
    const char *name = "";   // in front of the row's caption
    EPlotLine line = EPlotLine::Solid;
};

struct SCurveSource
{
    const char *frequencies = "";  // object name of the table, kHz
    std::span<const SCurveTable> tables = {};
};

struct SCalibrationCurve
{
    SPlotCurve curve = {};
    QTableWidget *table = nullptr;
    int row = 0;
    std::shared_ptr<const std::vector<int>> columns = {};  // of each point
};

// The texts of a table, by row and column; none where it has no such cells.
using TableTexts = std::function<QVector<QStringList>(QTableWidget *table)>;

QVector<QStringList> ShownTexts(QTableWidget *table);
QVector<QStringList> DocumentTexts(const QJsonObject &document, const QTableWidget *table);

std::vector<SCalibrationCurve> MakeCurves(const QWidget *page, const SCurveSource &source,
                                          const TableTexts &texts);
// True when both show the same.
bool AreSame(const std::vector<SCalibrationCurve> &some,
             const std::vector<SCalibrationCurve> &others);
