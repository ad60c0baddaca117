// A growing table of results, for reading: groupType 2.
//
// One column a member, one row an instance of the group's instanceList. The widget is a
// QTableWidget, named after a member of the group, by custom the first. These are the functions of
// the group type's row (GroupTypes.h): a result is neither packaged nor does it follow publishers.
// A failure is a line on the critical log, and the table stays as it was. GUI thread.
#pragma once

#include <QString>

class QWidget;
struct SBinding;

void InitRowTable(const SBinding &binding, const QString &path, QWidget *widget);
// Writes into the cells that are there.
void UpdateRowTable(const SBinding &binding, const QString &path, QWidget *widget);
// Adds the rows that the update has more than the table, and scrolls to the last one. An update
// without rows empties the table.
void AppendRowTable(const SBinding &binding, const QString &path, QWidget *widget);
