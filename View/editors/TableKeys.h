// The keys of a table whose cells are editors.
//
// For Tab a table is one control: Tab goes to the cell that had the focus last, or the first one,
// and from there to the next control of the page (TabOrder.h). Inside,
//     Up, Down           go to the cell above and below
//     Left, Right        go to the cell beside, from the ends of the text or when all is selected
//     Enter              ends the edit and goes down, from the last row to the next column
//     PageUp, PageDown   step the value
//     Shift and arrows   mark cells (TableMark.h), from the ends of a text that is being typed
//     Ctrl+A             marks all cells, when the text is selected or cells are marked
//     Escape             ends the mark, and so does any key that moves or types
// Shift and a click mark the cells up to the one under the pointer; a plain click ends the mark.
//
// Cells that are disabled are passed over, and at the table's edge a key does nothing. Other keys
// are for the table's commands, if they take them, or the editor's own. The cell with the focus is
// scrolled into view. Cells take the wheel with the focus alone (WheelGuard.h). GUI thread; lives as
// long as its table.
//
//   auto *keys = new CTableKeys(table);
//   keys->Take(cell);
#pragma once

#include <QObject>
#include <QPointer>
#include <QTableWidget>

#include "View/editors/EditSession.h"
#include "View/editors/TableMark.h"
#include "View/editors/WheelGuard.h"

class QKeyEvent;
class QMouseEvent;

// What a table does with keys such as Ctrl+C.
class ITableCommands
{
public:
    virtual ~ITableCommands() = default;
    // Is this key a command's now? Else it is the editor's.
    virtual bool TakesKey(const QKeyEvent *event) const = 0;
    // Of a key that is.
    virtual void RunKey(const QKeyEvent *event) = 0;
};

class CTableKeys : public QObject
{
    Q_OBJECT

public:
    explicit CTableKeys(QTableWidget *table);

    // The keys of a table; null when it has none.
    static CTableKeys *Of(const QWidget *table);

    void Take(QWidget *cell);
    // Both may be null, and may go before the table.
    void SetEdits(CEditSession *edits) { m_edits = edits; }
    void SetCommands(ITableCommands *commands) { m_commands = commands; }
    // A table of results: the table itself takes the focus, with Tab on a cell that it marks then, and
    // its keys are those of ReadKeys.h.
    void SetForReading(bool isForReading);
    bool IsForReading() const { return m_isForReading; }
    // Ends the edit under way on the page.
    void FinishEdit();
    // The cell that the table gives the focus to; null when no cell can have it. Makes late editors.
    QWidget *Entry() const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool IsKeyed(const QWidget *widget) const;
    void TakeFocus(QWidget *widget, Qt::FocusReason reason);
    bool PressMouse(QWidget *widget, const QMouseEvent *event);
    bool MoveMouse(QWidget *widget, const QMouseEvent *event);
    bool IsResult(const QModelIndex &at) const;
    QModelIndex Under(const QWidget *widget, const QMouseEvent *event) const;
    bool TakesKey(QWidget *widget, const QKeyEvent *event);
    bool OverrideShortcut(QWidget *widget, QKeyEvent *event);
    bool PressKey(QWidget *widget, const QKeyEvent *event);
    bool PressMark(QWidget *widget, const QKeyEvent *event);
    bool PressCell(QWidget *cell, const QModelIndex &at, int key);
    bool PressTable(const QModelIndex &at, int key);
    QModelIndex At(const QWidget *cell) const;
    bool Move(const QModelIndex &from, int rows, int columns);
    bool GoOn(const QModelIndex &from);
    bool Focus(QWidget *cell);

    QTableWidget *m_table;
    QPointer<QWidget> m_last;
    QPointer<CEditSession> m_edits;
    ITableCommands *m_commands = nullptr;
    CTableMark *m_mark;
    bool m_isForReading = false;
    bool m_isMarking = false;  // with the mouse button that is down
    CWheelGuard m_wheel;
};
