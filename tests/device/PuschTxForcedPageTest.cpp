// The Forced PUSCH TX page: its document, its command, and Calculate beside the transmission.
#include <QGroupBox>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/TxPages.h"

namespace {

bool Searching(CPluginSession &session)
{
    if (!session.ShowAndWait())
        return false;
    Click(session, "enableCsr");
    return session.Find<QCheckBox>(Member("enableCsr"))->isChecked();
}

bool Start(CPluginSession &session)
{
    session.Press("m_start");
    return session.WaitForStatus("Pusch TX start...");
}

bool Calculate(CPluginSession &session)
{
    session.Press("m_btnCalculate");
    return session.WaitForStatus("Finish fetch DL frequence.");
}

}  // namespace

class PuschTxForcedPageTest : public QObject
{
    Q_OBJECT

private slots:
    void pageShowsItsDocument();
    void hardwareFollowsRouteSpacingAndBandwidth();
    void startSendsTheseBytes();
    void calculateFollowsTheCarrierSearch();
    void carrierSearchOffKeepsCalculateOffBehindAFailedStart();
    void hostTurnsCalculateOnWithoutTheCarrierSearch();
    void resultTurnsCalculateOnWithoutTheCarrierSearch();
    void carrierSearchDrivesCellIdAndDlFrequency();
    void calculateShowsTheDlFrequency();
    void calculateTakesAllButtons();
    void resultTurnsStartOnAndLeavesARunningTransmissionsStopOn();
    void failedCalculateShowsErrorAndSaysWhy();
    void answerThatIsNoDocumentLeavesThePage();
    void secondCalculateDoesNotDoubleTheStatus();
};

void PuschTxForcedPageTest::pageShowsItsDocument()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Page()->windowTitle(), QString("Forced PUSCH TX "));
    QCOMPARE(session.Find<QComboBox>(Member("band"))->currentText(), QString("n1"));
    QCOMPARE(session.Find<QComboBox>(Member("txRoute"))->currentText(), QString("1"));
    QCOMPARE(session.Find<QComboBox>(Member("txScs"))->currentText(), QString("15kHz"));
    QCOMPARE(session.Find<QComboBox>(Member("ulBandwidth"))->currentText(), QString("25 RB"));
    QCOMPARE(session.Find<QComboBox>(Member("mcsMode"))->currentText(), QString("DFT_S_QPSK"));
    QCOMPARE(session.Find<QSpinBox>(Member("vrbStart"))->value(), 0);
    QCOMPARE(session.Find<QSpinBox>(Member("vrbLength"))->value(), 1);
    QCOMPARE(session.Find<QDoubleSpinBox>(Member("txPowerValue"))->maximum(), 127.9);
    QCOMPARE(session.Find<QComboBox>(Member("tddSlotConfig"))->count(), 46);
    QVERIFY(!session.Find<QComboBox>(Member("tddSlotConfig"))->isEnabled());
    QCOMPARE(session.Find<QSpinBox>(Member("cellId"))->maximum(), 1080);
    QCOMPARE(session.Find<QCheckBox>(Member("amprEnbl"))->text(), QString("Bypass  MPR/AMPR"));
    QVERIFY(session.Find<QCheckBox>(Member("enableCsr"))->isEnabled());
    QVERIFY(!session.Find<QCheckBox>(Member("enableCsr"))->isChecked());
    QCOMPARE(session.Find<QLabel>(Result("dlFrequency_caption"))->text(),
             QString("DL Freq.(1kHz)"));
    QCOMPARE(ResultText(session, "dlFrequency"), QString("NA"));
    QCOMPARE(session.Find<QGroupBox>("groupBox_carrier")->title(), QString(" Carrier Config"));
    QCOMPARE(session.Find<QGroupBox>("groupBox_control")->title(), QString("TPC / CS Config"));
    QCOMPARE(session.Find<QGroupBox>("groupBox_hardware")->title(), QString("HW Setting"));
    QCOMPARE(session.Find<QPushButton>("m_btnCalculate")->text(), QString("Calculate"));
    QCOMPARE(Enabled(session, kForced), QString("start"));
}

void PuschTxForcedPageTest::hardwareFollowsRouteSpacingAndBandwidth()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(session.ShowAndWait());
    const auto feRoute = [&] {
        return session.Find<QLabel>(Member("feRouteNum", "group2"))->text();
    };
    QCOMPARE(feRoute(), QString("204"));
    Choose(session, "txRoute", "2");
    QCOMPARE(feRoute(), QString("208"));
    Choose(session, "band", "n78");
    QCOMPARE(feRoute(), QString("248"));
    Choose(session, "txScs", "30kHz");
    Choose(session, "ulBandwidth", "273 RB");
    QCOMPARE(feRoute(), QString("249"));  // beyond the first region of the route
    QCOMPARE(session.Find<QSpinBox>(Member("vrbStart"))->maximum(), 272);
    QVERIFY(session.Find<QComboBox>(Member("tddSlotConfig"))->isEnabled());
}

void PuschTxForcedPageTest::startSendsTheseBytes()
{
    CPluginSession session("handset", 0xABCD, kForced.className);
    QVERIFY(session.ShowAndWait());
    Choose(session, "txRoute", "2");
    Choose(session, "mcsMode", "CP_256QAM");
    session.Find<QDoubleSpinBox>(Member("txPowerValue"))->setValue(-10.5);
    session.Find<QSpinBox>(Member("cellId"))->setValue(500);
    Click(session, "txCloseLoopDisble");
    QVERIFY(Start(session));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Pusch TX stop."));
    const auto starts = JournalOf(kForced.start);
    QCOMPARE(starts.size(), 1);
    // forced; n1, slot format, kHz, offset, cell, kHz of 25 RB, VRBs, SCS, MCS, dBm * 256, ASE,
    // close loop off, AMPR, route 2, search
    const QByteArray carrier = "0100 01 00 30c11d00 00 00 f401 88130000 0000 0100 00000000 07000000"
                               "80f5 0000 00000000 01 00 0200 00000000";
    QByteArray expected = QByteArray::fromHex("01000000" + carrier);
    expected.append(QByteArray(96 - expected.size(), '\0'));
    QCOMPARE(starts[0].request.toHex(), expected.toHex());
    QCOMPARE(starts[0].call.handle, 0xABCDu);
    QCOMPARE(starts[0].call.timeoutMs, 10000u);
    QCOMPARE(CountCalls("VOND_MMRf_TestStopV7_r"), 0);
}

void PuschTxForcedPageTest::calculateFollowsTheCarrierSearch()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(session.ShowAndWait());
    Click(session, "enableCsr");
    QCOMPARE(Enabled(session, kForced), QString("start read"));
    Click(session, "enableCsr");
    QCOMPARE(Enabled(session, kForced), QString("start"));
}

void PuschTxForcedPageTest::carrierSearchOffKeepsCalculateOffBehindAFailedStart()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Searching(session));
    QVERIFY(Start(session));
    Click(session, "enableCsr");  // off, as all that runs
    QCOMPARE(Enabled(session, kForced), QString("stop read"));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Pusch TX stop."));
    Click(session, "enableCsr");
    QCOMPARE(Enabled(session, kForced), QString("start"));
    VondSim_AddFault(R"({"function": "VOND_NRf_PuschTxV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(Enabled(session, kForced), QString("start"));
}

void PuschTxForcedPageTest::hostTurnsCalculateOnWithoutTheCarrierSearch()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(Enabled(session, kForced), QString("start"));
    session->EnablePages();
    QCOMPARE(Enabled(session, kForced), QString("start read"));
    session->DisablePages();
    QCOMPARE(Enabled(session, kForced), QString("none"));
}

void PuschTxForcedPageTest::resultTurnsCalculateOnWithoutTheCarrierSearch()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Searching(session));
    VondSim_Hold(kForced.read);
    session.Press("m_btnCalculate");
    QVERIFY(VondSim_WaitUntilHeld(kForced.read, 20000));
    Click(session, "enableCsr");
    QCOMPARE(Enabled(session, kForced), QString("none"));
    // Nor does choosing the search anew bring Calculate back while it is under way.
    Click(session, "enableCsr");
    QCOMPARE(Enabled(session, kForced), QString("none"));
    Click(session, "enableCsr");
    VondSim_Release(kForced.read);
    QVERIFY(session.WaitForStatus("Finish fetch DL frequence."));
    QCOMPARE(Enabled(session, kForced), QString("start read"));
}

void PuschTxForcedPageTest::carrierSearchDrivesCellIdAndDlFrequency()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(session.ShowAndWait());
    auto *cellId = session.Find<QSpinBox>(Member("cellId"));
    auto *dlFrequency = session.Find<QLabel>(Result("dlFrequency"));
    QVERIFY(cellId->isEnabled());
    QVERIFY(!dlFrequency->isEnabled());
    Click(session, "enableCsr");
    QVERIFY(!cellId->isEnabled());
    QVERIFY(dlFrequency->isEnabled());
    QVERIFY(Calculate(session));
    QVERIFY(dlFrequency->text() != "NA");
    Click(session, "enableCsr");
    QVERIFY(cellId->isEnabled());
    QVERIFY(!dlFrequency->isEnabled());
    Click(session, "enableCsr");
    QCOMPARE(dlFrequency->text(), QString("NA"));  // of an earlier search no more
}

void PuschTxForcedPageTest::calculateShowsTheDlFrequency()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Searching(session));
    QVERIFY(Calculate(session));
    QCOMPARE(ResultText(session, "dlFrequency"), QString("2140000"));  // n1: 190 MHz above
    QCOMPARE(JournalOf(kForced.read).last().request.toHex(),
             QByteArray("0100000030c11d0001000100"));  // n1, 1950000 kHz, forced, route 1
    session.Find<QSpinBox>(Member("ulFrequency"))->setValue(1920000);
    QVERIFY(Calculate(session));
    QVERIFY(WaitUntil([&] { return ResultText(session, "dlFrequency") == "2110000"; }));
}

void PuschTxForcedPageTest::calculateTakesAllButtons()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Searching(session));
    VondSim_Hold(kForced.read);
    session.Press("m_btnCalculate");
    QCOMPARE(session.StatusBar(), QString("Start fetch DL frequence..."));
    QVERIFY(VondSim_WaitUntilHeld(kForced.read, 20000));
    QCOMPARE(Enabled(session, kForced), QString("none"));
    QCOMPARE(session.busy, (QVector<bool>{true}));
    VondSim_Release(kForced.read);
    QVERIFY(session.WaitForStatus("Finish fetch DL frequence."));
    QCOMPARE(Enabled(session, kForced), QString("start read"));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
}

void PuschTxForcedPageTest::resultTurnsStartOnAndLeavesARunningTransmissionsStopOn()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Searching(session));
    QVERIFY(Start(session));
    QVERIFY(Calculate(session));
    QCOMPARE(QString(VondSim_RunningTest()), QString("PuschTx"));
    QCOMPARE(Enabled(session, kForced), QString("start stop read"));
    QCOMPARE(ResultText(session, "dlFrequency"), QString("2140000"));
}

void PuschTxForcedPageTest::failedCalculateShowsErrorAndSaysWhy()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Searching(session));
    VondSim_AddFault(R"({"function": "VOND_NRf_GetDlFreqV7_r", "kind": "status", "status": 1})");
    CBoxWatcher boxes;
    session.Press("m_btnCalculate");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].title, QString("Error"));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
    QVERIFY2(boxes.Seen()[0].text.contains(
                 "There are some error in this page:  Forced PUSCH TX <br>"
                 "Get DL freq result from target failed\n "
                 "Status error code (1) :NL1TST_CNF_STATUS_FREQ_MISMATCH.\n\n"
                 "Details: Frequency cannot be exactly mapped to NR-ARFCN.<br>"),
             qPrintable(boxes.Seen()[0].text));
    QCOMPARE(ResultText(session, "dlFrequency"), QString("ERROR"));
    QCOMPARE(Enabled(session, kForced), QString("start read"));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    VondSim_ClearFaults();
    QVERIFY(Calculate(session));
    QVERIFY(WaitUntil([&] { return ResultText(session, "dlFrequency") == "2140000"; }));
    QCOMPARE(boxes.Seen().size(), 1);
}

void PuschTxForcedPageTest::answerThatIsNoDocumentLeavesThePage()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Searching(session));
    CBoxWatcher boxes;
    QVERIFY(QMetaObject::invokeMethod(session.Page(), "Slot_PuschTxForceDlFreqDone",
                                      Q_ARG(std::string, std::string())));
    QCOMPARE(session.StatusBar(), QString("Finish fetch DL frequence."));
    QCOMPARE(ResultText(session, "dlFrequency"), QString("NA"));
    session.Press("m_btnCalculate");
    QVERIFY(WaitUntil([&] { return ResultText(session, "dlFrequency") == "2140000"; }));
    QVERIFY(boxes.Seen().isEmpty());
}

void PuschTxForcedPageTest::secondCalculateDoesNotDoubleTheStatus()
{
    CPluginSession session("handset", 1, kForced.className);
    QVERIFY(Searching(session));
    QSignalSpy statuses(session.Page(), SIGNAL(Signal_UpdateStatus(QString, int)));
    for (int calculation = 1; calculation <= 3; ++calculation) {
        session.Press("m_btnCalculate");
        QVERIFY(WaitUntil([&] { return session.busy.size() == 2 * calculation; }));
        QCOMPARE(Count(statuses, "Finish fetch DL frequence."), calculation);
    }
}

QUORLIN_TEST_CLASS(PuschTxForcedPageTest)
#include "PuschTxForcedPageTest.moc"
