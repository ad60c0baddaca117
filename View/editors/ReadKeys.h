// The keys of a table for reading: the focus is on the table itself, and they move and grow its mark.
//
//   arrows               the cell beside; with Ctrl the last one that way
//   PageUp, PageDown     a view up and down
//   Home, End            the first and the last column; with Ctrl the first and the last cell
//   with Shift           mark the cells from where the mark began up to there
//
// A plain move marks one cell, so that it is seen where the keys are. GUI thread.
//
//   if (PressReadKey(table, mark, event)) ...
#pragma once

class CTableMark;
class QKeyEvent;
class QTableWidget;

// False when the key is none of these.
bool PressReadKey(const QTableWidget *table, CTableMark *mark, const QKeyEvent *event);
