// The RSRP pages on a slow target, behind another tab, in a hidden window, and at a reset.
#include <QPushButton>
#include <QSpinBox>
#include <QThreadPool>
#include <QTimer>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RsrpSession.h"

namespace {

constexpr char kOtherPage[] = "Continuous RX";

// Lets the held call go, and its answer arrive.
void Finish(const char *function)
{
    VondSim_Release(function);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

// The show after a reset builds the pages anew.
bool ShowAnew(CRsrpSession &session)
{
    session->HidePlugin();
    session->ShowPlugin();
    return WaitUntil([&] { return session.Page() && session.StatusBar() == "Init done."; }) &&
           session.Ready();
}

}  // namespace

class RsrpLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void windowIsAliveOnASlowTarget_data() { BothRsrpPages(); }
    void windowIsAliveOnASlowTarget();
    void tabChangeStopsTimerAndTarget_data() { BothRsrpPages(); }
    void tabChangeStopsTimerAndTarget();
    void tabChangeDuringAResetOfTheCountersStopsToo_data() { BothRsrpPages(); }
    void tabChangeDuringAResetOfTheCountersStopsToo();
    void tabChangeStopsAStartInFlight_data() { BothRsrpPages(); }
    void tabChangeStopsAStartInFlight();
    void hideStopsTheRunAndItsReports_data() { BothRsrpPages(); }
    void hideStopsTheRunAndItsReports();
    void resetDropsTheAnswer_data();
    void resetDropsTheAnswer();
    void resetWhileTheFailureBoxIsOpen_data() { BothRsrpPages(); }
    void resetWhileTheFailureBoxIsOpen();
    void unloadWhileAFetchIsInFlight_data() { BothRsrpPages(); }
    void unloadWhileAFetchIsInFlight();
};

void RsrpLifetimeTest::windowIsAliveOnASlowTarget()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    VondSim_Hold(kRsrpStart);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(kRsrpStart, 20000));
    QVERIFY(EventLoopTurns());
    VondSim_Release(kRsrpStart);
    QVERIFY(session.WaitForStatus("Rsrp start..."));

    QVERIFY(session.HoldFetch());
    QVERIFY(EventLoopTurns());
    QCOMPARE(session.Enabled(), QString("stop reset"));
    VondSim_Release(kRsrpReport);
    QVERIFY(WaitUntil([&] { return session.Rows() == 5; }));

    VondSim_Hold(kRsrpReset);
    session.Press("resetPushButton");
    QVERIFY(VondSim_WaitUntilHeld(kRsrpReset, 20000));
    QVERIFY(EventLoopTurns());
    VondSim_Release(kRsrpReset);
    QVERIFY(session.WaitForStatus("Reset counter done."));

    VondSim_Hold(kRsrpStop);
    session.Press("m_stop");
    QVERIFY(VondSim_WaitUntilHeld(kRsrpStop, 20000));
    QVERIFY(EventLoopTurns());
    VondSim_Release(kRsrpStop);
    QVERIFY(session.WaitForStatus("Rsrp stop."));
}

void RsrpLifetimeTest::tabChangeStopsTimerAndTarget()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    session.Input<QSpinBox>("group1", "reportPeriod")->setValue(300);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.ClickTab(kOtherPage));
    QVERIFY(session.WaitForStatus("Rsrp stop."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    const int reports = CountCalls(kRsrpReport);
    QVERIFY(!WaitUntil([&] { return CountCalls(kRsrpReport) > reports; }, 700));
    QVERIFY(session.ClickTab("RSRP " + mode + " Mode"));
    QCOMPARE(CountCalls(kRsrpStop), 1);
    QCOMPARE(session.Enabled(), QString("start reset clear rx tx"));
}

void RsrpLifetimeTest::tabChangeDuringAResetOfTheCountersStopsToo()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    VondSim_Hold(kRsrpReset);
    session.Press("resetPushButton");
    QVERIFY(VondSim_WaitUntilHeld(kRsrpReset, 20000));
    QVERIFY(session.ClickTab(kOtherPage));
    VondSim_Release(kRsrpReset);
    QVERIFY(session.WaitForStatus("Rsrp stop."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QVERIFY(session.ClickTab("RSRP " + mode + " Mode"));
    QCOMPARE(session.Enabled(), QString("start reset clear rx tx"));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false, true, false}));
}

void RsrpLifetimeTest::tabChangeStopsAStartInFlight()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    VondSim_Hold(kRsrpStart);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(kRsrpStart, 20000));
    QVERIFY(session.ClickTab(kOtherPage));
    QVERIFY(session.ClickTab("RSRP " + mode + " Mode"));
    VondSim_Release(kRsrpStart);
    QVERIFY(session.WaitForStatus("Rsrp stop."));
    QCOMPARE(CountCalls(kRsrpStop), 1);
    QCOMPARE(session.Enabled(), QString("start reset clear rx tx"));
    QVERIFY(!session.Find<QTimer>("reportTimer")->isActive());
}

void RsrpLifetimeTest::hideStopsTheRunAndItsReports()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    session->HidePlugin();
    QVERIFY(session.WaitForStatus("Rsrp stop."));
    QCOMPARE(CountCalls(kRsrpStop), 1);
    QVERIFY(!session.Find<QTimer>("reportTimer")->isActive());
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void RsrpLifetimeTest::resetDropsTheAnswer_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QByteArray>("function");
    for (const char *mode : {"Force", "Normal"}) {
        for (const char *function : {kRsrpStart, kRsrpReport, kRsrpReset, kRsrpStop})
            QTest::newRow(qPrintable(QString(mode) + " " + function))
                << mode << QByteArray(function);
    }
}

void RsrpLifetimeTest::resetDropsTheAnswer()
{
    QFETCH(QString, mode);
    QFETCH(QByteArray, function);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    VondSim_Hold(function);
    session.Press("m_start");
    if (function != kRsrpStart) {
        QVERIFY(session.WaitForStatus("Rsrp start..."));
        if (function == kRsrpReport)
            session.Tick();
        else
            session.Press(function == kRsrpStop ? "m_stop" : "resetPushButton");
    }
    QVERIFY(VondSim_WaitUntilHeld(function, 20000));
    const QString status = session.StatusBar();
    session->ResetPlugin();
    QVERIFY(!session.Page());
    Finish(function);
    QCOMPARE(CountCalls(function), 1);
    QCOMPARE(session.StatusBar(), status);
    // The page that comes next knows nothing of it.
    QVERIFY(ShowAnew(session));
    QCOMPARE(session.Enabled(), QString("start reset clear rx tx"));
    QCOMPARE(session.Rows(), 0);
}

void RsrpLifetimeTest::resetWhileTheFailureBoxIsOpen()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    VondSim_AddFault(R"({"function": "VOND_NRf_RsrpV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    boxes.onBox = [&] { session->ResetPlugin(); };
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QVERIFY(WaitUntil([&] { return !session.Page(); }));
    boxes.onBox = {};
    VondSim_ClearFaults();
    QVERIFY(ShowAnew(session));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
}

void RsrpLifetimeTest::unloadWhileAFetchIsInFlight()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.HoldFetch());
    session.Unload();
    Finish(kRsrpReport);
    QVERIFY(!session.Window());
}

QUORLIN_TEST_CLASS(RsrpLifetimeTest)
#include "RsrpLifetimeTest.moc"
