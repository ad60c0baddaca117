#include "tests/layout/Pages.h"

#include <QTest>

#include "tests/common/PluginSession.h"
#include "tests/common/WaitUntil.h"

void NinePages()
{
    QTest::addColumn<QString>("page");
    for (const char *page :
         {"CNrRssiDockWidgetV7", "CNrRxPathlossDockWidgetV7", "CNrContRxDockWidgetV7",
          "CNrRsrpForceDockWidgetV7", "CNrRsrpNormalDockWidgetV7", "CNrSingleToneTxDockWidgetV7",
          "CNrAptProfileDockWidgetV7", "CNrPuschTxForcedDockWidgetV7",
          "CNrPuschTxNormalDockWidgetV7"})
        QTest::newRow(page) << page;
}

QDockWidget *RaisePage(const CPluginSession &session, const QString &page)
{
    auto *dock = session.Window()->findChild<QDockWidget *>(page);
    if (!dock)
        return nullptr;
    dock->raise();
    const bool isInFront =
        WaitUntil([dock] { return dock->isEnabled() && !dock->visibleRegion().isEmpty(); });
    return isInFront ? dock : nullptr;
}
