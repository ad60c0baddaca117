// Shows the limits of an editor that refuses a key.
//
// A spin box drops a key that would take it beyond its limits without a word: "99.5" becomes 9.5.
// The tip shows the limits as the editor's own tool tip has them. GUI thread.
//
//   TellRefusedKeys(box);                       // from now on
//   ShowLimitTip(editor, "0~FFFF");             // "Range should be:0~FFFF"
#pragma once

#include <QString>

class QAbstractSpinBox;
class QWidget;

void TellRefusedKeys(QAbstractSpinBox *box);
// Of an editor that is not visible nobody sees any.
void ShowLimitTip(QWidget *editor, const QString &limits);
