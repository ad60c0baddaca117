// Clear and Reset Counter of the RSRP pages, and how reports stand beside them.
#include <QPushButton>
#include <QThreadPool>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RsrpSession.h"

class RsrpCounterTest : public QObject
{
    Q_OBJECT

private slots:
    void clearEmptiesTheTableAndLeavesTheTarget_data() { BothRsrpPages(); }
    void clearEmptiesTheTableAndLeavesTheTarget();
    void clearSaysBusyUntilTheTableIsEmpty_data() { BothRsrpPages(); }
    void clearSaysBusyUntilTheTableIsEmpty();
    void clearTakesTheRowsOfAFetchInFlight_data() { BothRsrpPages(); }
    void clearTakesTheRowsOfAFetchInFlight();
    void ticksAreSkippedWhileTheTableIsBeingCleared_data() { BothRsrpPages(); }
    void ticksAreSkippedWhileTheTableIsBeingCleared();
    void resetCountsFromZeroAndLeavesTheTable_data() { BothRsrpPages(); }
    void resetCountsFromZeroAndLeavesTheTable();
    void failedResetShowsABoxAndTheRunGoesOn_data() { BothRsrpPages(); }
    void failedResetShowsABoxAndTheRunGoesOn();
    void resetWithoutARunReturnsToIdle_data() { BothRsrpPages(); }
    void resetWithoutARunReturnsToIdle();
};

void RsrpCounterTest::clearEmptiesTheTableAndLeavesTheTarget()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    const uint32_t calls = VondSim_CallCount();
    session.Press("clearPushButton");
    QVERIFY(WaitUntil([&] { return session.Rows() == 0; }));
    QCOMPARE(session.Enabled(), QString("start reset clear rx tx"));
    QCOMPARE(session.Table()->horizontalHeaderItem(7)->text(), QString("BLER(%)"));
    QCOMPARE(VondSim_CallCount(), calls);
    // The target counts on.
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 5);
    QCOMPARE(session.Cell(0, "Total BLK"), QString("200"));
}

void RsrpCounterTest::clearSaysBusyUntilTheTableIsEmpty()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    session.busy.clear();
    session.Press("clearPushButton");
    QCOMPARE(session.busy, (QVector<bool>{true}));
    QCOMPARE(session.Enabled(), QString());
    QVERIFY(WaitUntil([&] { return session.busy.size() == 2; }));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(session.Rows(), 0);
}

// What was asked for before the clear goes with it, whichever answer comes first.
void RsrpCounterTest::clearTakesTheRowsOfAFetchInFlight()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    QVERIFY(session.HoldFetch());
    const QSignalSpy added(session.Table()->model(), &QAbstractItemModel::rowsInserted);
    session.Press("clearPushButton");
    VondSim_Release(kRsrpReport);
    QVERIFY(WaitUntil([&] { return session.Enabled() == "start reset clear rx tx"; }));
    QVERIFY(WaitUntil([] { return CountCalls(kRsrpReport) == 2; }));
    QCOMPARE(session.Rows(), 0);
    QCOMPARE(added.size(), 0);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 5);
}

// A report that is asked for now would carry the rows that are on their way out.
void RsrpCounterTest::ticksAreSkippedWhileTheTableIsBeingCleared()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    session.Find<QPushButton>("clearPushButton")->click();
    session.Tick();
    QVERIFY(WaitUntil([&] { return session.Rows() == 0; }));
    QThreadPool::globalInstance()->waitForDone();
    QCOMPARE(CountCalls(kRsrpReport), 1);
}

void RsrpCounterTest::resetCountsFromZeroAndLeavesTheTable()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    VondSim_Hold(kRsrpReset);
    session.Press("resetPushButton");
    QCOMPARE(session.Enabled(), QString());
    QVERIFY(VondSim_WaitUntilHeld(kRsrpReset, 20000));
    VondSim_Release(kRsrpReset);
    QVERIFY(session.WaitForStatus("Reset counter done."));
    QCOMPARE(session.Enabled(), QString("stop reset"));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
    QCOMPARE(session.Rows(), 5);
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 10);
    QCOMPARE(session.Cell(4, "Total BLK"), QString("100"));
    QCOMPARE(session.Cell(5, "Total BLK"), QString("100"));
    QCOMPARE(CountCalls(kRsrpReset), 1);
}

void RsrpCounterTest::failedResetShowsABoxAndTheRunGoesOn()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    VondSim_AddFault(
        R"({"function": "VOND_NRf_ResetMixRxReportV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press("resetPushButton");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].title, QString("Reset counter failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QCOMPARE(session.Enabled(), QString("stop reset"));
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
}

void RsrpCounterTest::resetWithoutARunReturnsToIdle()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    session.Press("resetPushButton");
    QVERIFY(session.WaitForStatus("Reset counter done."));
    QCOMPARE(session.Enabled(), QString("start reset clear rx tx"));
    QCOMPARE(CountCalls(kRsrpReset), 1);
}

QUORLIN_TEST_CLASS(RsrpCounterTest)
#include "RsrpCounterTest.moc"
