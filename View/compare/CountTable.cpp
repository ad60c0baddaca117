#include "View/compare/CountTable.h"

#include <algorithm>

#include <QHeaderView>
#include <QTableWidget>

namespace {

enum ECountColumn
{
    eName,
    eCount,
    eLargest
};

QTableWidgetItem *Cell(const QString &text, Qt::Alignment alignment)
{
    auto *cell = new QTableWidgetItem(text);
    cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    cell->setTextAlignment(alignment | Qt::AlignVCenter);
    return cell;
}

}  // namespace

void FillCountTable(QTableWidget *table, const QString &heading, const QVector<SCalCount> &counts)
{
    const bool hasLargest = std::any_of(counts.begin(), counts.end(), [](const SCalCount &count) {
        return !count.largest.isEmpty();
    });
    QStringList headings = {heading, QStringLiteral("Count")};
    if (hasLargest)
        headings.append(QStringLiteral("Largest"));
    table->clear();
    table->setColumnCount(headings.size());
    table->setHorizontalHeaderLabels(headings);
    table->setRowCount(counts.size());
    for (int row = 0; row < counts.size(); ++row) {
        table->setItem(row, eName, Cell(counts[row].name, Qt::AlignLeft));
        table->setItem(row, eCount, Cell(QString::number(counts[row].count), Qt::AlignRight));
        if (hasLargest)
            table->setItem(row, eLargest, Cell(counts[row].largest, Qt::AlignRight));
    }
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 4);
    table->resizeColumnsToContents();
    table->horizontalHeader()->setSectionResizeMode(eName, QHeaderView::Stretch);
}
