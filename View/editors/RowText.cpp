#include "View/editors/RowText.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QItemSelectionModel>

namespace {

QString CellOf(const QVariant &value)
{
    QString text = value.toString();
    for (const char separator : {'\t', '\n', '\r'})
        text.replace(QLatin1Char(separator), QLatin1Char(' '));
    return text;
}

template <typename ValueOf>
QString Line(int columns, ValueOf valueOf)
{
    QString line;
    for (int column = 0; column < columns; ++column) {
        if (column > 0)
            line += QLatin1Char('\t');
        line += CellOf(valueOf(column));
    }
    return line + QLatin1Char('\n');
}

}  // namespace

QString RowText(const QAbstractItemModel &model, const QList<int> &rows)
{
    const int columns = model.columnCount();
    QString text =
        Line(columns, [&](int column) { return model.headerData(column, Qt::Horizontal); });
    for (const int row : rows)
        text += Line(columns, [&](int column) { return model.index(row, column).data(); });
    return text;
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
