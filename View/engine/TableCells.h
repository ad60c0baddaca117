// Editors in the cells of a table, of a result table and of a column table alike.
//
// Placing an editor is what a table of hundreds of them costs, so a cell fills its place without
// the look of an item behind it being worked out, is a child of the viewport from the start, and is
// not asked for its best size. GUI thread.
//
//   FillPlaces(table);  // once, before the first cell
//   SCellWish wish{ECellUse::Column, table->viewport(), ...};
//   PlaceEditor(table, row, column, type->makeCell(wish));
#pragma once

class QTableWidget;
class QWidget;

constexpr int kCellRowHeight = 22;  // pixels

void FillPlaces(QTableWidget *table);
void PlaceEditor(QTableWidget *table, int row, int column, QWidget *editor);
