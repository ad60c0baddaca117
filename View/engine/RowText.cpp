#include "View/engine/RowText.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QItemSelectionModel>

#include "View/engine/ClipboardText.h"

namespace {

template <typename ValueOf>
QStringList Line(int columns, ValueOf valueOf)
{
    QStringList line;
    for (int column = 0; column < columns; ++column)
        line.append(valueOf(column).toString());
    return line;
}

}  // namespace

QString RowText(const QAbstractItemModel &model, const QList<int> &rows)
{
    const int columns = model.columnCount();
    CellRows lines;
    lines.reserve(static_cast<std::size_t>(rows.size()) + 1);
    lines.push_back(
        Line(columns, [&](int column) { return model.headerData(column, Qt::Horizontal); }));
    for (const int row : rows)
        lines.push_back(Line(columns, [&](int column) { return model.index(row, column).data(); }));
    return TextOfCells(lines);
}

QList<int> SelectedRows(const QAbstractItemView &view)
{
    QList<int> rows;
    for (const QModelIndex &index : view.selectionModel()->selectedRows())
        rows.append(index.row());
    if (rows.isEmpty()) {
        rows.reserve(view.model()->rowCount());
        for (int row = 0; row < view.model()->rowCount(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}
