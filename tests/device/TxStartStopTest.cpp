// Start and Stop of the TX pages, each test on each page: states, status lines, boxes, tabs.
#include <QDockWidget>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/TxPages.h"

namespace {

bool Running(CPluginSession &session, const STxPage &page)
{
    if (!session.ShowAndWait())
        return false;
    session.Press("m_start");
    return session.WaitForStatus(Status(page, "start..."));
}

QString Fault(const char *function, const QString &kind)
{
    return QString(R"({"function": "%1", %2})").arg(function, kind);
}

void StopByHost(const CPluginSession &session)
{
    QVERIFY(QMetaObject::invokeMethod(session.Page(), "Slot_TriggerStopTest"));
}

}  // namespace

class TxStartStopTest : public QObject
{
    Q_OBJECT

private slots:
    void startAndStopGoThroughTheirStates_data() { AddPages(); }
    void startAndStopGoThroughTheirStates();
    void failedStartTurnsOnStartAlone_data() { AddPages(); }
    void failedStartTurnsOnStartAlone();
    void refusedStartShowsTheTargetsStatus_data();
    void refusedStartShowsTheTargetsStatus();
    void failedStopLeavesStopEnabled_data() { AddPages(); }
    void failedStopLeavesStopEnabled();
    void windowStaysAliveWhileTheTargetIsSlow_data() { AddPages(); }
    void windowStaysAliveWhileTheTargetIsSlow();
    void tabChangeStopsARunningTest_data() { AddPages(); }
    void tabChangeStopsARunningTest();
    void tabChangeStopsAStartInFlight_data() { AddPages(); }
    void tabChangeStopsAStartInFlight();
    void stopQueuesBehindAStartThatMayRun_data() { AddPages(); }
    void stopQueuesBehindAStartThatMayRun();
    void stopOfTheHostOnAnIdlePageDoesNothing_data() { AddPages(); }
    void stopOfTheHostOnAnIdlePageDoesNothing();
    void secondStopOfTheHostDoesNothing_data() { AddPages(); }
    void secondStopOfTheHostDoesNothing();
    void hostsDisableAndEnableLeaveTheStopOfARunningTestOn_data() { AddPages(); }
    void hostsDisableAndEnableLeaveTheStopOfARunningTestOn();
    void hostsEnableLetsNoReadingBeginDuringAnother_data() { AddPages(); }
    void hostsEnableLetsNoReadingBeginDuringAnother();
    void secondTestOnTheSamePageDoesNotDoubleTheSignals_data() { AddPages(); }
    void secondTestOnTheSamePageDoesNotDoubleTheSignals();

private:
    static void AddPages();
};

void TxStartStopTest::AddPages()
{
    QTest::addColumn<STxPage>("page");
    for (const STxPage &page : {kSingleTone, kForced, kNormal})
        QTest::newRow(page.className) << page;
}

void TxStartStopTest::startAndStopGoThroughTheirStates()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    const QString read = page.button == kSingleTone.button ? " read" : "";
    QCOMPARE(Enabled(session, page), "start" + read);
    VondSim_Hold(page.start);
    session.Press("m_start");
    QCOMPARE(Enabled(session, page), read.isEmpty() ? QString("none") : read.trimmed());
    QCOMPARE(session.busy, (QVector<bool>{true}));
    QVERIFY(VondSim_WaitUntilHeld(page.start, 20000));
    VondSim_Release(page.start);
    QVERIFY(session.WaitForStatus(Status(page, "start...")));
    QCOMPARE(Enabled(session, page), "stop" + read);
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(QString(VondSim_RunningTest()), QString(page.running));

    VondSim_Hold(page.stop);
    session.Press("m_stop");
    QCOMPARE(Enabled(session, page), read.isEmpty() ? QString("none") : read.trimmed());
    QCOMPARE(session.busy, (QVector<bool>{true, false, true}));
    VondSim_Release(page.stop);
    QVERIFY(session.WaitForStatus(Status(page, "stop.")));
    const bool bringsRead = QString(page.className) == kNormal.className;
    QCOMPARE(Enabled(session, page), "start" + (bringsRead ? QString(" read") : read));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void TxStartStopTest::failedStartTurnsOnStartAlone()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(qPrintable(Fault(page.start, R"("kind": "fail", "result": 7)")));
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), Status(page, "start failed..."));
    QVERIFY(session.Find<QPushButton>("m_start")->isEnabled());
    QVERIFY(!session.Find<QPushButton>("m_stop")->isEnabled());
    QCOMPARE(boxes.Seen()[0].title, Status(page, "start failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
    QCOMPARE(boxes.Seen()[0].informative,
             QString::fromUtf8(JournalOf("VOND_GetErrorString").last().answer).remove(QChar(0)));
    QVERIFY(!boxes.Seen()[0].informative.isEmpty());
    QCOMPARE(session.busy, (QVector<bool>{true, false}));

    VondSim_ClearFaults();
    session.Press("m_start");
    QVERIFY(session.WaitForStatus(Status(page, "start...")));
}

void TxStartStopTest::refusedStartShowsTheTargetsStatus_data()
{
    QTest::addColumn<STxPage>("page");
    for (const STxPage &page : {kForced, kNormal})
        QTest::newRow(page.className) << page;
}

void TxStartStopTest::refusedStartShowsTheTargetsStatus()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(qPrintable(Fault(page.start, R"("kind": "status", "status": 1)")));
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Pusch TX start failed..."));
    QCOMPARE(boxes.Seen()[0].title, QString("Pusch TX start failed"));
    QVERIFY(boxes.Seen()[0].text.contains("L1 Status code != SUCCESS "));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
    QCOMPARE(boxes.Seen()[0].informative,
             QString("Status error code (1) :NL1TST_CNF_STATUS_FREQ_MISMATCH.\n\n"
                     "Details: Frequency cannot be exactly mapped to NR-ARFCN."));
    QVERIFY(session.Find<QPushButton>("m_start")->isEnabled());
    QVERIFY(!session.Find<QPushButton>("m_stop")->isEnabled());
}

void TxStartStopTest::failedStopLeavesStopEnabled()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(Running(session, page));
    const QString running = Enabled(session, page);
    VondSim_AddFault(qPrintable(Fault(page.stop, R"("kind": "fail", "result": 7)")));
    CBoxWatcher boxes;
    session.Press("m_stop");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), Status(page, "stop failed."));
    QCOMPARE(boxes.Seen()[0].title, Status(page, "stop failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QCOMPARE(Enabled(session, page), running);
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
    VondSim_ClearFaults();
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus(Status(page, "stop.")));
}

void TxStartStopTest::windowStaysAliveWhileTheTargetIsSlow()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(page.start);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(page.start, 20000));
    QVERIFY(EventLoopTurns());
    QCOMPARE(CountCalls(page.start), 0);
    VondSim_Release(page.start);
    QVERIFY(session.WaitForStatus(Status(page, "start...")));
}

void TxStartStopTest::tabChangeStopsARunningTest()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(Running(session, page));
    QVERIFY(session.ClickTab("Continuous RX"));
    QVERIFY(session.WaitForStatus(Status(page, "stop.")));
    QCOMPARE(CountCalls(page.stop), 1);
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QVERIFY(session.ClickTab(page.title));
    QVERIFY(session.Find<QPushButton>("m_start")->isEnabled());
    QVERIFY(!session.Find<QPushButton>("m_stop")->isEnabled());
    // An idle page is left alone.
    QVERIFY(session.ClickTab("Continuous RX"));
    QCOMPARE(CountCalls(page.stop), 1);
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
}

void TxStartStopTest::tabChangeStopsAStartInFlight()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(page.start);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(page.start, 20000));
    QVERIFY(session.ClickTab("Continuous RX"));
    QVERIFY(session.ClickTab(page.title));
    QCOMPARE(CountCalls(page.stop), 0);
    VondSim_Release(page.start);
    QVERIFY(session.WaitForStatus(Status(page, "stop.")));
    QCOMPARE(CountCalls(page.start), 1);
    QCOMPARE(CountCalls(page.stop), 1);
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QVERIFY(session.Find<QPushButton>("m_start")->isEnabled());
    QVERIFY(!session.Find<QPushButton>("m_stop")->isEnabled());
}

// A start that timed out may have started.
void TxStartStopTest::stopQueuesBehindAStartThatMayRun()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(qPrintable(Fault(page.start, R"("kind": "fail", "result": 7)")));
    VondSim_Hold(page.start);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(page.start, 20000));
    QVERIFY(session.ClickTab("Continuous RX"));
    CBoxWatcher boxes;
    VondSim_Release(page.start);
    QVERIFY(session.WaitForStatus(Status(page, "stop.")));
    QCOMPARE(CountCalls(page.stop), 1);
    QCOMPARE(boxes.Seen().size(), 1);
}

void TxStartStopTest::stopOfTheHostOnAnIdlePageDoesNothing()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    StopByHost(session);
    QVERIFY(session.busy.isEmpty());
    QCOMPARE(CountCalls(page.stop), 0);
}

void TxStartStopTest::secondStopOfTheHostDoesNothing()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus(Status(page, "start...")));
    StopByHost(session);
    StopByHost(session);
    QVERIFY(session.WaitForStatus(Status(page, "stop.")));
    StopByHost(session);
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
    QCOMPARE(CountCalls(page.stop), 1);
}

void TxStartStopTest::hostsDisableAndEnableLeaveTheStopOfARunningTestOn()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(Running(session, page));
    session->DisablePages();
    QCOMPARE(Enabled(session, page), QString("stop"));
    session->EnablePages();
    QCOMPARE(Enabled(session, page), QString("stop read"));
}

void TxStartStopTest::hostsEnableLetsNoReadingBeginDuringAnother()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(Running(session, page));
    session->EnablePages();
    VondSim_Hold(page.read);
    session.Press(page.button);
    QVERIFY(VondSim_WaitUntilHeld(page.read, 20000));
    session->DisablePages();
    session->EnablePages();
    QVERIFY(!session.Find<QPushButton>(page.button)->isEnabled());
    VondSim_Release(page.read);
    QVERIFY(session.WaitForStatus(page.readDone));
    QVERIFY(session.Find<QPushButton>(page.button)->isEnabled());
}

void TxStartStopTest::secondTestOnTheSamePageDoesNotDoubleTheSignals()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    QSignalSpy statuses(session.Page(), SIGNAL(Signal_UpdateStatus(QString, int)));
    for (int run = 0; run < 2; ++run) {
        session.Press("m_start");
        QVERIFY(session.WaitForStatus(Status(page, "start...")));
        session.Press("m_stop");
        QVERIFY(session.WaitForStatus(Status(page, "stop.")));
    }
    QCOMPARE(Count(statuses, Status(page, "start...")), 2);
    QCOMPARE(Count(statuses, Status(page, "stop.")), 2);
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false, true, false, true, false}));
    QCOMPARE(CountCalls(page.start), 2);
    QCOMPARE(CountCalls(page.stop), 2);
}

QUORLIN_TEST_CLASS(TxStartStopTest)
#include "TxStartStopTest.moc"
