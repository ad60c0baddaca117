// Row tables of three columns for the tests: a label, a range -1000 to 1000, a point range -150.5
// to 0 with two decimals. Rows are r0, r1 and so on; values are texts, one a column.
//
//   CTestPage page(RowDocument({{"a", "1", "-2.5"}}));
//   auto *table = page.AddTable(kRowTable);
#pragma once

#include <QStringList>
#include <QTableWidget>
#include <QVector>

#include "tests/view/engine/TestDocument.h"

constexpr char kRowTable[] = "response.group1.label";  // the table bears its first member's name
constexpr int kEditorRows = 64;                        // newest rows that hold editors

CTestDocument RowDocument(const QVector<QStringList> &rows,
                          const QMap<QString, QString> &captions = {});
// So many rows, no two alike.
QVector<QStringList> Values(int rows);
// What the cells of a row show, editors or items.
QStringList CellTexts(const QTableWidget *table, int row);
// Verifies that the newest rows alone hold editors, and that all show Values(rows).
void CheckSplit(const QTableWidget *table, int rows);
