// "Explain changes..." of a page, which opens the window of its changes (ExplainWindow.h), and
// "Explain changes of <member>" in the context menu of each member, which opens it for that one.
//
// GUI thread; the page owns actions and window.
//
//   AddExplain(page);
#pragma once

class CAutoBindingDataModelDockWidget;

void AddExplain(CAutoBindingDataModelDockWidget *page);
