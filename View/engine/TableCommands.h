// The commands of a table on its marked cells, by keys and by the table's part of the context menu.
//
//   Copy cells               Ctrl+C         rows by lines, tabs between the cells
//   Copy with headers        Ctrl+Shift+C   with the captions of rows and columns
//   Paste cells              Ctrl+V         text of a spreadsheet
//   Set to 0                 Delete         or to the nearest allowed value
//   Fill right               Ctrl+R         the first column's values into the others
//   Add an offset...         Ctrl+Shift+O   asks for the number
//   Interpolate              Ctrl+Shift+I   between the first and the last column, row by row
//   Mark all cells           Ctrl+A
//
// A table for reading (CTableKeys::SetForReading) has the two copies and Mark all cells alone. There Ctrl+C
// is with headers and Ctrl+Shift+C without, and without a mark they are for the whole table. A long copy
// takes its time between other events (RowCopy.h).
//
// Without a mark the keys are the editor's, but for a text of several cells, which Ctrl+V pastes
// from the cell with the focus on; an entry of the menu is for the cell under the menu then. With a
// mark, Ctrl+Z and Ctrl+Y are the page's actions m_actionUndo and m_actionRedo.
//
// A command ends the edit under way, and changes all cells that it is for or none: the first text
// that an editor refuses is named in the status line and in a box. It goes to the page as one change
// (ChangeCells). GUI thread; lives as long as its table, of a page or of none.
//
//   new CTableCommands(table, keys);
//   CTableCommands::Of(table)->Actions();   // for the menu
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTableWidget>

#include "View/editors/TableKeys.h"
#include "View/engine/MarkedCells.h"
#include "View/engine/RowCopy.h"

class QAction;

class CTableCommands : public QObject, public ITableCommands
{
    Q_OBJECT

public:
    CTableCommands(QTableWidget *table, CTableKeys *keys);
    ~CTableCommands() override;

    // Null when the table has none.
    static CTableCommands *Of(const QWidget *table);
    // Made when they are first asked for; they live as long as the table.
    QList<QAction *> Actions();

    bool TakesKey(const QKeyEvent *event) const override;
    void RunKey(const QKeyEvent *event) override;

private:
    struct SCommand;
    static const SCommand kCommands[];

    void Run(const SCommand &command);
    void TriggerOfPage(const char *action) const;
    void Say(const QString &text) const;
    void TellMark() const;

    void Copy(bool hasCaptions);
    void CopyCells() { Copy(false); }
    void CopyWithHeaders() { Copy(true); }
    void PasteCells();
    void SetToZero();
    void FillRight();
    void AskOffset();
    void Interpolate();
    void MarkAll();
    // False when nothing was changed, or the page is gone.
    bool Change(const QString &name, const SCellPlan &plan);
    void MarkEntered(const CellEntries &entries);

    QTableWidget *const m_table;
    CTableMark *const m_mark;
    const QPointer<CTableKeys> m_keys;
    QList<QAction *> m_actions;
    CRowCopy m_copy;
    bool m_isQuiet = false;  // of the number of marked cells
};
