// A change of some cells of a page's tables at once, as a paste, a fill or a reset makes it.
//
// The texts are as the editors show them, the new ones checked already: each is a text that its
// editor takes. A plain value.
//
//   page->ChangeCells("Fill right", {{.table = table, .row = 1, .column = 3, .text = "0.93750"}});
#pragma once

#include <vector>

#include <QString>

class QTableWidget;

struct SCellChange
{
    QTableWidget *table = nullptr;
    int row = 0;
    int column = 0;
    QString text = {};  // the new one
};

using CellChanges = std::vector<SCellChange>;

// Sets the editors' texts as entered ones, one after the other (CellText.h). Makes late editors. A
// cell that is not there is left out, also when its table goes meanwhile.
void SetCells(const CellChanges &changes);
