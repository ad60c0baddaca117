#include "View/engine/TableSize.h"

#include <QHeaderView>
#include <QTableWidget>

namespace {

constexpr int kWideColumns = 15;  // columns that the wide size counts

}  // namespace

QSize FitTableSize(const QTableWidget *table)
{
    return {table->verticalHeader()->width() + table->horizontalHeader()->length(),
            table->horizontalHeader()->height() + table->verticalHeader()->length()};
}

QSize FitWideTableSize(const QTableWidget *table)
{
    int width = table->verticalHeader()->width();
    for (int c = 0; c < qMin(kWideColumns, table->columnCount()); ++c)
        width += table->columnWidth(c);
    return {width, 2 * table->horizontalHeader()->height() + table->verticalHeader()->length()};
}

void LayHeadersOut(QTableWidget *table)
{
    QMetaObject::invokeMethod(table, "updateGeometries");
}
