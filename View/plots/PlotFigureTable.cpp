#include "View/plots/PlotFigureTable.h"

#include <cmath>

#include <QHeaderView>
#include <QTableWidget>

namespace {

constexpr int kFigureCount = 6;  // columns without cursors
constexpr int kDecimals = 3;
constexpr int kGap = 8;  // pixels between the widest text and the next column

QString FigureText(double value)
{
    return std::isnan(value) ? QString() : QString::number(value, 'f', kDecimals);
}

void SetTexts(QTableWidget *table, int row, const QStringList &texts)
{
    for (int c = 0; c < texts.size(); ++c) {
        QTableWidgetItem *item = table->item(row, c);
        if (!item) {
            item = new QTableWidgetItem;
            item->setTextAlignment((c == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
            table->setItem(row, c, item);
        }
        item->setText(texts[c]);
    }
}

}  // namespace

int PlotCurveOf(const QTableWidget &table)
{
    const QTableWidgetItem *item = table.item(table.currentRow(), 0);
    return item ? item->data(Qt::UserRole).toInt() : -1;
}

void ShowPlotFigures(QTableWidget *table, const IPlot &plot, const std::vector<SPlotCurve> &curves,
                     bool hasCursors)
{
    QStringList headers = {"Curve", "Points", "Minimum", "Maximum", "Mean", "Deviation"};
    if (hasCursors)
        headers += QStringList{"At A", "At B", QString::fromUtf8("B \u2212 A")};
    const bool isOther = table->columnCount() != headers.size();
    table->setColumnCount(headers.size());
    table->setHorizontalHeaderLabels(headers);
    const std::array<double, 2> at = plot.Cursors();
    int row = 0;
    const auto add = [&](const QStringList &texts, int curve = -1) {
        if (row >= table->rowCount())
            table->setRowCount(row + 1);
        SetTexts(table, row, texts);
        table->item(row++, 0)->setData(Qt::UserRole, curve);
    };
    if (hasCursors) {
        QStringList texts = {"Cursors"};
        while (texts.size() < kFigureCount)
            texts.append(QString());
        add(texts + QStringList{FigureText(at[0]), FigureText(at[1]), FigureText(at[1] - at[0])});
    }
    for (size_t i = 0; i < curves.size(); ++i) {
        const int curve = static_cast<int>(i);
        if (!curves[i].hasFigures || !plot.IsShown(curve))
            continue;
        const SPlotFigures figures = plot.FiguresInView(curve);
        const bool isEmpty = figures.count == 0;
        QStringList texts = {curves[i].name, QString::number(figures.count)};
        for (const double value :
             {figures.minimum, figures.maximum, figures.mean, figures.deviation})
            texts.append(isEmpty ? QString() : FigureText(value));
        if (hasCursors) {
            const double a = plot.ValueAt(curve, at[0]);
            const double b = plot.ValueAt(curve, at[1]);
            texts += QStringList{FigureText(a), FigureText(b), FigureText(b - a)};
        }
        add(texts, curve);
    }
    table->setRowCount(row);
    if (isOther)
        table->resizeColumnsToContents();
    // Columns grow and do not shrink: live figures must not jump.
    const QAbstractItemView *const view = table;
    for (int c = 0; c < table->columnCount(); ++c)
        table->setColumnWidth(c, qMax(table->columnWidth(c), view->sizeHintForColumn(c) + kGap));
}
