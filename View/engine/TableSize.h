// Sizes of a table that shows what it has. Pixels; GUI thread.
//
// A header gets its real width with the layout of its table, which Qt leaves to the first show.
//
//   LayHeadersOut(table);
//   table->setMaximumSize(FitTableSize(table));
#pragma once

#include <QSize>

class QTableWidget;

// Headers and all cells.
QSize FitTableSize(const QTableWidget *table);
// The first 15 columns, with room for the horizontal scroll bar.
QSize FitWideTableSize(const QTableWidget *table);

// Gives the headers their geometry, also while the table is hidden.
void LayHeadersOut(QTableWidget *table);
