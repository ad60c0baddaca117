// Cells as text, as spreadsheets put them on the clipboard and take them from it.
//
// A line is a row, ended by LF, CR LF or CR; the last end may be missing. A tab stands between two
// cells. A cell whose text begins with a quotation mark goes up to the next single one: inside it
// tabs and ends of lines are text, and two quotation marks are one. What stands behind the closing
// one belongs to the text; a quotation that is never closed is none. Texts are as they stand, with
// their blanks. Free functions of plain values; any thread.
//
//   CellsOfText("1.5\t2\r\n\"3\"\t4\r\n");   // {{"1.5", "2"}, {"3", "4"}}
//   TextOfCells({{"1.5", "2"}});             // "1.5\t2\n"
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

using CellRows = std::vector<QStringList>;

constexpr int kMostClipboardCells = 1000000;

// The rows may be of different lengths. An empty text has no row, and so has one of more cells than
// kMostClipboardCells.
CellRows CellsOfText(const QString &text);
QString TextOfCells(const CellRows &rows);
