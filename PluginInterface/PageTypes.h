// The page classes of this plug-in, made known to Qt's type system.
//
// The form creates a page from its class name alone ("CNrContRxDockWidgetV7*"), so each page class
// is registered here, and nowhere else. The build writes the source (PageTypes.cpp.in) from the
// quorlin_page lines of View/Rx and View/Tx. Called by the form's constructor, on the GUI thread.
#pragma once

void RegisterPageTypes();
