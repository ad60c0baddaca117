// groupType 2: a growing table of results.
//
// A table grows for days, so only its newest rows hold editor widgets: an editor costs a tenth of a
// millisecond at every later append. A row that grows older turns into plain items that look the
// same.
#include <QAbstractSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <memory>
#include <utility>

#include "Model/JsonPath.h"
#include "Support/Log.h"
#include "View/editors/FormFont.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/DataTypes.h"
#include "View/engine/TableCells.h"
#include "View/engine/TableGroup.h"
#include "View/engine/WidgetIndex.h"

namespace {

constexpr int kEditorRows = 256;  // newest rows that hold editor widgets
constexpr int kNarrowRows = 16;   // rows up to which the table is sized to all its columns
constexpr int kWideColumns = 15;  // columns that the wide size counts
constexpr int kEmptyHeightFactor = 6;
constexpr int kAppendMargin = 20;  // pixels for the vertical scroll bar

// One column of the table: its member, and how its cells are made.
struct SColumn
{
    QString member;
    QString dataType;
    const SDataType *type;  // null when a row table cannot show it
    SCellWish wish;
};

SColumn ReadColumn(const STableGroup &group, const QString &member, ECellUse use,
                   QTableWidget *table)
{
    const QString name = group.Member(member, "trait.dataType").toString();
    const SDataType *type = FindDataType(name);
    return {member,
            name,
            type && type->inRowTable ? type : nullptr,
            {use, table->viewport(), group.Member(member, "trait.value").toObject(), {}, {}}};
}

QString CellPath(const QString &member, const QJsonValue &instance)
{
    return member + QLatin1Char('.') + instance.toString() + QLatin1String(".defaultValue");
}

Qt::Alignment AlignmentOf(const QWidget *cell)
{
    if (auto *label = qobject_cast<const QLabel *>(cell))
        return label->alignment();
    if (auto *box = qobject_cast<const QAbstractSpinBox *>(cell))
        return (box->alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
    return Qt::AlignLeft | Qt::AlignVCenter;
}

// An item of the table that looks like the editor would.
QTableWidgetItem *ItemOf(const QTableWidget *table, const QWidget *cell, const SDataType &type)
{
    auto *item = new QTableWidgetItem(type.text(cell));
    item->setFont(FormFont(table));
    item->setTextAlignment(AlignmentOf(cell));
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

// The table as result rows need it, whatever its form says; done once, before the first row. A
// table that scrolls by rows keeps a whole row at its top: new rows at its end then shift what is
// shown by a part of a row, and back, which moves every editor twice.
void PrepareTable(QTableWidget *table)
{
    QHeaderView *header = table->verticalHeader();
    header->setDefaultSectionSize(
        qBound(header->minimumSectionSize(), kCellRowHeight, header->maximumSectionSize()));
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // All that the table itself does for new rows is to place every editor, before it knows where;
    // the header, which hears of them too, has them placed with the layout.
    QObject::disconnect(table->model(), SIGNAL(rowsInserted(QModelIndex, int, int)), table,
                        SLOT(rowsInserted(QModelIndex, int, int)));
    FillPlaces(table);
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

// Lays the rows out now, which places every editor, rather than once more at each later step: only
// then are the header's width and the scroll bar's range those of all rows.
void LayOut(QTableWidget *table)
{
    table->visualRect(table->model()->index(table->rowCount() - 1, 0));
}

// Makes the cells of the rows from first to the last instance, column by column. Members beyond the
// table's columns are not shown.
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

void SetFixedTableSize(QTableWidget *table, const QSize &size)
{
    table->setMaximumSize(size);
    table->setMinimumSize(table->maximumSize());
}

// An empty result table shows room for rows.
QSize WithRoomForRows(const QTableWidget *table, QSize size)
{
    if (table->rowCount() <= 1)
        size.setHeight(size.height() * kEmptyHeightFactor);
    return size;
}

}  // namespace

QSize CAutoBindingDataModelDockWidget::FitTableSize(QTableWidget *table)
{
    return {table->verticalHeader()->width() + table->horizontalHeader()->length(),
            table->horizontalHeader()->height() + table->verticalHeader()->length()};
}

QSize CAutoBindingDataModelDockWidget::FitWideTableSize(QTableWidget *table)
{
    int width = table->verticalHeader()->width();
    for (int c = 0; c < qMin(kWideColumns, table->columnCount()); ++c)
        width += table->columnWidth(c);
    return {width, 2 * table->horizontalHeader()->height() + table->verticalHeader()->length()};
}

// Headers get their real geometry only when the page is shown.
void CAutoBindingDataModelDockWidget::ShowHeaders()
{
    const QPoint position = pos();
    const bool wasVisible = isVisible();
    hide();
    show();
    setVisible(wasVisible);
    if (wasVisible && !position.isNull())
        move(position);
}

// All tables of a page at once, since showing their headers shows every editor of the page again.
void CAutoBindingDataModelDockWidget::SizeTables()
{
    const auto sizings = std::exchange(m_sizings, {});
    if (sizings.empty())
        return;
    ShowHeaders();
    for (const auto &size : sizings)
        size();
}

void CAutoBindingDataModelDockWidget::InitRowTable(const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Init][type2] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    qCDebug(lcEngine) << "---> [Init][type2] Initialize <---";
    const STableGroup group(m_dataModel, path);

    // The last member alone decides.
    bool supported = true;
    for (const QString &member : group.members) {
        const QJsonValue flag = group.Member(member, "defaultSupport");
        supported = !IsJsonValueValid(flag) || flag.toDouble() == 1;
    }
    if (!supported) {
        qCDebug(lcEngine)
            << "---> [Init][type2] Set visible to false, all member value are not support <---";
        table->setVisible(false);
        return;
    }

    PrepareTable(table);
    table->setColumnCount(group.members.size());
    table->setRowCount(group.instances.size());
    qCDebug(lcEngine) << "---> [Init][type2] Column info - from memeber list <---"
                      << group.members.size() << group.members;
    qCDebug(lcEngine) << "---> [Init][type2] Row info - from instance list <---"
                      << group.instances.size() << group.instances;
    MakeCells(table, group, ECellUse::RowInit, 0,
              "---> [Fail][Init][type2] Cannot get the row info - dataType not support yet <--- ");

    const QJsonObject instances = group.group.value(QLatin1String("instanceProperty")).toObject();
    QStringList rowHeaders;
    for (const QJsonValue &instance : group.instances)
        rowHeaders.append(
            GetJsonValueConst(instances, instance.toString() + QLatin1String(".caption"))
                .toString());
    table->setHorizontalHeaderLabels(group.Captions(group.members));
    table->setVerticalHeaderLabels(rowHeaders);

    const bool narrow = group.instances.size() <= kNarrowRows;
    m_sizings.push_back([table, narrow] {
        SetFixedTableSize(
            table, WithRoomForRows(table, narrow ? FitTableSize(table) : FitWideTableSize(table)));
        if (narrow)
            table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    });
}

void CAutoBindingDataModelDockWidget::UpdateRowTable(const QString &path, QWidget *widget,
                                                     QJsonObject update)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Update][type2] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    const STableGroup group(update, path);
    qCDebug(lcEngine) << "---> [Update][type2] Column info(from memeber list) <---"
                      << group.members;
    qCDebug(lcEngine) << "---> [Update][type2] Row info(from instance list) <---"
                      << group.instances;
    const STableGroup shown(m_dataModel, path);
    for (int c = 0; c < group.members.size(); ++c) {
        SColumn column = ReadColumn(group, group.members[c], ECellUse::RowAppend, table);
        // Editors keep the limits that they were made with; so do the rows that have none any more.
        column.wish.entry = shown.Member(column.member, "trait.value").toObject();
        qCDebug(lcEngine) << "---> [Update][type2] == " << column.member << " == Data type <---"
                          << column.dataType;
        std::unique_ptr<QWidget> scratch;  // words a value as an editor would, for rows of items
        for (int r = 0; r < group.instances.size(); ++r) {
            const QString cellPath = CellPath(column.member, group.instances.at(r));
            const QString text = GetJsonValueConst(group.properties, cellPath).toString();
            qCDebug(lcEngine) << "---> [Update][type2] == " << cellPath << " == defaultValue <---"
                              << text;
            if (!column.type) {
                qCCritical(lcEngine)
                    << "---> [Fail][Update][type2] Not support this data type yet<---";
                continue;
            }
            if (QWidget *cell = table->cellWidget(r, c)) {
                if (IsExactClass(cell, column.type->className))
                    column.type->show(cell, {}, text);
            } else if (QTableWidgetItem *item = table->item(r, c)) {
                if (!scratch)
                    scratch.reset(column.type->makeCell(column.wish));
                column.type->show(scratch.get(), {}, text);
                item->setText(column.type->text(scratch.get()));
            }
        }
    }
}

void CAutoBindingDataModelDockWidget::AppendRowTable(const QString &path, QWidget *widget,
                                                     QJsonObject update)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Append][type2] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    const STableGroup group(update, path);
    const int current = table->rowCount();
    const int wanted = group.instances.size();
    qCDebug(lcEngine) << "---> [Append][type2] Current Column size - from table <---"
                      << table->columnCount();
    qCDebug(lcEngine) << "---> [Append][type2] Current Row size - from table <---" << current;
    qCDebug(lcEngine) << "---> [Append][type2] New Column info - from memeber list <---"
                      << group.members;
    qCDebug(lcEngine) << "---> [Append][type2] New Row info - from instance list <---" << wanted;
    if (wanted == current) {
        qCDebug(lcEngine) << "---> [Append][type2] No new row to update";
        return;
    }
    if (wanted == 0) {
        table->clear();
        table->setColumnCount(group.members.size());
        table->setRowCount(0);
        table->setHorizontalHeaderLabels(group.Captions(group.members));
        SetFixedTableSize(table, WithRoomForRows(table, FitTableSize(table)));
        qCDebug(lcEngine) << "---> [Append][type2] Clear table.";
        return;
    }
    qCDebug(lcEngine)
        << "---> [Append][type2] Need appending count (New row size - Current row size)"
        << wanted - current;
    if (wanted > current)
        table->setRowCount(wanted);
    MakeCells(table, group, ECellUse::RowAppend, current,
              "---> [Fail][Append][type2] Not support this data type yet <---");
    LayOut(table);
    table->setMinimumWidth(FitTableSize(table).width() + kAppendMargin);
    table->verticalScrollBar()->setValue(table->verticalScrollBar()->maximum());
    qCDebug(lcEngine) << "---> [Append][type2] Done ";
}
