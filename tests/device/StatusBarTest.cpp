// The right end of the status bar: the running test, RF Off, and Tools with the actions of the page
// and of the window; and what these actions do.
#include <QMenu>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabBar>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/TxPages.h"

namespace {

constexpr char kContRx[] = "CNrContRxDockWidgetV7";

QLabel *Lamp(const CPluginSession &session)
{
    return session.Window()->statusBar()->findChild<QLabel *>("m_testLamp");
}

bool LampShows(const CPluginSession &session, const QString &pattern)
{
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
    return WaitUntil([&] {
        return Lamp(session)->isVisible() && whole.match(Lamp(session)->text()).hasMatch();
    });
}

QColor Light(const CPluginSession &session)
{
    return Lamp(session)->palette().color(QPalette::WindowText);
}

QString PageInFront(const CPluginSession &session)
{
    for (const QTabBar *bar :
         session.Window()->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (bar->isVisible())
            return bar->tabText(bar->currentIndex());
    }
    return {};
}

void PressKey(const CPluginSession &session, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(session.Window(), key, modifiers);
}

}  // namespace

class StatusBarTest : public QObject
{
    Q_OBJECT

private slots:
    void theRunningTestStandsThereUntilItIsStopped()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        QVERIFY(!Lamp(session)->isVisible());
        session.Press("m_start");
        QVERIFY(LampShows(session,
                          "\u25CF Single Tone TX  n1  1950\\.000 MHz  23\\.00 dBm  00:00:0\\d"));
        QVERIFY(Light(session).red() > Light(session).green());
        QCOMPARE(Lamp(session)->toolTip(), QString("The DUT transmits"));
        session.Press("m_stop");
        QVERIFY(WaitUntil([&] { return !Lamp(session)->isVisible(); }));
    }

    void aReceivingTestIsGreenAndHasNoPower()
    {
        CPluginSession session("handset", 1, kContRx);
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        QVERIFY(LampShows(session, "\u25CF Continuous RX  n\\d+  \\d+\\.\\d{3} MHz  00:00:0\\d"));
        QVERIFY(Light(session).green() > Light(session).red());
    }

    void aPseudoTransmissionTellsItsPower()
    {
        CPluginSession session("handset", 1, "CNrRsrpForceDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        session.Find<QComboBox>("cmdIf_request_group1_memberProperty_trxMode")
            ->setCurrentText("Pseudo TX/RX");
        session.Press("m_start");
        QVERIFY(LampShows(session, ".* RSRP Force Mode  n1  .* MHz  23\\.00 dBm  00:00:0\\d"));
        QVERIFY(Light(session).red() > Light(session).green());
    }

    void theTimeGoesOn()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        QVERIFY(LampShows(session, ".*  00:00:0[1-9]"));
    }

    void aFailedStopLeavesTheTestThere()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        QVERIFY(LampShows(session, ".*Single Tone TX.*"));
        VondSim_AddFault(R"({"function": "VOND_MMRf_TestStopV7_r", "kind": "fail", "result": 4})");
        CBoxWatcher boxes;
        session.Press("m_stop");
        QVERIFY(session.WaitForStatus(Status(kSingleTone, "stop failed.")));
        QVERIFY(Lamp(session)->isVisible());
    }

    void aResetTakesItAway()
    {
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        QVERIFY(LampShows(session, ".*Single Tone TX.*"));
        session->ResetPlugin();
        QVERIFY(WaitUntil([&] { return !Lamp(session)->isVisible(); }));
    }

    void toolsHasTheActionsOfThePageOnTopAndOfTheWindow()
    {
        CPluginSession session("handset", 1, kContRx);
        QVERIFY(session.ShowAndWait());
        QAction own("Own action");
        session.Page()->addAction(&own);
        auto *tools = session.Window()->statusBar()->findChild<QPushButton *>("m_tools");
        QVERIFY(tools && tools->isVisible());
        emit tools->menu()->aboutToShow();
        const QList<QAction *> entries = tools->menu()->actions();
        QCOMPARE(entries.indexOf(&own), session.Page()->actions().indexOf(&own));
        QStringList ofWindow;
        for (const QAction *entry : entries.mid(session.Page()->actions().size() + 1))
            ofWindow.append(entry->objectName() + ' ' + entry->shortcut().toString());
        QCOMPARE(ofWindow.mid(0, 3),
                 (QStringList{"m_actionNextPage Ctrl+Tab", "m_actionPreviousPage Ctrl+Shift+Tab",
                              "m_actionFloatPage F11"}));
    }

    void keysGoFromPageToPageAndAround()
    {
        CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        const QString first = PageInFront(session);
        PressKey(session, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(PageInFront(session), QString("RX Pathloss"));
        PressKey(session, Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(PageInFront(session), first);
        PressKey(session, Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(PageInFront(session), QString("Normal PUSCH TX "));
        PressKey(session, Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(PageInFront(session), first);
    }

    void aKeyFloatsThePageAndDocksIt()
    {
        CPluginSession session("handset", 1, kContRx);
        QVERIFY(session.ShowAndWait());
        PressKey(session, Qt::Key_F11);
        QVERIFY(session.Page()->isFloating());
        QApplication::setActiveWindow(session.Page());
        QTest::keyClick(session.Page(), Qt::Key_F11);
        QVERIFY(!session.Page()->isFloating());
    }
};

QUORLIN_TEST_CLASS(StatusBarTest)
#include "StatusBarTest.moc"
