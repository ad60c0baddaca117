// The window's actions on its pages: the next and the previous one, and floating the one on top.
//
// They stand in the window's actions(), which the Tools menu shows, and work by their shortcuts
// wherever the focus is in the window or in a floating page: Ctrl+Tab and Ctrl+PgDown, Ctrl+Shift+Tab
// and Ctrl+PgUp, F11. A floating page has no next one. GUI thread.
//
//   AddPageActions(this, [this] { return PageOnTop(); });
#pragma once

#include <functional>

class CAutoBindingDataModelDockWidget;
class QMainWindow;

using PageOnTop = std::function<CAutoBindingDataModelDockWidget *()>;  // null: there is none

void AddPageActions(QMainWindow *window, const PageOnTop &onTop);
