#include "View/undo/EditorPlace.h"

#include <QTabWidget>
#include <QTableWidget>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "View/editors/LateEditors.h"
#include "View/editors/ScrollIntoView.h"
#include "View/engine/TableGroup.h"

namespace {

QTableWidget *TableOf(const SEditorPlace &place)
{
    return place.column < 0 ? nullptr : qobject_cast<QTableWidget *>(place.member);
}

// "paGain3" with the caption "paGain" is "paGain[3]".
QString ScalarName(const QString &caption, const QString &key)
{
    int digits = 0;
    while (digits < key.size() && key.at(key.size() - 1 - digits).isDigit())
        ++digits;
    if (digits == 0 || caption.endsWith(key.right(digits)))
        return caption;
    return caption + QLatin1Char('[') + key.right(digits) + QLatin1Char(']');
}

}  // namespace

SEditorPlace PlaceOf(QWidget *editor)
{
    QWidget *viewport = editor->parentWidget();
    auto *table = qobject_cast<QTableWidget *>(viewport ? viewport->parentWidget() : nullptr);
    if (!table)
        return {.member = editor};
    const QModelIndex at = table->indexAt(editor->geometry().center());
    if (table->cellWidget(at.row(), at.column()) == editor)
        return {.member = table, .row = at.row(), .column = at.column()};
    return {.member = editor};
}

QWidget *EditorAt(const SEditorPlace &place)
{
    QTableWidget *table = TableOf(place);
    if (!table)
        return place.member;
    EnsureEditors(table);
    return table->cellWidget(place.row, place.column);
}

void ShowEditor(const SEditorPlace &place)
{
    QWidget *editor = EditorAt(place);
    if (!editor)
        return;
    QWidget *inner = editor;
    for (QWidget *outer = editor->parentWidget(); outer; outer = outer->parentWidget()) {
        // The page of a tab stands in the tab's stack.
        auto *tabs = qobject_cast<QTabWidget *>(outer->parentWidget());
        if (tabs && tabs->indexOf(inner) >= 0)
            tabs->setCurrentWidget(inner);
        inner = outer;
    }
    ScrollIntoView(editor, TableOf(place));
}

QString EditNameOf(const SEditorPlace &place, const QJsonObject &document)
{
    if (!place.member)
        return {};
    const QString path = PathFromObjectName(place.member->objectName());
    const QJsonObject group = GetJsonValueConst(document, GroupPath(path)).toObject();
    const QString key = MemberKey(path);
    QString name;
    if (const QTableWidget *table = TableOf(place)) {
        const QTableWidgetItem *header = table->horizontalHeaderItem(place.column);
        name = group.value(QLatin1String("groupName")).toString() + QLatin1Char('[') +
               (header ? header->text() : QString::number(place.column)) + QLatin1Char(']');
    } else {
        name = ScalarName(GetJsonValueConst(document, path + QLatin1String(".caption")).toString(),
                          key);
    }
    return QLatin1String("Edit ") + name;
}

QString DocumentText(const SEditorPlace &place, const QJsonObject &document)
{
    if (!place.member)
        return {};
    const QString path = PathFromObjectName(place.member->objectName());
    if (place.column < 0)
        return GetJsonValueConst(document, path + QLatin1String(".trait.defaultValue")).toString();
    const STableGroup group(document, path);
    const QJsonValue values = group.Member(group.rows.value(place.row), "trait.defaultValue");
    return ColumnElement(values.toArray(), place.column).toString();
}
