// A list (QComboBox) as a screen reader sees it, whose name is its caption.
//
// Qt's own interface of a list gives the chosen entry as the name on Unix, and the caption by the label
// beside it alone; many lists of the pages have none. Lists that are given here have both: the
// accessible name as their name, the chosen entry as their value, and the entries as their child.
// Other lists of the process keep Qt's interface. GUI thread.
//
//   box->setAccessibleName("Band");
//   NameByCaption(box);
#pragma once

class QComboBox;

void NameByCaption(QComboBox *box);
