// A press of a button: its end, its boxes, its guards.
#include <QtTest>

#include "Runner/bench/PressGuard.h"
#include "tests/common/TestClass.h"
#include "tests/runner/bench/BenchSession.h"

namespace {

constexpr char kContRx[] = "VOND_MMRf_ContRxV7_r";

}  // namespace

class BenchPressTest : public QObject
{
    Q_OBJECT

private slots:
    void endsWhenTheToolIsIdle();
    void unknownAndDisabledButtonsAreRefused();
    void boxesAreClosedAndKept();
    void lateAnswerEndsThePressAtItsBound();
    void interruptEndsThePress();
    void rfOffGoesNextWhileAPressWaits();
    void clearEndsWithAnEmptyTable();
    void secondStartBeginsWithoutRows();
    void fileDialogGetsItsFile();
    void dialogWithoutAFileIsCancelled();
    void pressWithoutARequestEndsWithTheNextTurn();
    void transmissionNeedsToBeAllowed();
    void writeNeedsToBeAllowed();
};

void BenchPressTest::endsWhenTheToolIsIdle()
{
    CBenchSession session;
    CBenchPage *page = session.Page("Continuous RX");
    const SPressEnd start = page->Press("Start", kLong);
    QCOMPARE(int(start.how), int(EPressEnd::Idle));
    QVERIFY(start.wasBusy);
    QCOMPARE(start.status, QString("Cont Rx start..."));
    QVERIFY(start.boxes.isEmpty());
    QCOMPARE(CountCalls(kContRx), 1);
    const SPressEnd stop = page->Press("m_stop", kLong);
    QCOMPARE(stop.status, QString("Cont Rx stop."));
    QVERIFY(!session.bench.MayTransmit());
}

void BenchPressTest::unknownAndDisabledButtonsAreRefused()
{
    CBenchSession session;
    CBenchPage *page = session.Page("Continuous RX");
    const SPressEnd unknown = page->Press("Go", kLong);
    QCOMPARE(int(unknown.how), int(EPressEnd::Refused));
    QCOMPARE(unknown.refusal.Text(), QString("There is no button \"Go\" on Continuous RX. Allowed: "
                                             "Start (m_start), Stop (m_stop)."));
    const SPressEnd off = page->Press("Stop", kLong);
    QCOMPARE(int(off.how), int(EPressEnd::Refused));
    QCOMPARE(off.refusal.reason, QString("The button \"Stop\" is off now."));
}

void BenchPressTest::boxesAreClosedAndKept()
{
    CBenchSession session;
    VondSim_AddFault(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    const SPressEnd end = session.Page("Continuous RX")->Press("Start", kLong);
    QCOMPARE(int(end.how), int(EPressEnd::Idle));
    QCOMPARE(end.boxes.size(), 1);
    QCOMPARE(end.boxes[0].title, QString("Cont Rx start failed"));
    QCOMPARE(end.boxes[0].text, QString("Vond command execute failed."));
    QVERIFY(!end.boxes[0].informative.isEmpty());
    QCOMPARE(end.status, QString("Cont Rx start failed..."));
    QCOMPARE(session.bench.TakeBoxes().size(), 1);
    QVERIFY(session.bench.TakeBoxes().isEmpty());
}

void BenchPressTest::lateAnswerEndsThePressAtItsBound()
{
    CBenchSession session;
    VondSim_Hold(kContRx);
    const SPressEnd end =
        session.Page("Continuous RX")->Press("Start", std::chrono::milliseconds(50));
    QCOMPARE(int(end.how), int(EPressEnd::Late));
    QVERIFY(session.bench.IsBusy());
    VondSim_Release(kContRx);
    QCOMPARE(int(session.bench.WaitIdle(kLong)), int(EBenchWait::Done));
}

void BenchPressTest::interruptEndsThePress()
{
    CBenchSession session;
    VondSim_Hold(kContRx);
    QTimer::singleShot(0, &session.bench, [&] { session.bench.Interrupt(); });
    CBenchPage *page = session.Page("Continuous RX");
    page->Raise();
    session.bench.Resume();
    QTimer::singleShot(10, &session.bench, [&] { session.bench.Interrupt(); });
    const SPressEnd end = page->Press("Start", kLong);
    QCOMPARE(int(end.how), int(EPressEnd::Interrupted));
    VondSim_Release(kContRx);
    session.bench.Resume();
    QVERIFY(session.bench.RfOff(kLong));
}

void BenchPressTest::rfOffGoesNextWhileAPressWaits()
{
    CBenchSession session;
    CBenchPage *page = session.Page("Continuous RX");
    VondSim_Hold(kContRx);
    bool isOff = false;
    QTimer::singleShot(10, &session.bench, [&] {
        QTimer::singleShot(10, &session.bench, [] { VondSim_Release(kContRx); });
        isOff = session.bench.RfOff(kLong);
    });
    const SPressEnd end = page->Press("Start", kLong);
    QVERIFY(isOff);
    QCOMPARE(int(end.how), int(EPressEnd::Idle));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void BenchPressTest::clearEndsWithAnEmptyTable()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Normal Mode");
    QCOMPARE(Text(page->Set("reportPeriod", "min")), QString());
    page->Press("Start", kLong);
    QCOMPARE(int(session.bench.WaitUntil([page] { return page->Rows() >= 5; }, kLong)),
             int(EBenchWait::Done));
    const SBenchOutput rsrp = page->FindOutput("RSRP0");
    QVERIFY(rsrp.isFound && rsrp.isColumn);
    QCOMPARE(rsrp.values.size(), page->Rows());
    QCOMPARE(page->FindOutput("response.group1.RSRP0").values, rsrp.values);
    page->Press("Stop", kLong);
    QVERIFY(page->Rows() > 0);
    const SPressEnd clear = page->Press("Clear", kLong);
    QVERIFY(clear.wasBusy);
    QCOMPARE(int(clear.how), int(EPressEnd::Idle));
    QCOMPARE(page->Rows(), 0);
}

void BenchPressTest::secondStartBeginsWithoutRows()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Force Mode");
    QCOMPARE(Text(page->Set("reportPeriod", "min")), QString());
    for (int run = 0; run < 3; ++run) {
        QCOMPARE(int(page->Press("Start", kLong).how), int(EPressEnd::Idle));
        QCOMPARE(page->Rows(), 0);
        session.bench.WaitUntil([page] { return page->Rows() >= 5; }, kLong);
        QCOMPARE(int(page->Press("Stop", kLong).how), int(EPressEnd::Idle));
    }
}

void BenchPressTest::fileDialogGetsItsFile()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("loss.ini");
    CBenchSession session;
    CBenchPage *page = session.Page("RX Pathloss");
    page->Press("Read", kLong);
    for (int time = 0; time < 2; ++time) {  // the second one writes over the file
        session.bench.AnswerFileDialog(file);
        const SPressEnd end = page->Press("Export", kLong);
        QCOMPARE(end.status, QString("Export data to file successfully."));
        QVERIFY(end.boxes.isEmpty());
        QVERIFY(QFileInfo(file).size() > 0);
    }
    session.bench.AnswerFileDialog(file);
    QCOMPARE(page->Press("Import", kLong).status, QString("Import data from file successfully."));
    session.bench.AnswerFileDialog(folder.filePath("none.ini"));
    const SPressEnd none = page->Press("Import", kLong);
    QCOMPARE(int(none.how), int(EPressEnd::Idle));
    QVERIFY(!none.boxes.isEmpty());
}

void BenchPressTest::dialogWithoutAFileIsCancelled()
{
    CBenchSession session;
    const SPressEnd end = session.Page("APT Profile")->Press("Export", kLong);
    QCOMPARE(int(end.how), int(EPressEnd::Idle));
    QCOMPARE(end.boxes.size(), 2);
    QCOMPARE(end.boxes[0].text, QString("No file was named for this dialog."));
    QCOMPARE(end.boxes[1].title, QString("Save file"));
}

void BenchPressTest::pressWithoutARequestEndsWithTheNextTurn()
{
    CBenchSession session;
    CBenchPage *page = session.Page("APT Profile");
    QVERIFY(page->Buttons().size() > 4);
    const SPressEnd end = page->Press("m_btnResetPd", kLong);
    QCOMPARE(int(end.how), int(EPressEnd::Idle));
    QVERIFY(!end.wasBusy);
}

void BenchPressTest::transmissionNeedsToBeAllowed()
{
    CBenchSession session;
    CBenchPage *tone = session.Page("Single Tone TX");
    QCOMPARE(Text(tone->Set("txPowerValue", "5")), QString());
    QVERIFY(GuardPress({}, *tone, "Start"));
    QVERIFY(GuardPress({.allowTransmit = true}, *tone, "Start"));
    QVERIFY(GuardPress({.maxDbm = 10}, *tone, "m_start"));
    QVERIFY(GuardPress({.allowTransmit = true, .maxDbm = 4.9}, *tone, "Start"));
    QVERIFY(!GuardPress({.allowTransmit = true, .maxDbm = 5}, *tone, "Start"));
    QVERIFY(!GuardPress({}, *tone, "Stop"));
    CBenchPage *rsrp = session.Page("RSRP Normal Mode");
    QVERIFY(!GuardPress({}, *rsrp, "Start"));
    QCOMPARE(Text(rsrp->Set("trxMode", "Pseudo TX/RX")), QString());
    QVERIFY(GuardPress({}, *rsrp, "Start"));
}

void BenchPressTest::writeNeedsToBeAllowed()
{
    CBenchSession session;
    const CBenchPage *page = session.Page("RX Pathloss");
    QVERIFY(GuardPress({}, *page, "Write"));
    QVERIFY(GuardPress({}, *page, "m_btnDownload"));
    QVERIFY(!GuardPress({.allowWrite = true}, *page, "Write"));
    QVERIFY(!GuardPress({}, *page, "Read"));
}

QUORLIN_TEST_CLASS(BenchPressTest)

#include "BenchPressTest.moc"
