// The cells of a table of results, and how its rows are shown fast.
//
// A table grows for days, and an editor costs a tenth of a millisecond at every later append. So
// only the newest rows hold editors; a row that grows older turns into plain items that look the
// same. GUI thread.
//
//   PrepareTable(table);                 // once, before the first row
//   table->setRowCount(group.instances.size());
//   MakeCells(table, group, ECellUse::RowAppend, firstNewRow, "unsupported data type");
//   LayOut(table);
#pragma once

#include <QString>

#include "View/engine/DataTypes.h"

struct STableGroup;

// One column of the table: its member, and how its cells are made.
struct SColumn
{
    QString member;
    QString dataType;
    const SDataType *type;  // null when a row table cannot show it
    SCellWish wish;
};

SColumn ReadColumn(const STableGroup &group, const QString &member, ECellUse use,
                   QTableWidget *table);
// Of a cell's value, below the group's memberProperty.
QString CellPath(const QString &member, const QJsonValue &instance);

void PrepareTable(QTableWidget *table);
// Makes the cells of the rows from first to the last instance, column by column. Members beyond the
// table's columns are not shown. unsupported: said of each cell whose data type no row table has.
void MakeCells(QTableWidget *table, const STableGroup &group, ECellUse use, int first,
               const char *unsupported);
// Lays the rows out now, and with them every editor, rather than again at each later step: the
// header's width and the scroll bar's range are those of all rows from then on.
void LayOut(QTableWidget *table);
