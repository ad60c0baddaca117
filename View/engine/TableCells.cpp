#include "View/engine/TableCells.h"

#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableWidget>

#include "View/access/CellNames.h"
#include "View/editors/TableKeys.h"
#include "View/engine/ContextMenu.h"
#include "View/engine/TableCommands.h"

namespace {

// Qt's own delegate works out the look of the item behind an editor, for every editor of the table,
// each time that editors are placed.
class CCellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &) const override
    {
        if (editor->geometry() != option.rect)
            editor->setGeometry(option.rect);
    }
};

}  // namespace

void FillPlaces(QTableWidget *table)
{
    table->setItemDelegate(new CCellDelegate(table));
    if (CTableKeys::Of(table))
        CTableMark::Of(table)->Clear();
    else
        new CTableCommands(table, new CTableKeys(table));
    if (!CCellNames::Of(table))
        new CCellNames(table);
}

// Qt's header looks for its size anew at each label.
void SetColumnHeaders(QTableWidget *table, const QStringList &headers)
{
    {
        const QSignalBlocker quiet(table->model());
        table->setHorizontalHeaderLabels(headers);
    }
    if (table->columnCount() > 0)
        emit table->model()->headerDataChanged(Qt::Horizontal, 0, table->columnCount() - 1);
}

// A widget with a size of its own is not asked for its best one when it is shown.
void PlaceEditor(QTableWidget *table, int row, int column, QWidget *editor)
{
    editor->resize(table->columnWidth(column), table->rowHeight(row));
    table->setCellWidget(row, column, editor);
    LeaveMenuToPage(editor);
    if (CTableKeys *keys = CTableKeys::Of(table))
        keys->Take(editor);
    if (CCellNames *names = CCellNames::Of(table))
        names->Name(row, column, editor);
}
