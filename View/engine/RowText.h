// Rows of a table's model as text for a spreadsheet (ClipboardText.h), the captions of the columns first.
// The view selects rows. GUI thread.
//
//   SaveWhole(path, RowText(*view).toUtf8());
//   m_copy.Start(RowsOf(*view), view->model(), done);   // however many they are
#pragma once

#include <QString>

#include "View/engine/RowCopy.h"

class QAbstractItemView;

// The selected rows in the order of the view; all rows when none is selected.
SRowCopy RowsOf(const QAbstractItemView &view);
QString RowText(const QAbstractItemView &view);
