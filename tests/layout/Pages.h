// The nine pages in one session, for tests that look at each.
//
//   void AnyScreenTest::buttonsStayInView_data() { NinePages(); }
//   QDockWidget *dock = RaisePage(session, page);
#pragma once

#include <QString>

class CPluginSession;
class QDockWidget;

// Data column "page": the class names, a row each.
void NinePages();

// The page of this class, in front; null when it does not come.
QDockWidget *RaisePage(const CPluginSession &session, const QString &page);
