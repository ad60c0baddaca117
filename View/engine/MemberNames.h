// Gives the editors of a page the names that a screen reader says, from the document and the form.
//
// The name of an editor is its caption: that of its caption label, which is made its buddy, or else of
// the document. Where editors in one box have the same caption, what the form writes beside and above
// tells them apart: "Coupler Loss, High", "paMode, 2". A result that is a label is named by its value;
// its description begins with the caption. Tables have the title around them, cells the captions of
// their row and column (CellNames.h). Descriptions have limits and unit and follow the relations
// (SpokenText.h). GUI thread.
//
//   NameMembers(binding, widgets);   // behind Init
#pragma once

#include <QList>

class QWidget;
struct SBinding;

// widgets: all of the page.
void NameMembers(const SBinding &binding, const QList<QWidget *> &widgets);
