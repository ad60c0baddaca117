// The number that a cell's editor holds, for commands that reckon with cells.
//
// QSpinBox, QDoubleSpinBox and CUnsignedSpinBox hold one; other editors none. GUI thread.
//
//   TextOfNumber(cell, *NumberOf(cell) + 0.5);   // "1.90625"; TakenText says whether it is allowed
#pragma once

#include <optional>

#include <QString>

class QWidget;

// None when there is none just now, as in an empty text.
std::optional<double> NumberOf(const QWidget *editor);
// As a user would enter it there: in the editor's radix, rounded to its decimals.
QString TextOfNumber(const QWidget *editor, double number);
// 0, or the number nearest to it that the editor takes; none when it takes no number.
std::optional<QString> TextNearestToZero(const QWidget *editor);
