// The keys of a table whose cells are editors.
//
// For Tab a table is one control: Tab goes to the cell that had the focus last, or the first one,
// and from there to the next control of the page (TabOrder.h). Inside,
//     Up, Down           go to the cell above and below
//     Left, Right        go to the cell beside, from the ends of the text or when all is selected
//     Enter              ends the edit and goes down, from the last row to the next column
//     PageUp, PageDown   step the value
// Cells that are disabled are passed over, and at the table's edge a key does nothing. With Ctrl,
// Shift or Alt the keys are the editor's own. The cell with the focus is scrolled into view. Cells
// take the wheel with the focus alone (WheelGuard.h). GUI thread; lives as long as its table.
//
//   auto *keys = new CTableKeys(table);
//   keys->Take(cell);
#pragma once

#include <QObject>
#include <QPointer>
#include <QTableWidget>

#include "View/editors/WheelGuard.h"

class QKeyEvent;

class CTableKeys : public QObject
{
    Q_OBJECT

public:
    explicit CTableKeys(QTableWidget *table);

    // The keys of a table; null when it has none.
    static CTableKeys *Of(const QWidget *table);

    void Take(QWidget *cell);
    // The cell that the table gives the focus to; null when no cell can have it. Makes late editors.
    QWidget *Entry() const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool PressKey(QWidget *cell, const QKeyEvent *event);
    bool Move(const QWidget *cell, int rows, int columns);
    bool GoOn(const QWidget *cell);
    bool Focus(QWidget *cell);

    QTableWidget *m_table;
    QPointer<QWidget> m_last;
    CWheelGuard m_wheel;
};
