// A tab bar whose tabs leave less room around their names, down to a third of the usual one, when
// they would not stand beside each other otherwise. GUI thread.
//
//   NarrowTabs(bar);   // any number of times
#pragma once

class QTabBar;

void NarrowTabs(QTabBar *bar);
