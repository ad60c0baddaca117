// How the editor of a table's cell looks, beside its value: a cell may be changed, marked, or both.
//
// Whoever knows a state says it here; the looks of the states are put together in one place. A
// changed cell has a ground of its own and bold digits, a marked one the colours of a selection, so no
// state is told by colour alone: the headers of a marked cell are bold. The colours are made of the
// editor's own palette, hold on a light and a dark desktop, and have the contrast of WCAG AA. Without a state the editor is as it came. GUI thread.
//
//   SetCellLook(editor, ECellLook::Changed, true);
//   HasCellLook(editor, ECellLook::Marked);   // false
#pragma once

class QWidget;

enum class ECellLook
{
    Changed = 1,  // it differs from what was read or imported
    Marked = 2,   // the next table command is for it
};

void SetCellLook(QWidget *editor, ECellLook look, bool isOn);
bool HasCellLook(const QWidget *editor, ECellLook look);
