#include "View/editors/TableKeys.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "View/editors/LateEditors.h"
#include "View/editors/ScrollIntoView.h"
#include "View/editors/UnsignedSpinBox.h"

namespace {

bool CanHaveFocus(const QWidget *cell)
{
    return cell && cell->isEnabled() && !cell->isHidden() && (cell->focusPolicy() & Qt::TabFocus);
}

// Where a key leaves the text; an editor without one has no inside.
bool IsAtEnd(const QWidget *cell, bool isLeft)
{
    const auto *text = qobject_cast<const QLineEdit *>(cell);
    if (!text)
        text = cell->findChild<const QLineEdit *>();
    if (!text || text->selectedText() == text->text())
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

bool IsTabReason(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

}  // namespace

CTableKeys::CTableKeys(QTableWidget *table) : QObject(table), m_table(table)
{
    // Or Tab goes from cell to cell, through all of them.
    table->setTabKeyNavigation(false);
    table->installEventFilter(this);
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
    if (event->type() == QEvent::KeyPress && widget != m_table)
        return PressKey(widget, static_cast<QKeyEvent *>(event));
    if (event->type() != QEvent::FocusIn)
        return false;
    if (widget != m_table) {
        m_last = widget;
        ScrollIntoView(widget, m_table);
    } else if (IsTabReason(static_cast<QFocusEvent *>(event)->reason())) {
        if (QWidget *cell = Entry())
            Focus(cell);
    }
    return false;
}

bool CTableKeys::PressKey(QWidget *cell, const QKeyEvent *event)
{
    if (event->modifiers() & ~Qt::KeypadModifier)
        return false;
    switch (event->key()) {
    case Qt::Key_Up:
        Move(cell, -1, 0);
        return true;
    case Qt::Key_Down:
        Move(cell, 1, 0);
        return true;
    case Qt::Key_Left:
        return IsAtEnd(cell, true) && Move(cell, 0, -1);
    case Qt::Key_Right:
        return IsAtEnd(cell, false) && Move(cell, 0, 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return GoOn(cell);
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        Step(cell, event->key() == Qt::Key_PageUp);
        return true;
    default:
        return false;
    }
}

bool CTableKeys::Move(const QWidget *cell, int rows, int columns)
{
    const QModelIndex at = m_table->indexAt(cell->geometry().center());
    int row = at.row() + rows;
    int column = at.column() + columns;
    while (at.isValid() && row >= 0 && column >= 0 && row < m_table->rowCount() &&
           column < m_table->columnCount()) {
        if (QWidget *next = m_table->cellWidget(row, column); CanHaveFocus(next))
            return Focus(next);
        row += rows;
        column += columns;
    }
    return false;
}

bool CTableKeys::GoOn(const QWidget *cell)
{
    if (Move(cell, 1, 0))
        return true;
    const QModelIndex at = m_table->indexAt(cell->geometry().center());
    for (int c = at.column() + 1; at.isValid() && c < m_table->columnCount(); ++c) {
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
