// The RSRP pages at their buttons: states, command, status lines, boxes, and what the form shows.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RsrpSession.h"

namespace {

const QString kIdle = "start reset clear rx tx";
const QString kRunning = "stop reset";
const QString kBusy;

}  // namespace

class RsrpPageTest : public QObject
{
    Q_OBJECT

private slots:
    void pageAppearsIdleWithItsWords_data() { BothRsrpPages(); }
    void pageAppearsIdleWithItsWords();
    void reportPeriodOutsideItsRangeIsRefused_data() { BothRsrpPages(); }
    void reportPeriodOutsideItsRangeIsRefused();
    void startAndStopGoThroughTheirStates_data() { BothRsrpPages(); }
    void startAndStopGoThroughTheirStates();
    void inputsComeBackAsTheBindingHadThem_data() { BothRsrpPages(); }
    void inputsComeBackAsTheBindingHadThem();
    void startSendsTheseBytes_data();
    void startSendsTheseBytes();
    void refusedStartShowsTheStatusAndReturnsToIdle_data() { BothRsrpPages(); }
    void refusedStartShowsTheStatusAndReturnsToIdle();
    void failingStartShowsTheTargetsText_data() { BothRsrpPages(); }
    void failingStartShowsTheTargetsText();
    void startOnAnotherGenerationSaysThatNothingRan_data() { BothRsrpPages(); }
    void startOnAnotherGenerationSaysThatNothingRan();
    void failedStopLeavesTheTimerStoppedAndCanBeTriedAgain_data() { BothRsrpPages(); }
    void failedStopLeavesTheTimerStoppedAndCanBeTriedAgain();
    void secondRunDoesNotDoubleTheSignals_data() { BothRsrpPages(); }
    void secondRunDoesNotDoubleTheSignals();
    void hostCanDisableAndEnableThePages_data() { BothRsrpPages(); }
    void hostCanDisableAndEnableThePages();
    void ulFrequencyFollowsTheDlFrequencyAndTheBand_data() { BothRsrpPages(); }
    void ulFrequencyFollowsTheDlFrequencyAndTheBand();
    void mimoTypeChoosesTheTable();
};

void RsrpPageTest::pageAppearsIdleWithItsWords()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Enabled(), kIdle);
    QCOMPARE(session.Page()->windowTitle(), "RSRP " + mode + " Mode");
    QCOMPARE(session.Find<QGroupBox>("groupBox_rx")->title(), QString("RX Config"));
    QCOMPARE(session.Find<QGroupBox>("groupBox_tx")->title(), QString("TX Config"));
    QCOMPARE(session.Find<QGroupBox>("groupBox_result")->title(), QString("RX Result"));

    const auto text = [&](const char *button) {
        return session.Find<QPushButton>(button)->text() + "|" +
               session.Find<QPushButton>(button)->toolTip();
    };
    QCOMPARE(text("m_start"), QString("&Start|Start"));
    QCOMPARE(text("m_stop"), QString("&Stop|Stop"));
    QCOMPARE(text("resetPushButton"), QString("&Reset Counter|Reset counter"));
    QCOMPARE(text("clearPushButton"), QString("&Clear|"));

    QCOMPARE(session.Input<QLabel>("group1", "dlBandwidth_caption")->text(), QString("DL BW"));
    QCOMPARE(session.Input<QComboBox>("group1", "band")->currentText(), QString("n1"));
    QCOMPARE(session.Input<QSpinBox>("group1", "reportPeriod")->value(), 1000);
    QCOMPARE(session.Input<QSpinBox>("group1", "measCnt")->value(), 5);
    QCOMPARE(session.Table()->columnCount(), 8);
    QCOMPARE(session.Rows(), 0);
}

void RsrpPageTest::reportPeriodOutsideItsRangeIsRefused()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.ShowAndWait());
    auto *period = session.Input<QSpinBox>("group1", "reportPeriod");
    period->setValue(299);
    QCOMPARE(period->value(), 300);
    period->setValue(10001);
    QCOMPARE(period->value(), 10000);
    QCOMPARE(period->toolTip(), QString("300~10000"));
}

void RsrpPageTest::startAndStopGoThroughTheirStates()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    VondSim_Hold(kRsrpStart);
    session.Press("m_start");
    QCOMPARE(session.Enabled(), kBusy);
    QVERIFY(VondSim_WaitUntilHeld(kRsrpStart, 20000));
    QCOMPARE(session.Enabled(), kBusy);
    QCOMPARE(session.busy, (QVector<bool>{true}));
    VondSim_Release(kRsrpStart);
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QCOMPARE(session.Enabled(), kRunning);
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(QString(VondSim_RunningTest()), QString("Rsrp"));

    VondSim_Hold(kRsrpStop);
    session.Press("m_stop");
    QCOMPARE(session.Enabled(), kBusy);
    QVERIFY(VondSim_WaitUntilHeld(kRsrpStop, 20000));
    VondSim_Release(kRsrpStop);
    QVERIFY(session.WaitForStatus("Rsrp stop."));
    QCOMPARE(session.Enabled(), kIdle);
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QCOMPARE(CountCalls(kRsrpStop), 1);
}

void RsrpPageTest::inputsComeBackAsTheBindingHadThem()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    const auto inputs = [&] {
        QStringList on;
        for (const QWidget *widget : session.Page()->findChildren<QWidget *>()) {
            if (widget->objectName().startsWith("cmdIf_request_") && widget->isEnabled())
                on.append(widget->objectName());
        }
        return on;
    };
    // Without the transmitter; then with it.
    for (const char *trxMode : {"DL RX", "Pseudo TX/RX"}) {
        QVERIFY(session.Choose("trxMode", trxMode));
        const QStringList before = inputs();
        session.Press("m_start");
        QVERIFY(session.WaitForStatus("Rsrp start..."));
        QVERIFY(inputs().isEmpty());
        QVERIFY(session.Stop());
        QCOMPARE(inputs(), before);
    }
}

void RsrpPageTest::startSendsTheseBytes_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("hex");
    // Mode; measurements, frequency, SCS, band and slot format, bandwidth, transmitter. n1 at
    // 5 MHz: route 1 of the handset starts at 1950000 kHz, the band at 2140000 kHz.
    QTest::newRow("force") << "Force"
                           << "01000000"
                              "05000000 30c11d00 00000000 01000000 88130000"
                              "0000 0000 0000 0000 00000000"
                              "0100 0000 03 000000";
    QTest::newRow("normal") << "Normal"
                            << "00000000 01000000"
                               "05000000 60a72000 00000000 01000000 88130000"
                               "0000 0000 0000 0000 00000000"
                               "00 000000";
}

void RsrpPageTest::startSendsTheseBytes()
{
    QFETCH(QString, mode);
    QFETCH(QString, hex);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    const auto starts = JournalOf(kRsrpStart);
    QCOMPARE(starts.size(), 1);
    const QByteArray bytes = QByteArray::fromHex(hex.toLatin1());
    QCOMPARE(starts[0].request.toHex(), (bytes + QByteArray(80 - bytes.size(), '\0')).toHex());
}

void RsrpPageTest::refusedStartShowsTheStatusAndReturnsToIdle()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    VondSim_AddFault(R"({"function": "VOND_NRf_RsrpV7_r", "kind": "status", "status": 2})");
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Rsrp start failed..."));
    QCOMPARE(session.Enabled(), kIdle);
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QCOMPARE(boxes.Seen()[0].title, QString("Rsrp start failed"));
    QVERIFY(boxes.Seen()[0].text.contains("L1 Status code != SUCCESS "));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
    QCOMPARE(boxes.Seen()[0].informative,
             QString("Status error code (2) :NL1TST_CNF_STATUS_CELL_NOT_EXIST.\n\nDetails: Cell "
                     "SSB can't be detected."));
    VondSim_ClearFaults();
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QCOMPARE(session.Enabled(), kRunning);
}

void RsrpPageTest::failingStartShowsTheTargetsText()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    VondSim_AddFault(R"({"function": "VOND_NRf_RsrpV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Rsrp start failed..."));
    QCOMPARE(boxes.Seen()[0].title, QString("Rsrp start failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QCOMPARE(boxes.Seen()[0].informative,
             QString::fromUtf8(JournalOf("VOND_GetErrorString").last().answer).remove(QChar(0)));
    QVERIFY(!boxes.Seen()[0].informative.isEmpty());
    QCOMPARE(session.Enabled(), kIdle);
    VondSim_ClearFaults();
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
}

void RsrpPageTest::startOnAnotherGenerationSaysThatNothingRan()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    VondSim_SetProfile("gen0");
    // The caches forget, the page stays: the host resets, and shows nothing yet.
    const QPointer<QDockWidget> page = session.Page();
    page->setParent(nullptr);
    session->ResetPlugin();
    page->show();
    CBoxWatcher boxes;
    QTest::mouseClick(page->findChild<QPushButton *>("m_start"), Qt::LeftButton);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QVERIFY(boxes.Seen()[0].text.contains("Operation does not execute yet."));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Warning));
    QCOMPARE(CountCalls(kRsrpStart), 0);
    delete page;
}

void RsrpPageTest::failedStopLeavesTheTimerStoppedAndCanBeTriedAgain()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    session.Input<QSpinBox>("group1", "reportPeriod")->setValue(300);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    VondSim_AddFault(R"({"function": "VOND_NRf_TestStop_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press("m_stop");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Rsrp stop failed."));
    QCOMPARE(boxes.Seen()[0].title, QString("Rsrp stop failed"));
    QVERIFY(boxes.Seen()[0].text.contains("Vond command execute failed."));
    QCOMPARE(session.Enabled(), kRunning);
    const int reports = CountCalls(kRsrpReport);
    QVERIFY(!WaitUntil([&] { return CountCalls(kRsrpReport) > reports; }, 700));
    VondSim_ClearFaults();
    QVERIFY(session.Stop());
    QCOMPARE(session.Enabled(), kIdle);
}

void RsrpPageTest::secondRunDoesNotDoubleTheSignals()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 5);
    QVERIFY(session.Stop());
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false, true, false, true, false}));
    QCOMPARE(CountCalls(kRsrpStart), 2);
    QCOMPARE(CountCalls(kRsrpReport), 2);
    QCOMPARE(CountCalls(kRsrpStop), 2);
}

void RsrpPageTest::hostCanDisableAndEnableThePages()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    session->DisablePages();
    QCOMPARE(session.Enabled(), QString("reset clear rx tx"));
    session->EnablePages();
    QCOMPARE(session.Enabled(), kIdle);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    session->DisablePages();
    QCOMPARE(session.Enabled(), kRunning);
    session->EnablePages();
    QCOMPARE(session.Enabled(), kRunning);
}

void RsrpPageTest::ulFrequencyFollowsTheDlFrequencyAndTheBand()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    auto *dl = session.Input<QSpinBox>("group1", "dlFrequency");
    const auto *ul = session.Input<QLabel>(session.txGroup, "ulFrequency");
    // n1 sends 190 MHz below what it receives, from the first view on.
    QCOMPARE(ul->text(), QString::number(dl->value() - 190000));
    dl->setValue(2112500);
    QCOMPARE(ul->text(), QString("1922500"));
    QVERIFY(session.Choose("band", "n3"));
    QCOMPARE(ul->text(), QString::number(dl->value() - 95000));
    // A band of one frequency for both.
    QVERIFY(session.Choose("band", "n78"));
    QCOMPARE(ul->text(), QString::number(dl->value()));
}

void RsrpPageTest::mimoTypeChoosesTheTable()
{
    CRsrpSession session("Normal");
    QVERIFY(session.Ready());
    QCOMPARE(session.Table()->columnCount(), 8);
    QVERIFY(session.Choose("mimoType", "4x4"));
    QCOMPARE(session.Table()->columnCount(), 12);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 5);
    QVERIFY(!session.Cell(0, "RSRP3").isEmpty());
    QVERIFY(RequestNumber(JournalOf(kRsrpStart)[0], "normalMode.carrier[0].mimo4x4") == 1);
    QVERIFY(session.Stop());
    QVERIFY(session.Choose("mimoType", "2x2"));
    QCOMPARE(session.Table()->columnCount(), 8);
    QCOMPARE(session.Rows(), 0);
}

QUORLIN_TEST_CLASS(RsrpPageTest)
#include "RsrpPageTest.moc"
