// The Normal PUSCH TX page: its document, its command, the second carrier, and Calculate, which
// rests during a transmission.
#include <QGroupBox>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/TxPages.h"

namespace {

constexpr const char *kSecondCarrier[] = {
    "band",     "ulFrequency",  "txScs",        "ulBandwidth",      "mcsMode",
    "vrbStart", "vrbLength",    "txPowerValue", "networkSelection", "tddSlotConfig",
    "cellId",   "sulFreqShift", "enableMimo"};

// Members of the second carrier that are disabled.
QStringList Disabled(const CPluginSession &session)
{
    QStringList names;
    for (const char *member : kSecondCarrier) {
        if (!session.Find(Member(member, "group2"))->isEnabled())
            names << member;
    }
    return names;
}

bool Searching(CPluginSession &session)
{
    if (!session.ShowAndWait())
        return false;
    Click(session, "enableCsr");
    return session.Find<QCheckBox>(Member("enableCsr"))->isChecked();
}

}  // namespace

class PuschTxNormalPageTest : public QObject
{
    Q_OBJECT

private slots:
    void pageShowsItsDocument();
    void oneCarrierDisablesTheSecondOne();
    void secondCarrierFollowsItsEnableTables();
    void carrierSearchNamesACarrier();
    void startSendsBothCarriers();
    void calculateRestsDuringATransmission();
    void failedStartTurnsStartAndCalculateOnTogether();
    void calculateAsksForTheCarrierThatIsSearched();
    void nthCalculateRunsItsHandlerNTimes();
    void failedCalculateShowsError();
    void failedCalculateOpensOneBoxWhateverItsHandlers();
    void calculateDuringATransmissionLeavesStopOn_data();
    void calculateDuringATransmissionLeavesStopOn();
    void stopQueuesBehindACalculate();
    void answerThatIsNoDocumentLeavesThePage();
    void everythingStandsInsideTheWindow();
};

void PuschTxNormalPageTest::pageShowsItsDocument()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Page()->windowTitle(), QString("Normal PUSCH TX "));
    for (const char *group : {"group1", "group2"}) {
        QCOMPARE(session.Find<QComboBox>(Member("band", group))->currentText(), QString("n1"));
        QCOMPARE(session.Find<QSpinBox>(Member("ulFrequency", group))->value(), 1950000);
        QCOMPARE(session.Find<QComboBox>(Member("txScs", group))->currentText(), QString("15kHz"));
        QCOMPARE(session.Find<QComboBox>(Member("mcsMode", group))->count(), 9);
        QCOMPARE(session.Find<QComboBox>(Member("tddSlotConfig", group))->count(), 46);
        QCOMPARE(session.Find<QSpinBox>(Member("vrbLength", group))->value(), 1);
        QCOMPARE(session.Find<QDoubleSpinBox>(Member("txPowerValue", group))->value(), 23.0);
    }
    QCOMPARE(session.Find<QComboBox>(Member("ulCCNum"))->currentText(), QString("1"));
    QCOMPARE(session.Find<QLabel>(Member("csCCNum_caption"))->text(), QString("CS CC Num"));
    QVERIFY(!session.Find<QComboBox>(Member("csCCNum"))->isEnabled());
    QCOMPARE(ResultText(session, "dlFrequency"), QString("NA"));
    for (const auto &box : {std::make_pair("groupBox_tx", "Tx Config"),
                            std::make_pair("groupBox_carrier1", "1st Carrier Config"),
                            std::make_pair("groupBox_power1", "1st Power Control"),
                            std::make_pair("groupBox_carrier2", "2nd Carrier Config")})
        QCOMPARE(session.Find<QGroupBox>(box.first)->title(), QString(box.second));
    QCOMPARE(Enabled(session, kNormal), QString("start"));
}

void PuschTxNormalPageTest::oneCarrierDisablesTheSecondOne()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(session.ShowAndWait());
    QStringList all;
    for (const char *member : kSecondCarrier)
        all << member;
    QCOMPARE(Disabled(session), all);
    Choose(session, "ulCCNum", "2");
    QVERIFY(Disabled(session) != all);
    Choose(session, "ulCCNum", "1");
    QCOMPARE(Disabled(session), all);
}

void PuschTxNormalPageTest::secondCarrierFollowsItsEnableTables()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(session.ShowAndWait());
    Choose(session, "ulCCNum", "2");
    QCOMPARE(Disabled(session), QStringList({"tddSlotConfig", "enableMimo"}));  // n1: FDD, no MIMO
    Choose(session, "band", "n78", "group2");
    QCOMPARE(Disabled(session), QStringList());
    Choose(session, "band", "n3", "group2");
    QCOMPARE(Disabled(session), QStringList({"tddSlotConfig", "enableMimo"}));
    Choose(session, "band", "n41", "group2");
    Choose(session, "ulCCNum", "1");
    Choose(session, "ulCCNum", "2");
    QCOMPARE(Disabled(session), QStringList());
}

void PuschTxNormalPageTest::carrierSearchNamesACarrier()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(session.ShowAndWait());
    auto *carriers = session.Find<QComboBox>(Member("csCCNum"));
    auto *first = session.Find<QSpinBox>(Member("cellId"));
    auto *second = session.Find<QSpinBox>(Member("cellId", "group2"));
    Choose(session, "ulCCNum", "2");
    Click(session, "enableCsr");
    QVERIFY(carriers->isEnabled());
    QCOMPARE(carriers->count(), 2);
    QVERIFY(!first->isEnabled());  // the cell is searched
    QVERIFY(second->isEnabled());
    Choose(session, "csCCNum", "CC2");
    QVERIFY(first->isEnabled());
    QVERIFY(!second->isEnabled());
    Choose(session, "ulCCNum", "1");
    QCOMPARE(carriers->count(), 1);
    QVERIFY(!first->isEnabled());
    QVERIFY(!second->isEnabled());
    Click(session, "enableCsr");
    QVERIFY(first->isEnabled());
    QVERIFY(!carriers->isEnabled());
}

void PuschTxNormalPageTest::startSendsBothCarriers()
{
    CPluginSession session("handset", 0xABCD, kNormal.className);
    QVERIFY(session.ShowAndWait());
    Choose(session, "ulCCNum", "2");
    Choose(session, "band", "n3", "group2");
    Choose(session, "mcsMode", "CP_QPSK", "group2");
    session.Find<QDoubleSpinBox>(Member("txPowerValue", "group2"))->setValue(-60);
    session.Find<QSpinBox>(Member("cellId"))->setValue(500);
    Click(session, "amprEnbl");
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
    const auto starts = JournalOf(kNormal.start);
    QCOMPARE(starts.size(), 1);
    // not forced, two carriers; each: band, slot format, kHz, offset, cell, kHz of 25 RB, VRBs,
    // SCS, MCS, dBm * 256, ASE, close loop, AMPR off, search, MIMO
    const QByteArray expected =
        QByteArray::fromHex("00000000 02000000"
                            "0100 01 00 30c11d00 00 00 f401 88130000 0000 0100 00000000 02000000"
                            "0017 0000 00000000 00 01 0000 00 00 0000"
                            "0300 01 00 2caa1a00 00 00 0000 88130000 0000 0100 00000000 01000000"
                            "00c4 0000 00000000 00 01 0000 00 00 0000");
    QCOMPARE(starts[0].request.toHex(), expected.toHex());
}

void PuschTxNormalPageTest::calculateRestsDuringATransmission()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(Searching(session));
    QCOMPARE(Enabled(session, kNormal), QString("start read"));
    VondSim_Hold(kNormal.start);
    session.Press("m_start");
    QCOMPARE(Enabled(session, kNormal), QString("none"));
    VondSim_Release(kNormal.start);
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
    QCOMPARE(Enabled(session, kNormal), QString("stop"));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Pusch TX stop."));
    QCOMPARE(Enabled(session, kNormal), QString("start read"));
}

void PuschTxNormalPageTest::failedStartTurnsStartAndCalculateOnTogether()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(Enabled(session, kNormal), QString("start"));
    VondSim_AddFault(R"({"function": "VOND_NRf_PuschTxV7_r", "kind": "status", "status": 2})");
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(Enabled(session, kNormal), QString("start read"));
}

void PuschTxNormalPageTest::calculateAsksForTheCarrierThatIsSearched()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(session.ShowAndWait());
    Choose(session, "ulCCNum", "2");
    Choose(session, "band", "n3", "group2");
    session.Find<QSpinBox>(Member("ulFrequency", "group2"))->setValue(1750000);
    Click(session, "enableCsr");
    session.Press("m_btnCalculate");
    QVERIFY(WaitUntil([&] { return ResultText(session, "dlFrequency") == "2140000"; }));
    Choose(session, "csCCNum", "CC2");
    session.Press("m_btnCalculate");
    QVERIFY(WaitUntil([&] { return ResultText(session, "dlFrequency") == "1845000"; }));
    QCOMPARE(JournalOf(kNormal.read).last().request.toHex(),
             QByteArray("03000000f0b31a0000000000"));  // n3, 1750000 kHz, no mode, no route
}

void PuschTxNormalPageTest::nthCalculateRunsItsHandlerNTimes()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(Searching(session));
    QSignalSpy statuses(session.Page(), SIGNAL(Signal_UpdateStatus(QString, int)));
    for (int calculation = 1; calculation <= 4; ++calculation) {
        statuses.clear();
        session.Press("m_btnCalculate");
        QVERIFY(WaitUntil([&] { return session.busy.size() == 2 * calculation; }));
        QCOMPARE(Count(statuses, "Start fetch DL frequence..."), 1);
        QCOMPARE(Count(statuses, "Finish fetch DL frequence."), calculation);
        QCOMPARE(ResultText(session, "dlFrequency"), QString("2140000"));
        QCOMPARE(Enabled(session, kNormal), QString("start read"));
        QCOMPARE(CountCalls(kNormal.read), calculation);
    }
    // Busy and its end come in pairs all the same.
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false, true, false, true, false}));
}

void PuschTxNormalPageTest::failedCalculateShowsError()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(Searching(session));
    VondSim_AddFault(R"({"function": "VOND_NRf_GetDlFreqV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press("m_btnCalculate");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].title, QString("Error"));
    QVERIFY2(
        boxes.Seen()[0].text.contains("There are some error in this page:  Normal PUSCH TX <br>"
                                      "Get DL freq result from target failed\n "),
        qPrintable(boxes.Seen()[0].text));
    QCOMPARE(ResultText(session, "dlFrequency"), QString("ERROR"));
    QCOMPARE(Enabled(session, kNormal), QString("start read"));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
}

void PuschTxNormalPageTest::failedCalculateOpensOneBoxWhateverItsHandlers()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(Searching(session));
    for (int calculation = 1; calculation <= 3; ++calculation) {
        session.Press("m_btnCalculate");
        QVERIFY(WaitUntil([&] { return session.busy.size() == 2 * calculation; }));
    }
    VondSim_AddFault(R"({"function": "VOND_NRf_GetDlFreqV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    QSignalSpy statuses(session.Page(), SIGNAL(Signal_UpdateStatus(QString, int)));
    session.Press("m_btnCalculate");
    // The last handler tells the status when the box of the first one has closed.
    QVERIFY(WaitUntil([&] { return Count(statuses, "Finish fetch DL frequence.") == 4; }));
    VondSim_ClearFaults();
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(ResultText(session, "dlFrequency"), QString("ERROR"));
}

void PuschTxNormalPageTest::calculateDuringATransmissionLeavesStopOn_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("good") << false;
    QTest::newRow("failed") << true;
}

// The host's Enable turns Calculate on during a transmission.
void PuschTxNormalPageTest::calculateDuringATransmissionLeavesStopOn()
{
    QFETCH(bool, fails);
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(Searching(session));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
    session->EnablePages();
    if (fails)
        VondSim_AddFault(R"({"function": "VOND_NRf_GetDlFreqV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    VondSim_Hold(kNormal.read);
    session.Press("m_btnCalculate");
    QCOMPARE(Enabled(session, kNormal), QString("none"));
    VondSim_Release(kNormal.read);
    QVERIFY(session.WaitForStatus("Finish fetch DL frequence."));
    QCOMPARE(Enabled(session, kNormal), QString("start stop read"));
    // What was refused leaves what runs with its Stop.
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == (fails ? 1 : 0); }));
    VondSim_ClearFaults();
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start failed..."));
    QVERIFY(session.Find<QPushButton>("m_stop")->isEnabled());
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == (fails ? 2 : 1); }));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Pusch TX stop."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QCOMPARE(Enabled(session, kNormal), QString("start read"));
}

void PuschTxNormalPageTest::stopQueuesBehindACalculate()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(Searching(session));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
    session->EnablePages();
    VondSim_Hold(kNormal.read);
    session.Press("m_btnCalculate");
    QVERIFY(VondSim_WaitUntilHeld(kNormal.read, 20000));
    QVERIFY(session.ClickTab("Continuous RX"));
    VondSim_Release(kNormal.read);
    QVERIFY(session.WaitForStatus("Pusch TX stop."));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void PuschTxNormalPageTest::answerThatIsNoDocumentLeavesThePage()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(Searching(session));
    CBoxWatcher boxes;
    QVERIFY(QMetaObject::invokeMethod(session.Page(), "Slot_PuschTxNormalDlFreqDone",
                                      Q_ARG(std::string, std::string())));
    QCOMPARE(session.StatusBar(), QString("Finish fetch DL frequence."));
    QCOMPARE(ResultText(session, "dlFrequency"), QString("NA"));
    session.Press("m_btnCalculate");
    QVERIFY(WaitUntil([&] { return ResultText(session, "dlFrequency") == "2140000"; }));
    QVERIFY(boxes.Seen().isEmpty());
}

// The densest page of the tool.
void PuschTxNormalPageTest::everythingStandsInsideTheWindow()
{
    CPluginSession session("handset", 1, kNormal.className);
    QVERIFY(session.ShowAndWait());
    const QSize around = session.Window()->size() - session.Page()->size();
    const QSize least = session.Page()->minimumSizeHint() + around;
    QVERIFY2(least.width() <= 1004, qPrintable(QString::number(least.width())));
    QVERIFY2(least.height() <= 769, qPrintable(QString::number(least.height())));
}

QUORLIN_TEST_CLASS(PuschTxNormalPageTest)
#include "PuschTxNormalPageTest.moc"
