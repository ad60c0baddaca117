// Reset, hide and unload while the target works: the answer is dropped, nothing that is gone is
// used.
//
// The gates of the simulated DUT hold a call in the middle; the sanitizer build of this test is
// what proves the second half.
#include <functional>

#include <QDockWidget>
#include <QPushButton>
#include <QThreadPool>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/ContRxProfiles.h"

namespace {

constexpr char kStart[] = "VOND_MMRf_ContRxV7_r";
constexpr char kStop[] = "VOND_MMRf_TestStopV7_r";
constexpr char kCapability[] = "VOND_NRf_GetRfCapability_r";

// Lets the held call go, and its answer arrive.
void Finish(const char *function)
{
    VondSim_Release(function);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

bool HoldStart(CPluginSession &session)
{
    if (!session.ShowAndWait())
        return false;
    VondSim_Hold(kStart);
    session.Press("m_start");
    return VondSim_WaitUntilHeld(kStart, 20000) != 0;
}

bool HasEachPageOnce(const CPluginSession &session)
{
    QStringList names;
    for (const QDockWidget *page : session.Window()->findChildren<QDockWidget *>())
        names.append(page->objectName());
    return names.contains("CNrContRxDockWidgetV7") && names.removeDuplicates() == 0;
}

// Shows the tool and acts from inside the init flow's own loop, as soon as the page has asked for
// its document.
void WhenPageWaits(CPluginSession &session, const std::function<void()> &act)
{
    bool hasActed = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (!hasActed && session.StatusBar() == "Start Init: Continuous RX") {
            hasActed = true;
            act();
        }
    });
    watch.start(0);
    session->ShowPlugin();
    WaitUntil([&] { return hasActed || session.StatusBar() == "Init done."; });
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

}  // namespace

class LifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void resetWhileAStartIsInFlightDropsTheAnswer();
    void resetWhileAStopIsInFlightDropsTheAnswer();
    void guiDoesNotWaitForAHeldCall();
    void resetWhileBusyTellsTheHostWhenTheTargetIsIdle();
    void unloadWhileAStartIsInFlight();
    void resetWhileThePageListIsRead();
    void resetWhileAPageWaitsForItsDocument();
    void unloadWhileAPageWaitsForItsDocument();
    void resetWhileTheFailureBoxIsOpen();
    void unloadWhileTheFailureBoxIsOpen();
    void startThatArrivesWhileTheWindowIsHiddenIsStopped();
    void hideStopsARunningTestLikeATabChange();
    void showOfAVisibleWindowBringsThePagesBackAfterAReset();
    void showAfterAResetInTheMiddleOfTheInitFlowBringsAllPages_data();
    void showAfterAResetInTheMiddleOfTheInitFlowBringsAllPages();
    void resetInTheMiddleOfTheInitFlowLeavesNoWindowThatWaits();
    void hideAndShowWhileAPageComesInLeavesEachPageReachable_data();
    void hideAndShowWhileAPageComesInLeavesEachPageReachable();
};

void LifetimeTest::resetWhileAStartIsInFlightDropsTheAnswer()
{
    CPluginSession session(Type1Profile());
    QVERIFY(HoldStart(session));
    session->ResetPlugin();
    Finish(kStart);
    QCOMPARE(CountCalls(kStart), 1);
    QVERIFY(session.StatusBar() != "Cont Rx start...");
}

void LifetimeTest::resetWhileAStopIsInFlightDropsTheAnswer()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    VondSim_Hold(kStop);
    session.Press("m_stop");
    QVERIFY(VondSim_WaitUntilHeld(kStop, 20000));
    session->ResetPlugin();
    Finish(kStop);
    QVERIFY(session.StatusBar() != "Cont Rx stop.");
}

void LifetimeTest::guiDoesNotWaitForAHeldCall()
{
    CPluginSession session(Type1Profile());
    QVERIFY(HoldStart(session));
    // All of these return while the target still works.
    session->HidePlugin();
    session->ShowPlugin();
    session->DisablePages();
    session->EnablePages();
    session->ResetPlugin();
    session->ShowPlugin();
    QCOMPARE(CountCalls(kStart), 0);
    Finish(kStart);
}

// A host that keeps off the link while the tool is busy must hear of the end, and not before it.
void LifetimeTest::resetWhileBusyTellsTheHostWhenTheTargetIsIdle()
{
    CPluginSession session(Type1Profile());
    QVERIFY(HoldStart(session));
    session->ResetPlugin();
    QCoreApplication::processEvents();
    QCOMPARE(session.busy, (QVector<bool>{true}));
    VondSim_Release(kStart);
    QVERIFY(WaitUntil([&] { return session.busy.size() == 2; }));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(CountCalls(kStart), 1);
    session->ResetPlugin();
    Finish(kStart);
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
}

void LifetimeTest::unloadWhileAStartIsInFlight()
{
    CPluginSession session(Type1Profile());
    QVERIFY(HoldStart(session));
    session.Unload();
    QVERIFY(!session.Window());
    Finish(kStart);
    QCOMPARE(CountCalls(kStart), 1);
}

void LifetimeTest::resetWhileThePageListIsRead()
{
    CPluginSession session(Type1Profile());
    VondSim_Hold(kCapability);
    session->ShowPlugin();
    QVERIFY(VondSim_WaitUntilHeld(kCapability, 20000));
    session->HidePlugin();
    session->ResetPlugin();
    session->ShowPlugin();
    // The list of before the reset is of the old target; the one that this show asks for counts.
    VondSim_Release(kCapability);
    QVERIFY(session.WaitForStatus("Init done."));
    QVERIFY(HasEachPageOnce(session));
    session->HidePlugin();
    session->ShowPlugin();
    Finish(kCapability);
    QVERIFY(HasEachPageOnce(session));
    QCOMPARE(session.StatusBar(), QString("Init done."));
}

void LifetimeTest::resetWhileAPageWaitsForItsDocument()
{
    CPluginSession session(Type1Profile());
    bool isReset = false;
    WhenPageWaits(session, [&] {
        isReset = true;
        session->HidePlugin();
        session->ResetPlugin();
    });
    QVERIFY(isReset);
    QVERIFY(session.Window()->findChildren<QDockWidget *>().isEmpty());
    session->ShowPlugin();
    QVERIFY(session.WaitForStatus("Init done."));
    QVERIFY(HasEachPageOnce(session));
    QVERIFY(session.Window()->isEnabled());
}

void LifetimeTest::unloadWhileAPageWaitsForItsDocument()
{
    CPluginSession session(Type1Profile());
    bool isUnloaded = false;
    WhenPageWaits(session, [&] {
        isUnloaded = true;
        session.Unload();
    });
    QVERIFY(isUnloaded);
    QVERIFY(!session.Window());
}

void LifetimeTest::resetWhileTheFailureBoxIsOpen()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    boxes.onBox = [&] { session->ResetPlugin(); };
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(session.Window()->findChildren<QDockWidget *>().isEmpty());
}

void LifetimeTest::unloadWhileTheFailureBoxIsOpen()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    boxes.onBox = [&] { session.Unload(); };
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCoreApplication::processEvents();
    QVERIFY(!session.Window());
    QVERIFY(!QApplication::activeModalWidget());
}

void LifetimeTest::startThatArrivesWhileTheWindowIsHiddenIsStopped()
{
    CPluginSession session(Type1Profile());
    QVERIFY(HoldStart(session));
    session->HidePlugin();
    VondSim_Release(kStart);
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QCOMPARE(CountCalls(kStop), 1);
    QVERIFY(WaitUntil([&] { return !session.busy.last(); }));
}

void LifetimeTest::showOfAVisibleWindowBringsThePagesBackAfterAReset()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    for (int round = 0; round < 2; ++round) {
        session->ResetPlugin();
        QVERIFY(session.Window()->isVisible());
        QVERIFY(session.Window()->findChildren<QDockWidget *>().isEmpty());
        session->ShowPlugin();
        QVERIFY(!session.Window()->isEnabled());
        QVERIFY(session.ShowAndWait());
        QVERIFY(HasEachPageOnce(session));
    }
}

void LifetimeTest::showAfterAResetInTheMiddleOfTheInitFlowBringsAllPages_data()
{
    QTest::addColumn<bool>("isShownAtOnce");
    QTest::newRow("at once") << true;
    QTest::newRow("later") << false;
}

// The window stays visible all the time.
void LifetimeTest::showAfterAResetInTheMiddleOfTheInitFlowBringsAllPages()
{
    QFETCH(bool, isShownAtOnce);
    CPluginSession session(Type1Profile());
    WhenPageWaits(session, [&] {
        session->ResetPlugin();
        if (isShownAtOnce)
            session->ShowPlugin();
    });
    QVERIFY(session.Window()->isVisible());
    session->ShowPlugin();
    QVERIFY(WaitUntil(
        [&] { return session.StatusBar() == "Init done." && session.Window()->isEnabled(); }));
    QVERIFY(HasEachPageOnce(session));
}

void LifetimeTest::resetInTheMiddleOfTheInitFlowLeavesNoWindowThatWaits()
{
    CPluginSession session(Type1Profile());
    VondSim_Hold(kCapability);
    session->ShowPlugin();
    QVERIFY(VondSim_WaitUntilHeld(kCapability, 20000));
    QVERIFY(!session.Window()->isEnabled());
    session->ResetPlugin();
    QVERIFY(session.Window()->isEnabled());
    QCOMPARE(session.StatusBar(), QString());
    Finish(kCapability);
}

void LifetimeTest::hideStopsARunningTestLikeATabChange()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    session->HidePlugin();
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    session->ShowPlugin();
    QVERIFY(EventLoopTurns());
    QCOMPARE(CountCalls(kStop), 1);
}

void LifetimeTest::hideAndShowWhileAPageComesInLeavesEachPageReachable_data()
{
    QTest::addColumn<QString>("line");
    for (const char *page : {"RSSI", "RX Pathloss", "RSRP Force Mode", "APT Profile"})
        QTest::newRow(page) << QString("Start Init: ") + page;
}

void LifetimeTest::hideAndShowWhileAPageComesInLeavesEachPageReachable()
{
    QFETCH(QString, line);
    CPluginSession session(Type1Profile());
    QTimer watch;
    // The page's document arrives while the window is hidden.
    int hiddenTurns = 0;
    connect(&watch, &QTimer::timeout, this, [&] {
        if (hiddenTurns == 0 && session.StatusBar() != line)
            return;
        if (++hiddenTurns == 1) {
            session->HidePlugin();
        } else if (hiddenTurns > 20 && QThreadPool::globalInstance()->waitForDone(0)) {
            watch.stop();
            session->ShowPlugin();
        }
    });
    watch.start(0);
    session->ShowPlugin();
    QVERIFY(WaitUntil([&] { return session.StatusBar() == "Init done."; }));
    QVERIFY(hiddenTurns > 0);
    for (const QDockWidget *page : session.Window()->findChildren<QDockWidget *>())
        QVERIFY2(!page->isHidden(), qPrintable(page->windowTitle()));
}

QUORLIN_TEST_CLASS(LifetimeTest)
#include "LifetimeTest.moc"
