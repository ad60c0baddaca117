// The steps of a dB value on the wire.
//
// The target holds gains, losses and offsets in steps of 1/32 dB, in 16 bits with a sign. An editor
// with five decimals is one of such a value: five decimals show a step exactly. It steps by one step
// of the wire, and what the user enters goes to the nearest step. A value from a document is shown
// as it is. Free functions; GUI thread.
//
//   box->setDecimals(5);
//   SetDbStep(box);                // 0.03125
//   box->setValue(ToDbStep(box));  // 1.40000 becomes 1.40625
#pragma once

class QDoubleSpinBox;

// Gives an editor with five decimals the step of the wire; leaves others as they are.
void SetDbStep(QDoubleSpinBox *box);
// The step nearest to the box's value, within the limits of the box and of the wire. The value
// itself, if the box has not five decimals or no step lies within its limits.
double ToDbStep(const QDoubleSpinBox *box);
// The same of another value than the box's.
double ToDbStep(const QDoubleSpinBox *box, double value);
