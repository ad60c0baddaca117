// Texts that are to be entered into cells of a table: all of them, or none.
//
// A cell that cannot be changed (it is off, for reading alone, or no editor) takes the text that it
// shows and no other. GUI thread.
//
//   const SCheckedEntries checked = CheckEntries(table, {{.row = 0, .column = 2, .text = "77"}});
//   checked.refusal;   // "PA Gain, 2: \"77\" is not allowed. Allowed: -30~40."
#pragma once

#include <vector>

#include <QString>

#include "View/engine/CellChange.h"

class QWidget;

struct SCellEntry
{
    int row = 0;
    int column = 0;
    QString text = {};
};

using CellEntries = std::vector<SCellEntry>;

struct SCheckedEntries
{
    CellChanges changes = {};  // cells that show another text then; none when one is refused
    QString refusal = {};      // of the first refused cell: where, what, and what it takes
};

// Null is no editor.
bool IsChangeable(const QWidget *editor);
SCheckedEntries CheckEntries(QTableWidget *table, const CellEntries &entries);
