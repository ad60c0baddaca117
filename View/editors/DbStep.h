// The steps of a dB value on the wire.
//
// The target holds gains, losses and offsets in 1/32 dB, in 16 bits with a sign. Five decimals show
// a step without loss, so an editor of five decimals is one of such a value: its step is one of the
// wire, and what the user enters goes to the nearest one that the wire holds. What a document
// brings is shown as it is. Free functions; GUI thread.
//
//   box->setDecimals(5);
//   SetDbStep(box);                // 0.03125
//   box->setValue(ToDbStep(box));  // 1.40000 becomes 1.40625
#pragma once

class QDoubleSpinBox;

// Gives an editor of five decimals the step of the wire; leaves others as they are.
void SetDbStep(QDoubleSpinBox *box);
// The value that the box should show of its own: the nearest step within its limits and those of
// the wire. That of an editor of other decimals is its value.
double ToDbStep(const QDoubleSpinBox *box);
