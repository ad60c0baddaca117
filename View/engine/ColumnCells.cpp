#include "View/engine/ColumnCells.h"

#include <utility>

#include "View/editors/ExactClass.h"
#include "View/engine/RangeCheck.h"
#include "View/engine/TableCells.h"
#include "View/engine/TableGroup.h"

namespace {

const SChangeReason kByResult = {.cause = EChangeCause::Result};

// True for rows whose cells one editor can stand for.
bool IsSameKind(const SColumnRow &one, const SColumnRow &other)
{
    return one.type == other.type && one.wish.entry == other.wish.entry &&
           one.wish.items == other.wish.items;
}

// A cell, as it was when its text was this one.
void Recall(const SDataType &type, QWidget *cell, const QString &text)
{
    if (type.recallCell)
        type.recallCell(cell, text);
    else
        type.show(cell, {}, text);
}

SCellWish WishOf(const SColumnRow &content, int column)
{
    SCellWish wish = content.wish;
    wish.value = ColumnElement(content.defaults, column);
    return wish;
}

}  // namespace

CColumnCells::CColumnCells(QTableWidget *table, QWidget *page, CEditSession *edits,
                           CChangeRecorder *changes)
    : CLateEditors(table), m_page(page), m_edits(edits), m_changes(changes),
      m_rows(static_cast<size_t>(table->rowCount()))
{
}

CColumnCells::~CColumnCells()
{
    RemoveScratches();
}

CColumnCells *CColumnCells::Of(const QWidget *table)
{
    return static_cast<CColumnCells *>(CLateEditors::Of(table));
}

void CColumnCells::AddRow(int row, const SColumnRow &content)
{
    m_rows.at(static_cast<size_t>(row)).content = content;
}

// Null when there is no such cell.
CColumnCells::SRow *CColumnCells::Row(int row, int column)
{
    const bool isInside = row >= 0 && row < static_cast<int>(m_rows.size()) && column >= 0 &&
                          column < Table()->columnCount();
    SRow *found = isInside ? &m_rows[static_cast<size_t>(row)] : nullptr;
    return found && found->content.type ? found : nullptr;
}

// Null when the row is of another type, or the editor is gone.
QWidget *CColumnCells::Editor(int row, int column, const SDataType &type) const
{
    QWidget *editor = Table()->cellWidget(row, column);
    return editor && IsExactClass(editor, type.className) ? editor : nullptr;
}

QString CColumnCells::Text(int row, int column)
{
    const SRow *found = Row(row, column);
    return found ? Text(row, column, *found->content.type) : QString();
}

QString CColumnCells::Text(int row, int column, const SDataType &type)
{
    SRow *found = Row(row, column);
    if (!found || found->content.type != &type)
        return {};
    if (!AreMade())
        return Texts(*found).at(column);
    const QWidget *editor = Editor(row, column, type);
    return editor ? type.text(editor) : QString();
}

void CColumnCells::Show(int row, int column, const SDataType &type, const QJsonObject &member,
                        const QString &text)
{
    SRow *found = Row(row, column);
    if (!found || found->content.type != &type)
        return;
    if (AreMade()) {
        QWidget *editor = Editor(row, column, type);
        if (!editor)
            return;
        // An editor tells of its change itself.
        const bool isHeard = m_changes && m_changes->IsWatched(editor);
        const CChangeStep step(isHeard ? nullptr : m_changes.data(), kByResult,
                               found->content.member, column, editor);
        type.show(editor, member, text);
        return;
    }
    QString &shown = Texts(*found)[column];
    QWidget *scratch = Scratch(*found);
    if (type.recallCell)
        type.recallCell(scratch, shown);
    type.show(scratch, member, text);
    const QString before = std::exchange(shown, type.text(scratch));
    if (m_changes && shown != before)
        m_changes->Add(kByResult, found->content.member, column, before, shown);
    found->isShown = true;
}

int CColumnCells::WidthHint(int row)
{
    SRow *found = Row(row, 0);
    if (!found)
        return 0;
    const SDataType &type = *found->content.type;
    if (AreMade()) {
        const QWidget *editor = Editor(row, 0, type);
        return editor ? editor->sizeHint().width() : 0;
    }
    QWidget *scratch = Scratch(*found);
    if (found->isShown)
        Recall(type, scratch, found->texts.first());
    else
        type.startCell(scratch, WishOf(found->content, 0));
    return scratch->sizeHint().width();
}

QStringList &CColumnCells::Texts(SRow &row)
{
    const SDataType &type = *row.content.type;
    for (int c = row.texts.size(); c < Table()->columnCount(); ++c) {
        QWidget *scratch = Scratch(row);
        type.startCell(scratch, WishOf(row.content, c));
        row.texts.append(type.text(scratch));
    }
    return row.texts;
}

// A child of the viewport as the cells are, for their font and style.
QWidget *CColumnCells::Scratch(SRow &row)
{
    if (row.scratch)
        return row.scratch;
    for (const SRow &other : m_rows) {
        if (other.scratch && IsSameKind(row.content, other.content))
            row.scratch = other.scratch;
    }
    if (!row.scratch) {
        row.scratch = row.content.type->makeCell(row.content.wish);
        m_scratches.push_back(row.scratch);
    }
    return row.scratch;
}

// The table may have gone before, and they with it. A walk over all widgets of the page may still
// come to them.
void CColumnCells::RemoveScratches()
{
    for (const QPointer<QWidget> &scratch : std::exchange(m_scratches, {})) {
        if (scratch)
            scratch->deleteLater();
    }
}

void CColumnCells::Make()
{
    RemoveScratches();
    for (size_t r = 0; r < m_rows.size(); ++r) {
        if (m_rows[r].content.type)
            MakeRow(static_cast<int>(r), m_rows[r]);
    }
}

void CColumnCells::MakeRow(int row, SRow &from)
{
    const SColumnRow &content = from.content;
    for (int c = 0; c < Table()->columnCount(); ++c) {
        QWidget *cell = MakeCell(from, c);
        if (content.type->takesStatus)
            cell->setEnabled(content.isEnabled);
        PlaceEditor(Table(), row, c, cell);
        if (m_edits)
            m_edits->Watch(cell);
        if (m_changes)
            m_changes->Watch(cell, content.member, c);
        if (!content.isChecked)
            continue;
        cell->setToolTip(content.ranges);
        SetRangeChecked(cell);
        if (m_page)
            connect(cell, SIGNAL(editingFinished()), m_page, content.type->cellCheckSlot);
    }
    // The editors have them now.
    from.texts.clear();
    from.scratch = nullptr;
    from.content.wish = {};
    from.content.defaults = {};
}

QWidget *CColumnCells::MakeCell(const SRow &from, int column) const
{
    const SDataType &type = *from.content.type;
    SCellWish wish = WishOf(from.content, column);
    if (!from.isShown)
        return type.makeCell(wish);
    const QString &text = from.texts.at(column);
    wish.value = text;
    QWidget *cell = type.makeCell(wish);
    // An editor starts within the limits of the document, which may be finer than its decimals.
    if (type.text(cell) != text)
        Recall(type, cell, text);
    return cell;
}
