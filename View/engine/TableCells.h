// Editors in the cells of a table, of a result table and of a column table alike.
//
// A table of hundreds of editors spends its time on placing them. So the item behind an editor is
// not asked for its look, an editor is a child of the viewport from the start, and it is not asked
// for its best size. GUI thread.
//
//   FillPlaces(table);  // once, before the first cell
//   SCellWish wish{ECellUse::Column, table->viewport(), ...};
//   PlaceEditor(table, row, column, type->makeCell(wish));
#pragma once

#include <QStringList>

class QTableWidget;
class QWidget;

constexpr int kCellRowHeight = 22;  // pixels

void FillPlaces(QTableWidget *table);
// At once, from the first column on.
void SetColumnHeaders(QTableWidget *table, const QStringList &headers);
void PlaceEditor(QTableWidget *table, int row, int column, QWidget *editor);
