// groupType 3 as the target of a change: one row of its table.
#include "View/engine/ColumnTableGroup.h"

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "Support/Log.h"
#include "View/editors/ExactClass.h"
#include "View/editors/LateEditors.h"
#include "View/engine/DataTypes.h"
#include "View/engine/RelevanceTarget.h"
#include "View/engine/TableGroup.h"
#include "View/engine/WidgetIndex.h"

namespace {

struct SFoundRow
{
    QTableWidget *table = nullptr;  // null: not found
    int row = -1;
    int columns = 0;
};

// The widget that is named after the first member of the group that has one.
QWidget *WidgetOf(const STableGroup &group, const SRelevanceTarget &target)
{
    for (const QString &member : group.rows) {
        if (QWidget *widget =
                target.index.Find(GroupPropertyPath(target.path) + QLatin1Char('.') + member))
            return widget;
    }
    return nullptr;
}

SFoundRow FindRow(const SRelevanceTarget &target)
{
    const STableTargetWords &words = target.words.table;
    const STableGroup group(target.document, target.path);
    qCDebug(lcEngine) << words.rows << group.rows;
    if (words.columns)
        qCDebug(lcEngine) << words.columns << group.columns;
    QWidget *widget = WidgetOf(group, target);
    if (!widget) {
        qCCritical(lcEngine) << words.none;
        return {};
    }
    QTableWidget *table = AsTable(widget, words.notATable);
    if (!table)
        return {};
    qCDebug(lcEngine) << words.found;
    const int row = group.rows.indexOf(MemberKey(target.path));
    if (row < 0) {
        if (words.noRow)
            qCCritical(lcEngine) << words.noRow;
        return {};
    }
    qCDebug(lcEngine) << words.rowFound << row;
    return {.table = table, .row = row, .columns = group.columns};
}

}  // namespace

void ApplyTableValueRelevance(const SRelevanceTarget &target)
{
    const SFoundRow found = FindRow(target);
    if (!found.table)
        return;
    const QJsonValue entry = target.FindEntry(target.words.table.entry);
    if (!IsJsonValueValid(entry))
        return;
    const QJsonObject trait = target.Trait();
    const SDataType *type = FindDataType(trait.value(QLatin1String("dataType")).toString());
    if (!type || !type->relateCell) {
        qCCritical(lcEngine)
            << "---> [Fail][Value Relevance][type3] Not support this data type yet";
        return;
    }
    qCDebug(lcEngine) << type->relateCellLog;
    const QJsonObject limits = entry.toObject();
    if (IsJsonValueValid(limits.value(QLatin1String("rangeCheck"))))
        qCDebug(lcEngine) << "---> [Value Relevance][type3] Has the range check <---";
    if (IsJsonValueValid(limits.value(QLatin1String("value"))))
        qCDebug(lcEngine) << "---> [Value Relevance][type3] Has the value in valuePair <---";
    const QJsonArray defaults = trait.value(QLatin1String("defaultValue")).toArray();
    EnsureEditors(found.table);
    const SChangeReason reason = target.Reason(entry);
    for (int c = 0; c < found.columns; ++c) {
        QWidget *cell = found.table->cellWidget(found.row, c);
        if (!cell || !IsExactClass(cell, type->className))
            continue;
        const CChangeStep step(target.changes, reason, target.member, c, cell);
        type->relateCell(cell, {
                                   .entry = entry,
                                   .defaultText = ColumnElement(defaults, c).toString(),
                                   .isTestPage = target.IsTestPage(),
                                   .column = c,
                               });
    }
}

void ApplyTableStatusRelevance(const SRelevanceTarget &target)
{
    const SFoundRow found = FindRow(target);
    if (!found.table)
        return;
    const QJsonValue entry = target.FindEntry(target.words.table.entry);
    if (!IsJsonValueValid(entry))
        return;
    EnsureEditors(found.table);
    const SChangeReason reason = target.Reason(entry);
    for (int c = 0; c < found.columns; ++c) {
        QWidget *cell = found.table->cellWidget(found.row, c);
        if (!cell)
            continue;
        const bool wasOn = !cell->testAttribute(Qt::WA_ForceDisabled);
        cell->setEnabled(entry.toInt() != 0);
        if (target.changes && wasOn != (entry.toInt() != 0))
            target.changes->Enable(reason, target.member, c, !wasOn);
    }
}
