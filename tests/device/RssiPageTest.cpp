// The RSSI page at its buttons: states, status lines, boxes. What holds for the measurement and for
// the calculator is a row of one table.
#include <QDockWidget>
#include <QGroupBox>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RssiSession.h"

class RssiPageTest : public QObject
{
    Q_OBJECT

private slots:
    void pageShowsItsDocument();
    void groupBoxesHaveTheirTitles();
    void requestGoesThroughItsStates_data();
    void requestGoesThroughItsStates();
    void secondRequestDoesNotDoubleTheSignals_data();
    void secondRequestDoesNotDoubleTheSignals();
    void failingCallIsToldAndLeavesThePageUsable_data();
    void failingCallIsToldAndLeavesThePageUsable();
    void failureWithoutATextShowsTheAdvice_data();
    void failureWithoutATextShowsTheAdvice();
    void measurementIsRefusedWhileAnotherTestRuns();
};

void RssiPageTest::pageShowsItsDocument()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Page()->windowTitle(), QString("RSSI"));
    QCOMPARE(session.Enabled(), QString("both"));
    QVERIFY(!session.Page()->findChild<QPushButton *>("m_stop"));
    QCOMPARE(session.Find<QPushButton>(kStartButton)->text(), QString("&Start"));
    QCOMPARE(session.Find<QPushButton>(kCalculateButton)->text(), QString("Calculate"));
    QCOMPARE(session.Find<QComboBox>(MemberName("band"))->currentText(), QString("n1"));
    QCOMPARE(session.Find<QComboBox>(MemberName("calType"))->currentText(),
             QString("Partial-On Path0"));
    QVERIFY(!session.Find<QComboBox>(MemberName("path1MainSearch"))->isEnabled());
    QCOMPARE(session.Find<QLabel>(MemberName("numFreq_caption"))->text(),
             QString("Channel Number"));
    QCOMPARE(session.Text("adviseDlPower_caption"), QString("Advised DL Power (dBm)"));
    QCOMPARE(session.Text("gainModeP0"), QString("NA"));
    QCOMPARE(session.ResultRow(0, CRssiSession::MainRssi), (QStringList{"0", "0", "0", "0", "0"}));
    auto *frequency = qobject_cast<QSpinBox *>(session.FrequencyTable()->cellWidget(0, 0));
    QVERIFY(frequency);
    QCOMPARE(frequency->value(), 1950000);
}

void RssiPageTest::groupBoxesHaveTheirTitles()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QStringList titles;
    for (const QGroupBox *box : session.Page()->findChildren<QGroupBox *>())
        titles.append(box->title());
    titles.sort();
    QCOMPARE(titles, (QStringList{"Common Setting", "HW Setting", "RSSI Config", "RSSI Result",
                                  "Sequencer Search / Gain Calculator"}));
}

void RssiPageTest::requestGoesThroughItsStates_data()
{
    AddRequestRows();
}

void RssiPageTest::requestGoesThroughItsStates()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    QFETCH(QString, done);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(function);
    session.Press(button);
    QCOMPARE(session.Enabled(), QString("none"));
    QCOMPARE(session.busy, (QVector<bool>{true}));
    QVERIFY(VondSim_WaitUntilHeld(function, 20000));

    // The window lives while the target is slow.
    QVERIFY(EventLoopTurns());
    QCOMPARE(session.Enabled(), QString("none"));
    QCOMPARE(CountCalls(function), 0);

    VondSim_Release(function);
    QVERIFY(session.WaitForStatus(done));
    QCOMPARE(session.Enabled(), QString("both"));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(CountCalls(function), 1);
}

void RssiPageTest::secondRequestDoesNotDoubleTheSignals_data()
{
    AddRequestRows();
}

void RssiPageTest::secondRequestDoesNotDoubleTheSignals()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    for (int answers = 1; answers <= 3; ++answers) {
        session.Press(button);
        QVERIFY(WaitUntil([&] { return session.busy.size() == 2 * answers; }));
    }
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false, true, false}));
    QCOMPARE(CountCalls(function), 3);
}

void RssiPageTest::failingCallIsToldAndLeavesThePageUsable_data()
{
    AddRequestRows();
}

void RssiPageTest::failingCallIsToldAndLeavesThePageUsable()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    QFETCH(QString, done);
    QFETCH(QString, failed);
    QFETCH(QString, title);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(FailFault(function));
    CBoxWatcher boxes;
    QString enabledInTheBox;
    boxes.onBox = [&] { enabledInTheBox = session.Enabled(); };
    session.Press(button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), failed);
    QCOMPARE(boxes.Seen()[0].title, title);
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
    QCOMPARE(boxes.Seen()[0].informative,
             QString::fromUtf8(JournalOf("VOND_GetErrorString").last().answer).remove(QChar(0)));
    QVERIFY(!boxes.Seen()[0].informative.isEmpty());
    QCOMPARE(enabledInTheBox, QString("both"));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));

    VondSim_ClearFaults();
    session.Press(button);
    QVERIFY(session.WaitForStatus(done));
    QCOMPARE(boxes.Seen().size(), 1);
}

void RssiPageTest::failureWithoutATextShowsTheAdvice_data()
{
    AddRequestRows();
}

void RssiPageTest::failureWithoutATextShowsTheAdvice()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, function);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    VondSim_AddFault(FailFault(function));
    VondSim_AddFault(R"({"function": "VOND_GetErrorString", "kind": "nullText"})");
    CBoxWatcher boxes;
    session.Press(button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].informative,
             QString("Please check the SW load stability or connection status."));
}

// A test that the DUT did not stop stands in the way of a measurement, but not of a gain search.
void RssiPageTest::measurementIsRefusedWhileAnotherTestRuns()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.ClickTab("Continuous RX"));
    auto *other = session.Window()->findChild<QDockWidget *>("CNrContRxDockWidgetV7");
    VondSim_AddFault(FailFault("VOND_MMRf_TestStopV7_r"));
    CBoxWatcher boxes;
    QTest::mouseClick(other->findChild<QPushButton *>("m_start"), Qt::LeftButton);
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    QVERIFY(session.ClickTab("RSSI"));
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));  // the stop that the DUT failed

    session.Press(kStartButton);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 2; }));
    QCOMPARE(boxes.Seen()[1].title, QString("Fetch RSSI failed."));
    QCOMPARE(boxes.Seen()[1].informative, QString("Target: a test is running already"));
    session.Press(kCalculateButton);
    QVERIFY(session.WaitForStatus("Fetch Gain info done"));
}

QUORLIN_TEST_CLASS(RssiPageTest)
#include "RssiPageTest.moc"
