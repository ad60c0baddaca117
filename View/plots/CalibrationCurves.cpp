#include "View/plots/CalibrationCurves.h"

#include <algorithm>
#include <utility>

#include <QTableWidget>

#include "Model/MemberPath.h"
#include "View/engine/ColumnCells.h"
#include "View/engine/TableGroup.h"
#include "View/plots/PlotSource.h"

namespace {

constexpr int kPlotColors = 8;

// Columns with a frequency, by frequency.
struct SCurveAxis
{
    std::shared_ptr<CPlotSource::Xs> x = std::make_shared<CPlotSource::Xs>();
    std::shared_ptr<std::vector<int>> columns = std::make_shared<std::vector<int>>();
};

SCurveAxis AxisOf(const QStringList &frequencies)
{
    std::vector<std::pair<double, int>> found;
    for (int c = 0; c < frequencies.size(); ++c) {
        if (const double kHz = frequencies[c].toDouble(); kHz > 0)
            found.emplace_back(kHz / CPlotSource::kKhzPerMhz, c);
    }
    std::sort(found.begin(), found.end());
    SCurveAxis axis;
    for (const auto &[frequency, column] : found) {
        axis.x->push_back(frequency);
        axis.columns->push_back(column);
    }
    return axis;
}

std::shared_ptr<CPlotSource::Ys> Values(const QStringList &texts, const std::vector<int> &columns)
{
    auto y = std::make_shared<CPlotSource::Ys>();
    for (const int c : columns) {
        bool isNumber = false;
        const float value = texts.value(c).toFloat(&isNumber);
        y->push_back(isNumber ? value : CPlotSource::kNoValue);
    }
    return y;
}

QString RowCaption(const QTableWidget &table, int row)
{
    const QTableWidgetItem *caption = table.verticalHeaderItem(row);
    return caption ? caption->text() : QString::number(row);
}

bool IsSame(const SCalibrationCurve &a, const SCalibrationCurve &b)
{
    const auto isSameValue = [](float one, float other) {
        return one == other || (one != one && other != other);
    };
    return a.curve.name == b.curve.name && *a.curve.x == *b.curve.x &&
           std::equal(a.curve.y->begin(), a.curve.y->end(), b.curve.y->begin(), b.curve.y->end(),
                      isSameValue);
}

}  // namespace

QVector<QStringList> ShownTexts(QTableWidget *table)
{
    CColumnCells *const cells = CColumnCells::Of(table);
    QVector<QStringList> texts;
    for (int r = 0; cells && r < table->rowCount(); ++r) {
        QStringList row;
        for (int c = 0; c < table->columnCount(); ++c)
            row.append(cells->Text(r, c));
        texts.append(row);
    }
    return texts;
}

QVector<QStringList> DocumentTexts(const QJsonObject &document, const QTableWidget *table)
{
    const STableGroup group(document, PathFromObjectName(table->objectName()));
    QVector<QStringList> texts;
    for (const QString &member : group.rows) {
        const QJsonArray values = group.Member(member, "trait.defaultValue").toArray();
        QStringList row;
        for (int c = 0; c < table->columnCount(); ++c)
            row.append(ColumnElement(values, c).toString());
        texts.append(row);
    }
    return texts;
}

std::vector<SCalibrationCurve> MakeCurves(const QWidget *page, const SCurveSource &source,
                                          const TableTexts &texts)
{
    const auto find = [page](const char *name) {
        return page->findChild<QTableWidget *>(QLatin1String(name));
    };
    std::vector<SCalibrationCurve> curves;
    QTableWidget *const frequencies = find(source.frequencies);
    if (!frequencies)
        return curves;
    const SCurveAxis axis = AxisOf(texts(frequencies).value(0));
    for (const SCurveTable &one : source.tables) {
        QTableWidget *const table = find(one.table);
        if (!table)
            continue;
        const QVector<QStringList> rows = texts(table);
        for (int r = 0; r < std::min(rows.size(), table->rowCount()); ++r)
            curves.push_back({.curve = {.name = QLatin1String(one.name) + RowCaption(*table, r),
                                        .color = r % kPlotColors,
                                        .line = one.line,
                                        .hasPoints = true,
                                        .x = axis.x,
                                        .y = Values(rows[r], *axis.columns)},
                              .table = table,
                              .row = r,
                              .columns = axis.columns});
    }
    return curves;
}

bool AreSame(const std::vector<SCalibrationCurve> &some,
             const std::vector<SCalibrationCurve> &others)
{
    return std::equal(some.begin(), some.end(), others.begin(), others.end(), IsSame);
}
