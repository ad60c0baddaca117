// The Continuous RX page at its buttons: states, status lines, boxes.
#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/ContRxProfiles.h"

namespace {

constexpr char kStart[] = "VOND_MMRf_ContRxV7_r";
constexpr char kStop[] = "VOND_MMRf_TestStopV7_r";

// What the two buttons say of the page's state: "start", "stop", "both" or "none" can be pressed.
QString Enabled(const CPluginSession &session)
{
    const bool start = session.Find<QPushButton>("m_start")->isEnabled();
    const bool stop = session.Find<QPushButton>("m_stop")->isEnabled();
    return start && stop ? "both" : start ? "start" : stop ? "stop" : "none";
}

bool Running(CPluginSession &session)
{
    if (!session.ShowAndWait())
        return false;
    session.Press("m_start");
    return session.WaitForStatus("Cont Rx start...");
}

// Brings another tab to the front, and the page back, at the tab bar.
bool ChangeTabs(const CPluginSession &session)
{
    return session.ClickTab("RSSI") && session.ClickTab("Continuous RX");
}

}  // namespace

class ContRxPageTest : public QObject
{
    Q_OBJECT

private slots:
    void stopIsDisabledWhenThePageAppears();
    void pageShowsItsDocument();
    void startAndStopGoThroughTheirStates();
    void windowStaysAliveWhileTheTargetIsSlow();
    void failedStartLeavesStopDisabledAndShowsTheTargetsText();
    void failedStopLeavesStartDisabledAndStopEnabled();
    void stopOfAGoneDutFailsAndCanBeTriedAgain();
    void failureWithoutATextShowsTheAdvice();
    void secondTestOnTheSamePageDoesNotDoubleTheSignals();
    void tabChangeStopsARunningTest();
    void tabChangeStopsAStartInFlight();
    void startOnAnotherGenerationSaysThatNothingRan();
    void hostCanDisableAndEnableThePages();
    void hostsDisableAndEnableLeaveTheStopOfARunningTestOn();
    void windowIsDisabledWhileItsPagesInit();
};

void ContRxPageTest::stopIsDisabledWhenThePageAppears()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    QCOMPARE(Enabled(session), QString("start"));
}

void ContRxPageTest::pageShowsItsDocument()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Find<QDockWidget>("CNrContRxDockWidgetV7")->windowTitle(),
             QString("Continuous RX"));
    QCOMPARE(session.Find<QComboBox>(MemberName("band"))->currentText(), QString("n1"));
    QCOMPARE(session.Find<QComboBox>(MemberName("rxRoute"))->currentText(), QString("1"));
    QCOMPARE(session.Find<QComboBox>(MemberName("calType"))->currentText(),
             QString("Partial-On Path0"));
    QCOMPARE(session.Find<QDoubleSpinBox>(MemberName("path1DivRfGain"))->text(),
             QString("60.10000"));
    QCOMPARE(session.Find<QSpinBox>(MemberName("path1DivGainIdx"))->value(), 16);
    QCOMPARE(session.Find<QLabel>(MemberName("dlFrequency_caption"))->text(),
             QString("DL Freq.(1kHz)"));
    QCOMPARE(session.Find<QPushButton>("m_start")->text(), QString("&Start"));
    QCOMPARE(session.Find<QPushButton>("m_stop")->toolTip(), QString("Stop"));
    QCOMPARE(session.Find<QSpinBox>(MemberName("dlFrequency"))->value(), 1950000);
}

void ContRxPageTest::startAndStopGoThroughTheirStates()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(kStart);
    session.Press("m_start");
    QCOMPARE(Enabled(session), QString("none"));
    QCOMPARE(session.busy, (QVector<bool>{true}));
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    QCOMPARE(Enabled(session), QString("none"));
    VondSim_Release(kStart);
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    QCOMPARE(Enabled(session), QString("stop"));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(QString(VondSim_RunningTest()), QString("ContRx"));

    session.Press("m_stop");
    QCOMPARE(Enabled(session), QString("none"));
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    QCOMPARE(Enabled(session), QString("start"));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void ContRxPageTest::windowStaysAliveWhileTheTargetIsSlow()
{
    CPluginSession session("handset");
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(kStart);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    QVERIFY(EventLoopTurns());
    VondSim_Release(kStart);
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    VondSim_Hold(kStop);
    session.Press("m_stop");
    QVERIFY(VondSim_WaitUntilHeld(kStop, 20000));
    QVERIFY(EventLoopTurns());
    VondSim_Release(kStop);
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
}

void ContRxPageTest::failedStartLeavesStopDisabledAndShowsTheTargetsText()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Cont Rx start failed..."));
    QCOMPARE(Enabled(session), QString("start"));
    QCOMPARE(boxes.Seen()[0].title, QString("Cont Rx start failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
    QCOMPARE(boxes.Seen()[0].informative,
             QString::fromUtf8(JournalOf("VOND_GetErrorString").last().answer).remove(QChar(0)));
    QVERIFY(!boxes.Seen()[0].informative.isEmpty());
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
}

void ContRxPageTest::failedStopLeavesStartDisabledAndStopEnabled()
{
    CPluginSession session(Type1Profile());
    QVERIFY(Running(session));
    VondSim_AddFault(R"({"function": "VOND_MMRf_TestStopV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press("m_stop");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Cont Rx stop failed."));
    QCOMPARE(boxes.Seen()[0].title, QString("Cont Rx stop failed"));
    QCOMPARE(Enabled(session), QString("stop"));
    VondSim_ClearFaults();
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
}

void ContRxPageTest::stopOfAGoneDutFailsAndCanBeTriedAgain()
{
    CPluginSession session(Type1Profile());
    QVERIFY(Running(session));
    VondSim_SetProfile("unplugged");
    CBoxWatcher boxes;
    session.Press("m_stop");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(Enabled(session), QString("stop"));
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QVERIFY(!boxes.Seen()[0].informative.isEmpty());
    VondSim_SetProfileText(Type1Profile().toUtf8());
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    QCOMPARE(Enabled(session), QString("start"));
}

void ContRxPageTest::failureWithoutATextShowsTheAdvice()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    VondSim_AddFault(R"({"function": "VOND_GetErrorString", "kind": "nullText"})");
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].informative,
             QString("Please check the SW load stability or connection status."));
}

void ContRxPageTest::secondTestOnTheSamePageDoesNotDoubleTheSignals()
{
    CPluginSession session(Type1Profile());
    QVERIFY(Running(session));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false, true, false, true, false}));
    QCOMPARE(CountCalls(kStart), 2);
    QCOMPARE(CountCalls(kStop), 2);
}

void ContRxPageTest::tabChangeStopsARunningTest()
{
    CPluginSession session(Type1Profile());
    QVERIFY(Running(session));
    QVERIFY(ChangeTabs(session));
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    QCOMPARE(CountCalls(kStop), 1);
    QCOMPARE(Enabled(session), QString("start"));
    // An idle page is left alone.
    QVERIFY(ChangeTabs(session));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
    QCOMPARE(CountCalls(kStop), 1);
}

void ContRxPageTest::tabChangeStopsAStartInFlight()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(kStart);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(kStart, 20000));
    QVERIFY(ChangeTabs(session));
    VondSim_Release(kStart);
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    QCOMPARE(CountCalls(kStop), 1);
    QCOMPARE(Enabled(session), QString("start"));
}

void ContRxPageTest::startOnAnotherGenerationSaysThatNothingRan()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    VondSim_SetProfile("gen0");
    // The caches forget, the page stays: the host resets, and shows nothing yet.
    const QPointer<QDockWidget> page = session.Find<QDockWidget>("CNrContRxDockWidgetV7");
    page->setParent(nullptr);
    session->ResetPlugin();
    page->show();
    CBoxWatcher boxes;
    QTest::mouseClick(page->findChild<QPushButton *>("m_start"), Qt::LeftButton);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QVERIFY(boxes.Seen()[0].text.contains("Operation does not execute yet."));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Warning));
    QCOMPARE(CountCalls(kStart), 0);
    delete page;
}

void ContRxPageTest::hostCanDisableAndEnableThePages()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    session->DisablePages();
    QCOMPARE(Enabled(session), QString("none"));
    session->EnablePages();
    QCOMPARE(Enabled(session), QString("start"));
}

void ContRxPageTest::hostsDisableAndEnableLeaveTheStopOfARunningTestOn()
{
    CPluginSession session(Type1Profile());
    QVERIFY(Running(session));
    session->DisablePages();
    QCOMPARE(Enabled(session), QString("stop"));
    session->EnablePages();
    QCOMPARE(Enabled(session), QString("stop"));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void ContRxPageTest::windowIsDisabledWhileItsPagesInit()
{
    CPluginSession session(Type1Profile());
    session->ShowPlugin();
    QVERIFY(!session.Window()->isEnabled());
    QVERIFY(session.WaitForStatus("Init done."));
    QVERIFY(session.Window()->isEnabled());
}

QUORLIN_TEST_CLASS(ContRxPageTest)
#include "ContRxPageTest.moc"
