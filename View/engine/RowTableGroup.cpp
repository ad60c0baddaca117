#include "View/engine/RowTableGroup.h"

#include <memory>

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/editors/ExactClass.h"
#include "View/engine/Binding.h"
#include "View/engine/ChangeRecorder.h"
#include "View/engine/RowTableCells.h"
#include "View/engine/TableCells.h"
#include "View/engine/TableGroup.h"
#include "View/engine/TableSize.h"

namespace {

constexpr int kNarrowRows = 16;  // rows up to which the table is sized to all its columns
constexpr int kEmptyHeightFactor = 6;
constexpr int kAppendMargin = 20;  // pixels for the vertical scroll bar

void SetFixedTableSize(QTableWidget *table, const QSize &size)
{
    table->setMaximumSize(size);
    table->setMinimumSize(table->maximumSize());
}

// The last member alone decides.
bool IsSupported(const STableGroup &group)
{
    if (group.members.isEmpty())
        return true;
    const QJsonValue flag = group.Member(group.members.last(), "defaultSupport");
    return !IsJsonValueValid(flag) || flag.toDouble() == 1;
}

// An empty result table shows room for rows.
QSize WithRoomForRows(const QTableWidget *table, QSize size)
{
    if (table->rowCount() <= 1)
        size.setHeight(size.height() * kEmptyHeightFactor);
    return size;
}

// Of each column the newest row: what the target says now.
void RecordNewest(const SBinding &binding, const QString &path, const STableGroup &group)
{
    if (!binding.changes.IsOn())
        return;
    const QString properties = GroupPropertyPath(path) + QLatin1Char('.');
    for (const QString &member : group.members) {
        const QJsonValue cell =
            group.instances.isEmpty()
                ? QJsonValue()
                : GetJsonValueConst(group.properties, CellPath(member, group.instances.last()));
        binding.changes.Show(binding.changes.Member(properties + member), cell.toString());
    }
}

}  // namespace

void InitRowTable(const SBinding &binding, const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Init][type2] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    qCDebug(lcEngine) << "---> [Init][type2] Initialize <---";
    const STableGroup group(binding.document, path);

    if (!IsSupported(group)) {
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
    SetColumnHeaders(table, group.Captions(group.members));
    table->setVerticalHeaderLabels(rowHeaders);

    const bool narrow = group.instances.size() <= kNarrowRows;
    LayHeadersOut(table);
    SetFixedTableSize(
        table, WithRoomForRows(table, narrow ? FitTableSize(table) : FitWideTableSize(table)));
    if (narrow)
        table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void UpdateRowTable(const SBinding &binding, const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Update][type2] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    const STableGroup group(binding.update, path);
    qCDebug(lcEngine) << "---> [Update][type2] Column info(from memeber list) <---"
                      << group.members;
    qCDebug(lcEngine) << "---> [Update][type2] Row info(from instance list) <---"
                      << group.instances;
    RecordNewest(binding, path, group);
    const STableGroup shown(binding.document, path);
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

void AppendRowTable(const SBinding &binding, const QString &path, QWidget *widget)
{
    QTableWidget *table = AsTable(
        widget, "---> [Fail][Append][type2] Now only support table widget(QTableWidget) <--- ");
    if (!table)
        return;
    const STableGroup group(binding.update, path);
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
        SetColumnHeaders(table, group.Captions(group.members));
        SetFixedTableSize(table, WithRoomForRows(table, FitTableSize(table)));
        const CChangeScope scope(&binding.changes, {.cause = EChangeCause::User});
        RecordNewest(binding, path, group);
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
    RecordNewest(binding, path, group);
    LayOut(table);
    table->setMinimumWidth(FitTableSize(table).width() + kAppendMargin);
    table->verticalScrollBar()->setValue(table->verticalScrollBar()->maximum());
    qCDebug(lcEngine) << "---> [Append][type2] Done ";
}
