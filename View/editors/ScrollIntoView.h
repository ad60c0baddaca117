// Scrolls what gets the focus into view: in its table, and in all scroll areas around it. GUI thread.
//
//   ScrollIntoView(cell, table);
#pragma once

class QTableWidget;
class QWidget;

// table: that the widget is a cell of; null when it is none.
void ScrollIntoView(QWidget *widget, QTableWidget *table);
