// The range check of a number editor: its tool tip lists what may be entered.
//
// The list is tokens joined by ",": a number, or low~high with both limits inclusive. An entry that
// no token allows gives way to the first token: to the number itself, or to the middle of the
// range. Only what the user has entered is checked; a value that a document brought stays. GUI
// thread.
//
//   box->setToolTip("1950000,2000000~2010000");
//   CheckRange(box);   // 7 becomes 1950000
#pragma once

#include <vector>

#include <QString>

class QDoubleSpinBox;
class QSpinBox;
class QWidget;

void CheckRange(QSpinBox *box);
void CheckRange(QDoubleSpinBox *box);

// An editor whose tool tip is such a list from the document, and not its limits alone.
void SetRangeChecked(QWidget *editor);
bool IsRangeChecked(const QWidget *editor);
// Does the list allow this text? It is one that the box would show.
bool IsInRanges(const QSpinBox *box, const QString &text);
bool IsInRanges(const QDoubleSpinBox *box, const QString &text);
// Both ends of each range of the list, and its numbers.
std::vector<double> LimitsOfRanges(const QSpinBox *box);
std::vector<double> LimitsOfRanges(const QDoubleSpinBox *box);
