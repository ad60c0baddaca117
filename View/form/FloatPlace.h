// Where a page goes that begins to float. Qt leaves it exactly on its old place, where it looks as
// if it were still docked and covers the window that it came from.
//
// A page that the user drags stays with the mouse. GUI thread.
//
//   FloatBeside(page);   // once, when the page stands in its window
#pragma once

class QDockWidget;

void FloatBeside(QDockWidget *page);
