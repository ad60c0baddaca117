// A tab bar whose tabs leave a third of the usual room around their names, so that those of all
// pages stand beside each other at the window's own width. GUI thread.
//
//   NarrowTabs(bar);   // any number of times
#pragma once

class QTabBar;

void NarrowTabs(QTabBar *bar);
