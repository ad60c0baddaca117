// What the commands of a table make of its marked cells: the texts to enter, cell by cell.
//
// A plan changes nothing. It holds what the command would enter, or a sentence that says why there
// is nothing to enter. Whether the editors take the texts says CheckEntries (CellEntry.h), for all
// of them or none. A paste names every cell that it is for; the other commands leave out cells that
// cannot be changed and, if they reckon, cells without a number. The table has its editors. GUI
// thread.
//
//   const SCellPlan plan = PlanFillRight(MarkedCells(table));
//   if (!plan.remark.isEmpty()) ...
#pragma once

#include <vector>

#include <QString>

#include "View/engine/CellEntry.h"
#include "View/engine/ClipboardText.h"

class QTableWidget;

// Rows and columns that are seen, in order.
struct SMarkedCells
{
    const QTableWidget *table = nullptr;
    std::vector<int> rows = {};
    std::vector<int> columns = {};
};

struct SCellPlan
{
    CellEntries entries = {};
    QString remark = {};  // why there are none
};

// The mark, or the cell that has the focus without one.
SMarkedCells MarkedCells(const QTableWidget *table);
SMarkedCells AllCells(const QTableWidget *table);
// The captions of their columns, behind an empty text for those of the rows.
QStringList CaptionsOf(const SMarkedCells &cells);
// The texts of a row, with the row's caption in front when it is asked for.
QStringList TextsOf(const QTableWidget *table, int row, const std::vector<int> &columns,
                    bool hasCaption);

// One text goes into all cells. A block goes into a mark of its size or of several times its size;
// from a single cell on it takes the room that it needs.
SCellPlan PlanPaste(const SMarkedCells &cells, const CellRows &texts);
// 0, or the number nearest to it that the cell takes.
SCellPlan PlanZero(const SMarkedCells &cells);
// The first column's texts into the others.
SCellPlan PlanFillRight(const SMarkedCells &cells);
SCellPlan PlanOffset(const SMarkedCells &cells, double offset);
// In each row a straight line between the first and the last column, by the number of the column.
SCellPlan PlanInterpolate(const SMarkedCells &cells);
