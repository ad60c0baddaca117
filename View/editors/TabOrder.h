// Where Tab and Shift+Tab go.
//
// The order is that of the forms. A table is one control, whatever its cells (TableKeys.h). A scroll
// area is none: its contents are. What gets the focus is scrolled into view. GUI thread.
//
//   bool focusNextPrevChild(bool next) override { return MoveFocus(window(), next); }
#pragma once

class QTabWidget;
class QWidget;

// From the widget of the window that has the focus to the next one, or the previous one; false when
// there is no other.
bool MoveFocus(QWidget *window, bool next);
// Puts the bar of a tab widget between two widgets of a form. A form cannot: Qt cuts the order in
// two when it lists a tab widget and then something on one of its tabs.
void PlaceTabBar(QWidget *before, QTabWidget *tabs, QWidget *behind);
