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

// By the ranges of the selection: Qt's own list of rows looks at every cell.
std::vector<int> SelectedRows(const QAbstractItemView &view)
{
    std::vector<int> rows;
    const auto add = [&rows](int first, int last) {
        for (int row = first; row <= last; ++row)
            rows.push_back(row);
    };
    for (const QItemSelectionRange &range : view.selectionModel()->selection())
        add(range.top(), range.bottom());
    if (rows.empty())
        add(0, view.model()->rowCount() - 1);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

}  // namespace

SRowCopy RowsOf(const QAbstractItemView &view)
{
    const QAbstractItemModel *const model = view.model();
    const int columns = model->columnCount();
    return {
        .header =
            Line(columns, [&](int column) { return model->headerData(column, Qt::Horizontal); }),
        .rows = SelectedRows(view),
        .line =
            [model, columns](int row) {
                return Line(columns, [&](int column) { return model->index(row, column).data(); });
            },
    };
}

QString RowText(const QAbstractItemView &view)
{
    const SRowCopy rows = RowsOf(view);
    QString text = TextOfCells({rows.header});
    for (const int row : rows.rows)
        text += TextOfCells({rows.line(row)});
    return text;
}
