// A table of results for tests: two readings a row.
#pragma once

#include <QBuffer>

#include "View/results/ResultTable.h"

inline SResultTable SampleResults(const QVector<QStringList> &rows)
{
    SResultTable table;
    table.settings = {{"page", "Sample"}, {"version", 1}, {"tool", "0.1"}, {"chip", "VR6240"}};
    table.headers = QStringList{"RSRP0 (dBm)", "Remark"};
    for (const QStringList &row : rows)
        table.rows.Add({.timeMs = 1700000000250}, row);
    return table;
}

inline bool GoOn()
{
    return true;
}
