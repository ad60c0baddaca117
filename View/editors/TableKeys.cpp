#include "View/editors/TableKeys.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include "View/editors/LateEditors.h"
#include "View/editors/ReadKeys.h"
#include "View/editors/ScrollIntoView.h"
#include "View/editors/UnsignedSpinBox.h"

namespace {

bool CanHaveFocus(const QWidget *cell)
{
    return cell && cell->isEnabled() && !cell->isHidden() && (cell->focusPolicy() & Qt::TabFocus);
}

QLineEdit *TextOf(QWidget *cell)
{
    auto *text = qobject_cast<QLineEdit *>(cell);
    return text ? text : cell->findChild<QLineEdit *>();
}

bool IsAllSelected(QWidget *cell)
{
    const QLineEdit *text = TextOf(cell);
    return !text || text->selectedText() == text->text();
}

// Where a key leaves the text; an editor without one has no inside.
bool IsAtEnd(QWidget *cell, bool isLeft)
{
    const QLineEdit *text = TextOf(cell);
    if (IsAllSelected(cell))
        return true;
    return !text->hasSelectedText() &&
           text->cursorPosition() == (isLeft ? 0 : text->text().length());
}

void Step(QWidget *cell, bool isUp)
{
    if (auto *box = qobject_cast<QAbstractSpinBox *>(cell); box && !box->isReadOnly())
        box->stepBy(isUp ? 1 : -1);
    else if (auto *line = qobject_cast<CUnsignedSpinBox *>(cell))
        line->Step(isUp);
    else if (auto *list = qobject_cast<QComboBox *>(cell))
        list->setCurrentIndex(qBound(0, list->currentIndex() + (isUp ? -1 : 1), list->count() - 1));
}

struct SStep
{
    int rows = 0;
    int columns = 0;
};

// Of an arrow key; none of another one.
SStep StepOf(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return {.rows = -1};
    case Qt::Key_Down:
        return {.rows = 1};
    case Qt::Key_Left:
        return {.columns = -1};
    case Qt::Key_Right:
        return {.columns = 1};
    default:
        return {};
    }
}

Qt::KeyboardModifiers ModifiersOf(const QKeyEvent *event)
{
    return event->modifiers() & ~Qt::KeypadModifier;
}

bool Moves(int key)
{
    return StepOf(key).rows != 0 || StepOf(key).columns != 0 || key == Qt::Key_Return ||
           key == Qt::Key_Enter;
}

bool Types(const QKeyEvent *event)
{
    if (event->key() == Qt::Key_Backspace)
        return true;
    return !(ModifiersOf(event) & ~Qt::ShiftModifier) && !event->text().isEmpty() &&
           event->text().front().isPrint();
}

bool IsTabReason(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

}  // namespace

CTableKeys::CTableKeys(QTableWidget *table)
    : QObject(table), m_table(table), m_mark(new CTableMark(table))
{
    // Or Tab goes from cell to cell, through all of them.
    table->setTabKeyNavigation(false);
    table->installEventFilter(this);
    table->viewport()->installEventFilter(this);
}

CTableKeys *CTableKeys::Of(const QWidget *table)
{
    return table->findChild<CTableKeys *>(QString(), Qt::FindDirectChildrenOnly);
}

void CTableKeys::Take(QWidget *cell)
{
    if (cell->focusPolicy() == Qt::NoFocus)
        return;
    m_wheel.Guard(cell);
    cell->installEventFilter(this);
    // The mouse presses the text, not the box around it.
    if (QLineEdit *text = cell->findChild<QLineEdit *>())
        text->installEventFilter(this);
}

void CTableKeys::SetForReading(bool isForReading)
{
    m_isForReading = isForReading;
    if (isForReading)
        m_table->setFocusPolicy(Qt::StrongFocus);
}

void CTableKeys::FinishEdit()
{
    if (m_edits)
        m_edits->Finish();
}

QWidget *CTableKeys::Entry() const
{
    if (CanHaveFocus(m_last))
        return m_last;
    EnsureEditors(m_table);
    for (int r = 0; r < m_table->rowCount(); ++r) {
        for (int c = 0; c < m_table->columnCount(); ++c) {
            if (QWidget *cell = m_table->cellWidget(r, c); CanHaveFocus(cell))
                return cell;
        }
    }
    return nullptr;
}

bool CTableKeys::eventFilter(QObject *object, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        return IsKeyed(widget) && OverrideShortcut(widget, static_cast<QKeyEvent *>(event));
    case QEvent::KeyPress:
        return IsKeyed(widget) && PressKey(widget, static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_isMarking = PressMouse(widget, static_cast<QMouseEvent *>(event));
        return m_isMarking;
    case QEvent::MouseMove:
        return m_isMarking && MoveMouse(widget, static_cast<QMouseEvent *>(event));
    case QEvent::FocusIn:
        if (IsKeyed(widget))
            TakeFocus(widget, static_cast<QFocusEvent *>(event)->reason());
        return false;
    default:
        return false;
    }
}

// A cell or the table: the text inside a cell gets its keys from the cell.
bool CTableKeys::IsKeyed(const QWidget *widget) const
{
    return widget == m_table || widget->parentWidget() == m_table->viewport();
}

void CTableKeys::TakeFocus(QWidget *widget, Qt::FocusReason reason)
{
    if (widget == m_table) {
        QWidget *cell = IsTabReason(reason) ? Entry() : nullptr;
        if (cell)
            Focus(cell);
        else if (IsTabReason(reason) && m_isForReading && m_mark->IsEmpty())
            m_mark->Go(0, 0);
        return;
    }
    // A click that marks leaves the mark where it began.
    const bool isMarking = reason == Qt::MouseFocusReason &&
                           (QGuiApplication::keyboardModifiers() & Qt::ShiftModifier);
    // A menu that closes gives it back; its entry may be for another cell.
    if (isMarking || reason == Qt::PopupFocusReason)
        return;
    m_last = widget;
    m_mark->SetCurrent(At(widget));
    ScrollIntoView(widget, m_table);
}

QModelIndex CTableKeys::Under(const QWidget *widget, const QMouseEvent *event) const
{
    const QWidget *viewport = m_table->viewport();
    return m_table->indexAt(widget == viewport ? event->pos()
                                               : widget->mapTo(viewport, event->pos()));
}

// A label, or an item.
bool CTableKeys::IsResult(const QModelIndex &at) const
{
    if (!at.isValid())
        return false;
    const QWidget *cell = m_table->cellWidget(at.row(), at.column());
    return cell ? cell->focusPolicy() == Qt::NoFocus
                : m_table->item(at.row(), at.column()) != nullptr;
}

// A result is marked by a plain click, too.
bool CTableKeys::PressMouse(QWidget *widget, const QMouseEvent *event)
{
    const QModelIndex at = Under(widget, event);
    const bool isLeft = event->button() == Qt::LeftButton;
    const bool isExtended = isLeft && at.isValid() && (event->modifiers() & Qt::ShiftModifier);
    const bool isResult = isLeft && widget == m_table->viewport() && IsResult(at);
    if (isExtended)
        FinishEdit();
    else if (isLeft || !m_mark->Has(at))
        m_mark->Clear();
    m_mark->SetCurrent(isExtended && m_last ? At(m_last) : at);
    if (!isExtended && !isResult)
        return false;
    m_mark->ExtendTo(at);
    if (!isResult && CanHaveFocus(m_last))
        m_last->setFocus(Qt::OtherFocusReason);
    return true;
}

bool CTableKeys::MoveMouse(QWidget *widget, const QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        m_mark->ExtendTo(Under(widget, event));
    return true;
}

bool CTableKeys::TakesKey(QWidget *widget, const QKeyEvent *event)
{
    if (widget != m_table)
        m_mark->SetCurrent(At(widget));
    return m_commands && m_commands->TakesKey(event);
}

// Or a shortcut of the window would have the key.
bool CTableKeys::OverrideShortcut(QWidget *widget, QKeyEvent *event)
{
    if (!TakesKey(widget, event))
        return false;
    event->accept();
    return true;
}

bool CTableKeys::PressKey(QWidget *widget, const QKeyEvent *event)
{
    if (TakesKey(widget, event)) {
        m_commands->RunKey(event);
        return true;
    }
    if (widget == m_table && m_isForReading && PressReadKey(m_table, m_mark, event))
        return true;
    if (PressMark(widget, event))
        return true;
    const bool isPlain = ModifiersOf(event) == Qt::NoModifier;
    const QModelIndex from = widget == m_table ? m_mark->Current() : At(widget);
    if (Types(event) || (isPlain && Moves(event->key())))
        m_mark->Clear();
    if (!isPlain)
        return false;
    return widget == m_table ? PressTable(from, event->key())
                             : PressCell(widget, from, event->key());
}

bool CTableKeys::PressMark(QWidget *widget, const QKeyEvent *event)
{
    const bool isCell = widget != m_table;
    const Qt::KeyboardModifiers modifiers = ModifiersOf(event);
    const SStep step = StepOf(event->key());
    if (modifiers == Qt::ShiftModifier && (step.rows != 0 || step.columns != 0)) {
        const bool isTyping = isCell && m_edits && m_edits->IsTyping(widget);
        if (isTyping && step.columns != 0 && !IsAtEnd(widget, step.columns < 0))
            return false;
        FinishEdit();
        m_mark->Extend(step.rows, step.columns);
        return true;
    }
    if (modifiers == Qt::ControlModifier && event->key() == Qt::Key_A) {
        if (isCell && m_mark->IsEmpty() && !IsAllSelected(widget))
            return false;
        FinishEdit();
        m_mark->MarkAll();
        return true;
    }
    if (modifiers == Qt::NoModifier && event->key() == Qt::Key_Escape && !m_mark->IsEmpty()) {
        m_mark->Clear();
        return true;
    }
    return false;
}

bool CTableKeys::PressCell(QWidget *cell, const QModelIndex &at, int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        Move(at, StepOf(key).rows, 0);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        return IsAtEnd(cell, key == Qt::Key_Left) && Move(at, 0, StepOf(key).columns);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return GoOn(at);
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        Step(cell, key == Qt::Key_PageUp);
        return true;
    default:
        return false;
    }
}

// The table has the focus, as after a click on a header.
bool CTableKeys::PressTable(const QModelIndex &at, int key)
{
    const SStep step = StepOf(key);
    return (step.rows != 0 || step.columns != 0) && Move(at, step.rows, step.columns);
}

QModelIndex CTableKeys::At(const QWidget *cell) const
{
    return m_table->indexAt(cell->geometry().center());
}

bool CTableKeys::Move(const QModelIndex &from, int rows, int columns)
{
    int row = from.row() + rows;
    int column = from.column() + columns;
    while (from.isValid() && row >= 0 && column >= 0 && row < m_table->rowCount() &&
           column < m_table->columnCount()) {
        if (QWidget *next = m_table->cellWidget(row, column); CanHaveFocus(next))
            return Focus(next);
        row += rows;
        column += columns;
    }
    return false;
}

bool CTableKeys::GoOn(const QModelIndex &from)
{
    if (Move(from, 1, 0))
        return true;
    for (int c = from.column() + 1; from.isValid() && c < m_table->columnCount(); ++c) {
        for (int r = 0; r < m_table->rowCount(); ++r) {
            if (QWidget *next = m_table->cellWidget(r, c); CanHaveFocus(next))
                return Focus(next);
        }
    }
    return false;
}

// As with Tab, which selects the text.
bool CTableKeys::Focus(QWidget *cell)
{
    cell->setFocus(Qt::TabFocusReason);
    return true;
}
