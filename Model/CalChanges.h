// What a calibration page is told of the changes to its item's records. Plain values.
#pragma once

#include <QString>
#include <QVector>

// Cells that differ from what was last read or imported, the page's own edits among them.
struct SCalChangedCells
{
    int inAll = 0;
    int inRecord = 0;  // in the record that the page selects, in all of its selections
};

// A record that another one can be copied to.
struct SCalCopyTarget
{
    int route = 0;
    int region = 0;     // of bandwidth; 0 on RX
    QString text = {};  // as the page names it
};

using CalCopyTargets = QVector<SCalCopyTarget>;
