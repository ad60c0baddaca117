// Arrays that are edited in a table: groupType 3.
//
// One row a supported member, in list order (TableGroup.h); one column an element of the members'
// arrays. The widget is a QTableWidget, named after a member of the group; each cell is an editor.
// These are the functions of the group type's row (GroupTypes.h). A cell publishes nothing; a row
// follows its member's publishers. A failure is a line on the critical log, and the table stays as
// it was. GUI thread.
#pragma once

#include <QString>

class QWidget;
struct SBinding;
struct SRelevanceTarget;

// A table without a supported member is hidden.
void InitColumnTable(const SBinding &binding, const QString &path, QWidget *widget);
// Writes into the cells, and renames the rows.
void UpdateColumnTable(const SBinding &binding, const QString &path, QWidget *widget);
// All rows of the table, each an array of texts.
void PackageColumnTable(const SBinding &binding, const QString &path, QWidget *widget);

// The row of the target's member, also while the table is not visible.
void ApplyTableValueRelevance(const SRelevanceTarget &target);
void ApplyTableStatusRelevance(const SRelevanceTarget &target);
