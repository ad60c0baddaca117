#include "View/engine/RowTableCells.h"

#include <memory>

#include <QHeaderView>
#include <QTableWidget>

#include "Model/JsonPath.h"
#include "Support/Log.h"
#include "View/editors/FormFont.h"
#include "View/editors/TableKeys.h"
#include "View/engine/TableCells.h"
#include "View/engine/TableGroup.h"

namespace {

constexpr int kEditorRows = 64;  // newest rows that hold editors: more than a page shows
constexpr Qt::Alignment kUsualAlignment = Qt::AlignLeft | Qt::AlignVCenter;

// An item of the table that looks like the editor would.
QTableWidgetItem *ItemOf(const QTableWidget *table, const QWidget *cell, const SDataType &type)
{
    auto *item = new QTableWidgetItem(type.text(cell));
    item->setFont(FormFont(table));
    item->setTextAlignment(type.alignment ? type.alignment(cell) : kUsualAlignment);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);  // a result is for reading
    return item;
}

// Turns the editors of one row into items; false when it has none. Goes by the editor's own class:
// a later document may name another data type for its column.
bool RetireRow(QTableWidget *table, int row)
{
    bool had = false;
    for (int c = 0; c < table->columnCount(); ++c) {
        QWidget *cell = table->cellWidget(row, c);
        const SDataType *type = cell ? FindScalarTypeOfWidget(cell) : nullptr;
        if (!type)
            continue;
        had = true;
        QTableWidgetItem *item = ItemOf(table, cell, *type);
        table->removeCellWidget(row, c);
        table->setItem(row, c, item);
    }
    return had;
}

// Of the rows in front of first, those that new rows have pushed out of the newest.
void RetireOldRows(QTableWidget *table, int first)
{
    int row = qMin(first, table->rowCount() - kEditorRows) - 1;
    while (row >= 0 && RetireRow(table, row))
        --row;
}

// Puts a new cell into the table: as an editor among the newest rows, as an item above them.
void PlaceCell(QTableWidget *table, int row, int column, const SDataType &type,
               const SCellWish &wish)
{
    if (row < table->rowCount() - kEditorRows) {
        SCellWish unplaced = wish;
        unplaced.parent = nullptr;
        const std::unique_ptr<QWidget> cell(type.makeCell(unplaced));
        table->setItem(row, column, ItemOf(table, cell.get(), type));
        return;
    }
    PlaceEditor(table, row, column, type.makeCell(wish));
}

}  // namespace

SColumn ReadColumn(const STableGroup &group, const QString &member, ECellUse use,
                   QTableWidget *table)
{
    const QString name = group.Member(member, "trait.dataType").toString();
    const SDataType *type = FindDataType(name);
    return {.member = member,
            .dataType = name,
            .type = type && type->inRowTable ? type : nullptr,
            .wish = {.use = use,
                     .parent = table->viewport(),
                     .entry = group.Member(member, "trait.value").toObject()}};
}

QString CellPath(const QString &member, const QJsonValue &instance)
{
    return member + QLatin1Char('.') + instance.toString() + QLatin1String(".defaultValue");
}

// Whatever its form says. A table that scrolls by rows keeps a whole row at its top: new rows at its
// end would shift what is shown by a part of a row, and back, which moves every editor twice.
void PrepareTable(QTableWidget *table)
{
    QHeaderView *header = table->verticalHeader();
    header->setDefaultSectionSize(
        qBound(header->minimumSectionSize(), kCellRowHeight, header->maximumSectionSize()));
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // The table would place every editor at each new row, before it knows where. Its header, which
    // hears of new rows too, has them placed with the layout.
    QObject::disconnect(table->model(), SIGNAL(rowsInserted(QModelIndex, int, int)), table,
                        SLOT(rowsInserted(QModelIndex, int, int)));
    FillPlaces(table);
    CTableKeys::Of(table)->SetForReading(true);
}

void MakeCells(QTableWidget *table, const STableGroup &group, ECellUse use, int first,
               const char *unsupported)
{
    RetireOldRows(table, first);
    for (int c = 0; c < qMin(group.members.size(), table->columnCount()); ++c) {
        SColumn column = ReadColumn(group, group.members[c], use, table);
        if (use == ECellUse::RowInit)
            qCDebug(lcEngine) << "---> [Init][type2] ==" << column.member
                              << "== Trait JSON Object <---"
                              << group.Member(column.member, "trait");
        for (int r = first; r < group.instances.size(); ++r) {
            const QString path = CellPath(column.member, group.instances.at(r));
            column.wish.value = GetJsonValueConst(group.properties, path);
            if (use == ECellUse::RowInit)
                qCDebug(lcEngine) << "---> [Init][type2] ==" << path << "== Default Value  <---"
                                  << column.wish.value;
            if (column.type)
                PlaceCell(table, r, c, *column.type, column.wish);
            else if (use == ECellUse::RowInit)
                qCCritical(lcEngine) << unsupported << column.dataType;
            else
                qCCritical(lcEngine) << unsupported;
        }
    }
}

void LayOut(QTableWidget *table)
{
    table->visualRect(table->model()->index(table->rowCount() - 1, 0));
}
