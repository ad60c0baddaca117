// RF Off: the button in the window's status bar that stops every test on the DUT.
#include <QMessageBox>
#include <QProgressBar>
#include <QStatusBar>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/TxPages.h"

namespace {

constexpr char kNrStop[] = "VOND_NRf_TestStop_r";
constexpr char kMmStop[] = "VOND_MMRf_TestStopV7_r";

// Six functions and their handles: what is left of the journal.
QStringList StartsAndStops()
{
    QStringList calls;
    for (const SJournalCall &entry : Journal()) {
        const QString function = entry.call.function;
        for (const char *name :
             {"VOND_MMRf_ContRxV7_r", "VOND_MMRf_SingleToneTxV7_r", "VOND_NRf_PuschTxV7_r",
              "VOND_NRf_RsrpV7_r", kNrStop, kMmStop, kReadCall}) {
            if (function == name)
                calls.append(QString("%1@%2").arg(function).arg(entry.call.handle));
        }
    }
    return calls;
}

QString Stop(const char *function, int handle = 1)
{
    return QString("%1@%2").arg(function).arg(handle);
}

QPushButton *Button(const CPluginSession &session)
{
    return session.Window()->statusBar()->findChild<QPushButton *>("m_rfOff");
}

bool IsHighlighted(const CPluginSession &session)
{
    return Button(session)->property("isHighlighted").toBool();
}

void Click(QPushButton *button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

bool Start(CPluginSession &session, const STxPage &page)
{
    if (!session.ShowAndWait())
        return false;
    session.Press("m_start");
    return session.WaitForStatus(Status(page, "start..."));
}

}  // namespace

class RfOffTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<STxPage>(); }
    void standsAtTheEndOfTheStatusBar();
    void isOnButDuringTheInitFlow();
    void staysOnWhileTheHostHasDisabledThePages();
    void stopsARunningTestAndItsPageGoesToIdle_data() { AddPages(); }
    void stopsARunningTestAndItsPageGoesToIdle();
    void itsMnemonicWorksWithTheFocusInAnEditor();
    void leavesTheFocusWhereItIs();
    void isSentUnderTheCurrentHandleAndThatOfTheTest();
    void comesNextAndAStartThatWaitsIsTerminated();
    void aStartAskedForAfterItIsStoppedWhenItsPageGoes();
    void leavesCalculateAsItWas();
    void comesBetweenTheRoundsOfACalibrationFlow();
    void isHighlightedAfterAStartThatTimedOutOrWasNoise_data();
    void isHighlightedAfterAStartThatTimedOutOrWasNoise();
    void tellsAFailureAndThePageStaysAtItsTest();
    void aStopOfThePageEndsTheHighlight();
    void isStillHighlightedAfterAResetWhoseStopFailed();

private:
    static void AddPages();
};

void RfOffTest::AddPages()
{
    QTest::addColumn<STxPage>("page");
    for (const STxPage &page : {kSingleTone, kForced, kNormal})
        QTest::newRow(page.className) << page;
}

void RfOffTest::standsAtTheEndOfTheStatusBar()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    const QPushButton *button = Button(session);
    QVERIFY(button);
    QCOMPARE(button->text(), QString("RF &Off"));
    QCOMPARE(button->toolTip(), QString("Stops every test on the DUT"));
    QVERIFY(button->isVisible());
    QCOMPARE(button->font().family(), session.Window()->statusBar()->font().family());
    VondSim_Hold(kReadCall);
    session.Press(kRead.button);
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000));
    const auto *progress = session.Window()->statusBar()->findChild<QProgressBar *>();
    QVERIFY(progress);
    QVERIFY(WaitUntil([&] { return progress->isVisible() && progress->x() > 0; }));
    QVERIFY(progress->geometry().right() < button->geometry().left());
    QVERIFY(button->isEnabled());
    VondSim_Release(kReadCall);
    QVERIFY(session.WaitForStatus(kRead.done));
}

void RfOffTest::isOnButDuringTheInitFlow()
{
    CPluginSession session;
    VondSim_Hold("VOND_NRf_GetRfCapability_r");
    QVERIFY(Button(session)->isEnabled());
    session->ShowPlugin();
    QVERIFY(VondSim_WaitUntilHeld("VOND_NRf_GetRfCapability_r", 20000));
    QVERIFY(!Button(session)->isEnabled());
    VondSim_Release("VOND_NRf_GetRfCapability_r");
    QVERIFY(session.WaitForStatus("Init done."));
    QVERIFY(Button(session)->isEnabled());
    session->ResetPlugin();
    QVERIFY(Button(session)->isEnabled());
}

void RfOffTest::staysOnWhileTheHostHasDisabledThePages()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(Start(session, kSingleTone));
    session->DisablePages();
    QVERIFY(Button(session)->isEnabled());
    session.Page()->setEnabled(false);
    QVERIFY(Button(session)->isEnabled());
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void RfOffTest::stopsARunningTestAndItsPageGoesToIdle()
{
    QFETCH(STxPage, page);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    QVERIFY(!IsHighlighted(session));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus(Status(page, "start...")));
    QVERIFY(WaitUntil([&] { return IsHighlighted(session); }));
    session.busy.clear();
    VondSim_ClearJournal();
    VondSim_Hold(kNrStop);
    Click(Button(session));
    QCOMPARE(session.busy, (QVector<bool>{true}));
    QVERIFY(VondSim_WaitUntilHeld(kNrStop, 20000));
    VondSim_Release(kNrStop);
    QVERIFY(session.WaitForStatus("RF off."));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(StartsAndStops(), (QStringList{Stop(kNrStop), Stop(kMmStop)}));
    QCOMPARE(JournalOf(kMmStop)[0].request, QByteArray::fromHex("01000000"));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QVERIFY(session.Find<QPushButton>("m_start")->isEnabled());
    QVERIFY(!session.Find<QPushButton>("m_stop")->isEnabled());
    QVERIFY(!IsHighlighted(session));
    // And it starts again.
    session.Press("m_start");
    QVERIFY(session.WaitForStatus(Status(page, "start...")));
}

void RfOffTest::itsMnemonicWorksWithTheFocusInAnEditor()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(Start(session, kSingleTone));
    session.Window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(session.Window()));
    QTest::keyClick(session.Window(), Qt::Key_O, Qt::AltModifier);
    QVERIFY(session.WaitForStatus("RF off."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void RfOffTest::leavesTheFocusWhereItIs()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    session.Window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(session.Window()));
    auto *band = session.Find<QComboBox>(Member("band"));
    band->setFocus();
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off."));
    QCOMPARE(QApplication::focusWidget(), band);
}

// The host connects another target while a test runs; nothing of the tool is reset.
void RfOffTest::isSentUnderTheCurrentHandleAndThatOfTheTest()
{
    CPluginSession session("handset", 7, kSingleTone.className);
    QVERIFY(Start(session, kSingleTone));
    qApp->setProperty("vondTargetHandle", 9u);
    session->EnablePages();
    VondSim_ClearJournal();
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off."));
    QCOMPARE(StartsAndStops(),
             (QStringList{Stop(kNrStop, 9), Stop(kMmStop, 9), Stop(kNrStop, 7), Stop(kMmStop, 7)}));

    // The page's own stop has the handle of its start too.
    session.Press("m_start");
    QVERIFY(session.WaitForStatus(Status(kSingleTone, "start...")));
    qApp->setProperty("vondTargetHandle", 11u);
    session->EnablePages();
    VondSim_ClearJournal();
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus(Status(kSingleTone, "stop.")));
    QCOMPARE(StartsAndStops(), (QStringList{Stop(kMmStop, 9)}));
}

// Two pages at once: one of them floats.
void RfOffTest::comesNextAndAStartThatWaitsIsTerminated()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    auto *floating = session.Page();
    floating->setFloating(true);
    auto *docked = session.Window()->findChild<QDockWidget *>("CNrContRxDockWidgetV7");
    docked->raise();
    QVERIFY(WaitUntil([&] { return docked->isEnabled() && floating->isEnabled(); }));
    VondSim_ClearJournal();
    CBoxWatcher boxes;
    VondSim_Hold(kSingleTone.start);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(kSingleTone.start, 20000));
    Click(docked->findChild<QPushButton *>("m_start"));
    Click(Button(session));
    QCOMPARE(CountCalls(kNrStop), 0);
    VondSim_Release(kSingleTone.start);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1 && !session.busy.last(); }));
    QCOMPARE(StartsAndStops(),
             (QStringList{Stop(kSingleTone.start), Stop(kNrStop), Stop(kMmStop)}));
    QCOMPARE(boxes.Seen()[0].title, QString("Cont Rx start failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Terminated by user."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QVERIFY(floating->findChild<QPushButton *>("m_start")->isEnabled());
    QVERIFY(!floating->findChild<QPushButton *>("m_stop")->isEnabled());
    QVERIFY(docked->findChild<QPushButton *>("m_start")->isEnabled());
    QVERIFY(!docked->findChild<QPushButton *>("m_stop")->isEnabled());
}

// The answer of RF Off comes while the start and the stop of its page wait.
void RfOffTest::aStartAskedForAfterItIsStoppedWhenItsPageGoes()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    VondSim_ClearJournal();
    VondSim_Hold(kNrStop);
    Click(Button(session));
    QVERIFY(VondSim_WaitUntilHeld(kNrStop, 20000));
    VondSim_Hold(kSingleTone.start);
    session.Press("m_start");
    QVERIFY(session.ClickTab("Continuous RX"));
    VondSim_Release(kNrStop);
    QVERIFY(session.WaitForStatus("RF off."));
    VondSim_Release(kSingleTone.start);
    QVERIFY(session.WaitForStatus(Status(kSingleTone, "stop.")));
    QCOMPARE(StartsAndStops(),
             (QStringList{Stop(kNrStop), Stop(kMmStop), Stop(kSingleTone.start), Stop(kMmStop)}));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

// No test of the page ran: its Calculate waits for the carrier search still.
void RfOffTest::leavesCalculateAsItWas()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(Enabled(session, kNormal), QString("start"));
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off."));
    QCOMPARE(Enabled(session, kNormal), QString("start"));
}

void RfOffTest::comesBetweenTheRoundsOfACalibrationFlow()
{
    CBoxWatcher boxes;  // the pages cannot show all that this DUT has
    CCalibrationSession session(kPathLossPage, "largest");
    QVERIFY(session.ShowAndWait());
    VondSim_ClearJournal();
    VondSim_Hold(kReadCall);
    session.Press(kRead.button);
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000));
    Click(Button(session));
    VondSim_Release(kReadCall);
    QVERIFY(WaitUntil([&] { return session.IsIdle() && !session.busy.last(); }));
    const QStringList calls = StartsAndStops();
    QVERIFY2(calls.size() > 4, qPrintable(calls.join(' ')));
    QCOMPARE(calls.mid(0, 4),
             (QStringList{Stop(kReadCall), Stop(kNrStop), Stop(kMmStop), Stop(kReadCall)}));
    QCOMPARE(CountCalls(kNrStop), 1);
    // Busy is over when neither of the two is.
    QCOMPARE(session.busy.count(false), 1);
}

void RfOffTest::isHighlightedAfterAStartThatTimedOutOrWasNoise_data()
{
    QTest::addColumn<STxPage>("page");
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("running");  // in the DUT, which the tool can't know
    QTest::newRow("timed out") << kSingleTone
                               << R"({"function": "%1", "kind": "fail", "result": 2})"
                               << "";
    QTest::newRow("noise") << kForced << R"({"function": "%1", "kind": "noise", "seed": 3})"
                           << "PuschTx";
}

void RfOffTest::isHighlightedAfterAStartThatTimedOutOrWasNoise()
{
    QFETCH(STxPage, page);
    QFETCH(QString, fault);
    QFETCH(QString, running);
    CPluginSession session("handset", 1, page.className);
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(qPrintable(fault.arg(page.start)));
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(QString(VondSim_RunningTest()), running);
    QVERIFY(IsHighlighted(session));
    VondSim_ClearFaults();
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QVERIFY(WaitUntil([&] { return !IsHighlighted(session); }));
}

void RfOffTest::tellsAFailureAndThePageStaysAtItsTest()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(Start(session, kSingleTone));
    VondSim_AddFault(R"({"function": "VOND_MMRf_TestStopV7_r", "kind": "fail", "result": 4})");
    session.busy.clear();
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off failed: Target: failure on demand"));
    QCOMPARE(CountCalls(kNrStop), 1);
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QVERIFY(session.Find<QPushButton>("m_stop")->isEnabled());
    QVERIFY(!session.Find<QPushButton>("m_start")->isEnabled());
    QVERIFY(IsHighlighted(session));

    VondSim_AddFault(R"({"function": "VOND_GetErrorString", "kind": "nullText"})");
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off failed: Vond command execute failed."));
    VondSim_ClearFaults();
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off."));
}

void RfOffTest::aStopOfThePageEndsTheHighlight()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Start(session, kForced));
    QVERIFY(WaitUntil([&] { return IsHighlighted(session); }));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus(Status(kForced, "stop.")));
    QVERIFY(WaitUntil([&] { return !IsHighlighted(session); }));
    QCOMPARE(StartsAndStops(), (QStringList{Stop(kForced.start), Stop(kNrStop)}));
}

// A reset whose stop has failed leaves a test on: the pages that come do not show it.
void RfOffTest::isStillHighlightedAfterAResetWhoseStopFailed()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(Start(session, kSingleTone));
    VondSim_AddFault(R"({"function": "VOND_MMRf_TestStopV7_r", "kind": "fail", "result": 4})");
    session->ResetPlugin();
    QVERIFY(session.ShowAndWait());
    QVERIFY(IsHighlighted(session));
    VondSim_ClearFaults();
    Click(Button(session));
    QVERIFY(session.WaitForStatus("RF off."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

QUORLIN_TEST_CLASS(RfOffTest)
#include "RfOffTest.moc"
