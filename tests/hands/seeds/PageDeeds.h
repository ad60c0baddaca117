// A button and an action of one page, worked as a person does.
//
// A deed that cannot be done, since the thing is off or out of sight, says so (SDeed::isDone); it still has
// to settle.
//
//   QDockWidget *page = RaisedPage(desk, "CNrContRxDockWidgetV7");
//   const SDeed deed = PressOn(desk, page, "m_start");
//   const QString failure = desk.Settle();
#pragma once

#include "tests/hands/actions/Actions.h"

// In front of the others, as a click on its tab brings it; null when the window has no such page in sight.
QDockWidget *RaisedPage(CDesk &desk, const char *className);
SDeed PressOn(CDesk &desk, QDockWidget *page, const char *button);
// Of the page or of the window. Undo of a Read or an Import, and a revert, are left out: they change data
// that the page does not show, which the rules cannot see.
SDeed TriggerOn(CDesk &desk, QDockWidget *page, const char *action);
