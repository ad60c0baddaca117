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

class QDoubleSpinBox;
class QSpinBox;

void CheckRange(QSpinBox *box);
void CheckRange(QDoubleSpinBox *box);
