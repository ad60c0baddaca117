// Rows of a table's model as text for a spreadsheet (ClipboardText.h), the captions of the columns first.
// GUI thread.
//
//   QGuiApplication::clipboard()->setText(RowText(*view->model(), SelectedRows(*view)));
#pragma once

#include <QList>
#include <QString>

class QAbstractItemModel;
class QAbstractItemView;

QString RowText(const QAbstractItemModel &model, const QList<int> &rows);
// In the order of the view; all rows when none is selected.
QList<int> SelectedRows(const QAbstractItemView &view);
