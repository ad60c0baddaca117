#include "View/undo/ChangedCells.h"

#include <QHelpEvent>
#include <QTableWidget>
#include <QToolTip>

#include "Model/MemberPath.h"
#include "View/access/SpokenText.h"
#include "View/editors/CellLook.h"
#include "View/editors/LateEditors.h"
#include "View/engine/CellText.h"
#include "View/engine/TableGroup.h"

void CChangedCells::Watch(const QList<QWidget *> &members)
{
    for (QWidget *member : members) {
        m_members.append(member);
        if (auto *table = qobject_cast<QTableWidget *>(member)) {
            WhenEditorsAreMade(table, this, [this, table] {
                if (!m_base.isEmpty())
                    ColourTable(table);
            });
        }
    }
}

void CChangedCells::ShownAnew(bool hasChanges)
{
    Clear();
    m_base = {};
    m_isAsked = false;
    if (!hasChanges)
        return;
    AskForBase();
    if (m_base.isEmpty())
        return;
    for (const QPointer<QWidget> &member : m_members) {
        if (member)
            ColourMember(member);
    }
}

void CChangedCells::Edited(const std::vector<SEditorPlace> &places, bool hasChanges)
{
    if (!hasChanges) {
        Clear();
        return;
    }
    AskForBase();
    if (m_base.isEmpty())
        return;
    for (const SEditorPlace &place : places) {
        QWidget *editor = EditorAt(place);
        if (!editor)
            continue;
        const QString base = DocumentText(place, m_base);
        const QString was = TakenText(editor, base).value_or(base);
        Colour(editor, !base.isNull() && CellText(editor) != was, was);
    }
}

void CChangedCells::AskForBase()
{
    if (!m_isAsked)
        m_base = m_page.Ctrl().GetCalBase(m_page.Item(), m_page.Document());
    m_isAsked = true;
}

void CChangedCells::Clear()
{
    const QList<QObject *> editors = m_was.keys();
    for (QObject *editor : editors)
        Colour(qobject_cast<QWidget *>(editor), false, {});
}

void CChangedCells::ColourMember(QWidget *member)
{
    if (auto *table = qobject_cast<QTableWidget *>(member)) {
        const CLateEditors *late = CLateEditors::Of(table);
        if (!late || late->AreMade())
            ColourTable(table);
        return;
    }
    const SEditorPlace place = {.member = member};
    const QString base = DocumentText(place, m_base);
    Colour(member, !base.isNull() && base != DocumentText(place, m_page.Document()), base);
}

void CChangedCells::ColourTable(QTableWidget *table)
{
    const QString path = PathFromObjectName(table->objectName());
    const STableGroup base(m_base, path);
    const STableGroup shown(m_page.Document(), path);
    for (int r = 0; r < base.rows.size(); ++r) {
        const QJsonArray was = base.Member(base.rows[r], "trait.defaultValue").toArray();
        const QJsonArray is = shown.Member(base.rows[r], "trait.defaultValue").toArray();
        for (int c = 0; c < table->columnCount(); ++c) {
            const QString text = ColumnElement(was, c).toString();
            if (text == ColumnElement(is, c).toString())
                continue;
            if (QWidget *editor = table->cellWidget(r, c))
                Colour(editor, true, text);
        }
    }
}

void CChangedCells::Colour(QWidget *editor, bool isChanged, const QString &was)
{
    if (!editor || (!isChanged && !m_was.contains(editor)))
        return;
    SetCellLook(editor, ECellLook::Changed, isChanged);
    SetSpokenState(editor, isChanged ? QLatin1String("changed, was ") + was : QString());
    if (!isChanged) {
        m_was.remove(editor);
        editor->removeEventFilter(this);
        disconnect(editor, &QObject::destroyed, this, nullptr);
        return;
    }
    if (!m_was.contains(editor)) {
        editor->installEventFilter(this);
        connect(editor, &QObject::destroyed, this, [this, editor] { m_was.remove(editor); });
    }
    m_was[editor] = was;
}

bool CChangedCells::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !m_was.contains(object))
        return false;
    auto *editor = qobject_cast<QWidget *>(object);
    const QString limits = editor->toolTip();
    const QString was = QLatin1String("was ") + m_was.value(object);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       limits.isEmpty() ? was : limits + QLatin1Char('\n') + was, editor);
    return true;
}
