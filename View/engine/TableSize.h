// Sizes of a table that shows what it has. Pixels; GUI thread.
//
// A header gets its real width only when it is shown (ShowHeaders).
//
//   ShowHeaders(page);
//   table->setMaximumSize(FitTableSize(table));
#pragma once

#include <QSize>

class QTableWidget;
class QWidget;

// Headers and all cells.
QSize FitTableSize(const QTableWidget *table);
// The first 15 columns, with room for the horizontal scroll bar.
QSize FitWideTableSize(const QTableWidget *table);

// Hides and shows the page once; it stays where it was, and hidden if it was.
void ShowHeaders(QWidget *page);
