// The text of a cell's editor, of whatever kind it is: for commands that work on cells as texts, such
// as copy, paste and undo.
//
// A number reads as its editor shows it. What a user could not type or choose is refused: no number, a
// number beyond the limits or between the ranges of the tool tip, a text that the list does not offer.
// A dB value goes to the nearest step of the wire, as at the end of an edit. Blanks around a text and
// an upper or lower case digit are no matter. QSpinBox, QDoubleSpinBox, CUnsignedSpinBox and
// QComboBox; other widgets have no text and refuse every one. GUI thread.
//
//   if (const std::optional<QString> text = TakenText(cell, "1.4"))   // "1.40625"
//       SetCellText(cell, *text);
#pragma once

#include <optional>

#include <QString>

class QWidget;

QString CellText(const QWidget *editor);
// What the editor would show when the user enters this; none when it refuses it. Changes nothing.
std::optional<QString> TakenText(const QWidget *editor, const QString &entered);
// text: one that CellText or TakenText gave. The editor signals the change as an entered one.
void SetCellText(QWidget *editor, const QString &text);
