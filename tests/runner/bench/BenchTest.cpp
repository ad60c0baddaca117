// The tool opened, found and closed by a bench.
#include <QtTest>

#include "tests/common/TestClass.h"
#include "tests/runner/bench/BenchSession.h"

class BenchTest : public QObject
{
    Q_OBJECT

private slots:
    void opensWithAllPagesAndCloses();
    void pagesAreFoundByTitleAndClassName();
    void unsupportedDutSaysWhy();
    void unknownProfileAndPluginAreWrong();
    void waitIsBoundAndCanBeInterrupted();
    void endWithoutAPressLeavesTheDutAlone();
    void endStopsARunningTest();
    void rfOffTellsOfItsFailure();
    void pagesComeAnewAfterAReload();
};

void BenchTest::opensWithAllPagesAndCloses()
{
    CBenchSession session;
    QCOMPARE(session.error.text, QString());
    QCOMPARE(session.bench.Pages().size(), 9);
    QVERIFY(session.bench.FrontPage());
    QCOMPARE(session.bench.ToolName(), QString("Quorlin RF"));
    QCOMPARE(session.bench.ToolVersion(), QString("0.1"));
    QCOMPARE(session.bench.Handle(), 1u);
    QVERIFY(!session.bench.ChipName().isEmpty());
    QVERIFY(!session.bench.IsBusy());
    QVERIFY(session.bench.Close());
    QVERIFY(session.bench.Pages().isEmpty());
    QVERIFY(session.bench.Close());
}

void BenchTest::pagesAreFoundByTitleAndClassName()
{
    CBenchSession session;
    QVERIFY(session.Page("RSRP Normal Mode"));
    QCOMPARE(session.Page(" RSRP Normal Mode "), session.Page("CNrRsrpNormalDockWidgetV7"));
    SRefusal refusal;
    QVERIFY(!session.bench.FindPage("RSRP", &refusal));
    QCOMPARE(refusal.reason, QString("There is no page \"RSRP\"."));
    QVERIFY(refusal.allowed.contains("RSRP Normal Mode"));
}

void BenchTest::unsupportedDutSaysWhy()
{
    CBenchSession session("unplugged");
    QCOMPARE(int(session.error.kind), int(EBenchError::Unsupported));
    QVERIFY(session.error.text.startsWith("The tool can't run on this DUT: "));
}

void BenchTest::unknownProfileAndPluginAreWrong()
{
    CBench bench;
    const SBenchError noFile = bench.Open({.pluginFile = "/nowhere/lib.so"});
    QCOMPARE(int(noFile.kind), int(EBenchError::Wrong));
    QCOMPARE(noFile.text, QString("There is no plug-in file /nowhere/lib.so."));
    CBench other;
    const SBenchError noProfile = other.Open({.profile = "handle"});
    qunsetenv("VOND_SIM_PROFILE");
    QCOMPARE(int(noProfile.kind), int(EBenchError::Wrong));
    QVERIFY(noProfile.text.startsWith("There is no profile 'handle'"));
    CBench linked;
    const SBenchError noLink = linked.Open({.linkFile = "/nowhere/link.so"});
    QCOMPARE(noLink.text, QString("There is no link library /nowhere/link.so."));
}

void BenchTest::waitIsBoundAndCanBeInterrupted()
{
    CBenchSession session;
    const auto never = [] { return false; };
    QCOMPARE(int(session.bench.WaitUntil(never, std::chrono::milliseconds(1))),
             int(EBenchWait::Late));
    QTimer::singleShot(0, &session.bench, [&] { session.bench.Interrupt(); });
    QCOMPARE(int(session.bench.WaitUntil(never, kLong)), int(EBenchWait::Interrupted));
    QCOMPARE(int(session.bench.WaitUntil(never, kLong)), int(EBenchWait::Interrupted));
    session.bench.Resume();
    QCOMPARE(int(session.bench.WaitUntil([] { return true; }, kLong)), int(EBenchWait::Done));
}

void BenchTest::endWithoutAPressLeavesTheDutAlone()
{
    CBenchSession session;
    session.bench.Close();
    QCOMPARE(CountCalls("VOND_NRf_TestStop_r"), 0);
    QCOMPARE(CountCalls("VOND_MMRf_TestStopV7_r"), 0);
}

void BenchTest::endStopsARunningTest()
{
    CBenchSession session;
    QCOMPARE(int(session.Page("Continuous RX")->Press("Start", kLong).how), int(EPressEnd::Idle));
    QVERIFY(session.bench.MayTransmit());
    QVERIFY(session.bench.Close());
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void BenchTest::rfOffTellsOfItsFailure()
{
    CBenchSession session;
    QVERIFY(session.bench.RfOff(kLong));
    QVERIFY(session.bench.RfOff(kLong));  // the status bar reads as before
    VondSim_SetProfile("unplugged");
    QString why;
    QVERIFY(!session.bench.RfOff(kLong, &why));
    QVERIFY2(why.startsWith("RF off failed: "), qPrintable(why));
    VondSim_SetProfile("handset");
}

void BenchTest::pagesComeAnewAfterAReload()
{
    CBenchSession session;
    QVERIFY(!session.Page("RSSI")->Set("request.group2.dlFrequency[0]", "max"));
    const QString typed = session.Page("RSSI")->DocumentText();
    QCOMPARE(session.bench.Reload(kLong).text, QString());
    QCOMPARE(session.bench.Pages().size(), 9);
    CBenchPage *page = session.Page("RSSI");
    QVERIFY(page->DocumentText() != typed);
    QVERIFY(!page->Set("request.group2.dlFrequency[0]", "max"));
    QCOMPARE(page->DocumentText(), typed);
}

QUORLIN_TEST_CLASS(BenchTest)

#include "BenchTest.moc"
