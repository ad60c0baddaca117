// The Single Tone TX page: its document, its command, and the power detector beside the tone.
#include <QGroupBox>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/TxPages.h"

namespace {

bool ToneRuns(CPluginSession &session)
{
    if (!session.ShowAndWait())
        return false;
    session.Press("m_start");
    return session.WaitForStatus("Single Tone Tx start...");
}

bool Fetch(CPluginSession &session)
{
    session.Press("m_btnFetchPd");
    return session.WaitForStatus("Finish fetch PD value.");
}

// Has the detector answer with these bytes.
void Answer(const char *hex)
{
    const QString fault =
        R"({"function": "VOND_MMRf_GetPdValueV7_r", "kind": "bytes", "hex": "%1"})";
    VondSim_AddFault(qPrintable(fault.arg(hex)));
}

}  // namespace

class SingleTonePageTest : public QObject
{
    Q_OBJECT

private slots:
    void pageShowsItsDocument();
    void hardwareFollowsRouteAndRegion();
    void startSendsTheseBytes();
    void stopIsOfKindOne();
    void fetchWhileTheToneRunsLeavesStartAndStop();
    void fetchedValueIsThatOfTheDetector_data();
    void fetchedValueIsThatOfTheDetector();
    void fetchTakesItsOwnButtonAlone();
    void fetchWhileAStartIsInFlight();
    void failedFetchShowsErrorAndSaysWhy();
    void answerThatIsNoDocumentLeavesThePage();
    void secondFetchDoesNotDoubleTheStatus();
};

void SingleTonePageTest::pageShowsItsDocument()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Page()->windowTitle(), QString("Single Tone TX"));
    QCOMPARE(session.Find<QComboBox>(Member("band"))->currentText(), QString("n1"));
    QCOMPARE(session.Find<QComboBox>(Member("txRoute"))->currentText(), QString("1"));
    QCOMPARE(session.Find<QSpinBox>(Member("afcdac"))->value(), 4096);
    QCOMPARE(session.Find<QDoubleSpinBox>(Member("txPowerValue"))->text(), QString("23.00"));
    QCOMPARE(session.Find<QSpinBox>(Member("ulFrequency"))->value(), 1950000);
    QCOMPARE(session.Find<QComboBox>(Member("aggBwRegion"))->currentText(), QString("BW0"));
    QCOMPARE(session.Find<QComboBox>(Member("ulFreqOffset"))->count(), 13);
    QCOMPARE(session.Find<QComboBox>(Member("ulFreqOffset"))->currentText(), QString("90 kHz"));
    QCOMPARE(session.Find<QCheckBox>(Member("afcDataType"))->text(), QString("AFC data used UI"));
    QCOMPARE(session.Find<QLabel>(Member("txRoute_caption"))->text(), QString("Comp. Route"));
    QCOMPARE(session.Find<QLabel>(Member("port_caption", "group2"))->text(), QString("Port"));
    QCOMPARE(session.Find<QGroupBox>("groupBox_carrier")->title(), QString(" Carrier Config"));
    QCOMPARE(session.Find<QGroupBox>("groupBox_output")->title(), QString("Carrier Output"));
    QCOMPARE(session.Find<QPushButton>("m_btnFetchPd")->text(), QString("&Fetch PD ( dBm)"));
    QCOMPARE(session.Find<QPushButton>("m_btnFetchPd")->toolTip(), QString("Fetch"));
    QCOMPARE(session.Find<QPushButton>("m_start")->text(), QString("&Start"));
    QCOMPARE(session.Find<QPushButton>("m_start")->toolTip(), QString("Start"));
    QCOMPARE(session.Find<QPushButton>("m_stop")->text(), QString("&Stop"));
    QCOMPARE(session.Find<QPushButton>("m_stop")->toolTip(), QString("Stop"));
    QCOMPARE(ResultText(session, "pdValue"), QString("NA"));
}

void SingleTonePageTest::hardwareFollowsRouteAndRegion()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    const auto hardware = [&] {
        QStringList texts;
        for (const char *member : {"feRouteNum", "port", "stx", "antMask", "mimoPairNum"})
            texts << session.Find<QLabel>(Member(member, "group2"))->text();
        return texts.join('|') + '|' + session.Find<QLabel>(Member("aggBwKhzRange"))->text();
    };
    QCOMPARE(hardware(), QString("204|TX_MB_1|1|0x2||0 < BW0 <= 20MHz"));
    Choose(session, "band", "n41");
    QCOMPARE(hardware(), QString("236|TX_HB_0|1|0x2|10 11 |0 < BW0 <= 20MHz"));
    Choose(session, "txRoute", "10");
    Choose(session, "aggBwRegion", "BW3");
    QCOMPARE(hardware(), QString("243|TX_HB_1|2|0x2|9 11 |60 < BW3 <= 100MHz"));
    QCOMPARE(session.Find<QSpinBox>(Member("ulFrequency"))->value(), 2593000);
}

void SingleTonePageTest::startSendsTheseBytes()
{
    CPluginSession session("handset", 0xABCD, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    Choose(session, "band", "n41");
    Choose(session, "aggBwRegion", "BW1");
    Choose(session, "ulFreqOffset", "-540 kHz");
    session.Find<QDoubleSpinBox>(Member("txPowerValue"))->setValue(-10.5);
    session.Find<QSpinBox>(Member("afcdac"))->setValue(8191);
    Click(session, "afcDataType");
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Single Tone Tx start..."));
    const auto starts = JournalOf(kSingleTone.start);
    QCOMPARE(starts.size(), 1);
    // NR, n41, route 9, AFC DAC, dBm * 256, kHz, kHz of the region, kHz of the tone, AFC data
    QCOMPARE(starts[0].request.toHex(),
             QByteArray::fromHex("01000000 2900 0900 ff1f 80f5 e8902700 409c0000 e4fdffff 01000000")
                 .toHex());
    QCOMPARE(starts[0].call.handle, 0xABCDu);
    QCOMPARE(starts[0].call.timeoutMs, 10000u);
}

void SingleTonePageTest::stopIsOfKindOne()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(ToneRuns(session));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Single Tone Tx stop."));
    QCOMPARE(JournalOf(kSingleTone.stop).last().request.toHex(), QByteArray("01000000"));
}

void SingleTonePageTest::fetchWhileTheToneRunsLeavesStartAndStop()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(ToneRuns(session));
    QCOMPARE(Enabled(session, kSingleTone), QString("stop read"));
    QVERIFY(Fetch(session));
    QCOMPARE(Enabled(session, kSingleTone), QString("stop read"));
    QCOMPARE(QString(VondSim_RunningTest()), QString("SingleToneTx"));
    const QByteArray raw = JournalOf(kSingleTone.read).last().answer;
    const double dbm = qint16(quint8(raw[0]) | quint8(raw[1]) << 8) / 256.0;
    QCOMPARE(ResultText(session, "pdValue"), QString::number(dbm, 'g', 6));
    QVERIFY2(dbm > 22 && dbm < 24, raw.toHex());  // of 23 dBm

    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Single Tone Tx stop."));
    QCOMPARE(Enabled(session, kSingleTone), QString("start read"));
    QCOMPARE(ResultText(session, "pdValue"), QString::number(dbm, 'g', 6));
}

void SingleTonePageTest::fetchedValueIsThatOfTheDetector_data()
{
    QTest::addColumn<QString>("hex");
    QTest::addColumn<QString>("text");
    QTest::newRow("256") << "0001"
                         << "1";
    QTest::newRow("-128") << "80ff"
                          << "-0.5";
    QTest::newRow("most") << "ff7f"
                          << "127.996";
    QTest::newRow("zero") << "0000"
                          << "0";
}

void SingleTonePageTest::fetchedValueIsThatOfTheDetector()
{
    QFETCH(QString, hex);
    QFETCH(QString, text);
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(ToneRuns(session));
    Answer(qPrintable(hex));
    QVERIFY(Fetch(session));
    QCOMPARE(ResultText(session, "pdValue"), text);
}

void SingleTonePageTest::fetchTakesItsOwnButtonAlone()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(ToneRuns(session));
    VondSim_Hold(kSingleTone.read);
    session.Press("m_btnFetchPd");
    QCOMPARE(session.StatusBar(), QString("Start fetch PD value..."));
    QVERIFY(VondSim_WaitUntilHeld(kSingleTone.read, 20000));
    QCOMPARE(Enabled(session, kSingleTone), QString("stop"));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true}));
    VondSim_Release(kSingleTone.read);
    QVERIFY(session.WaitForStatus("Finish fetch PD value."));
    QCOMPARE(Enabled(session, kSingleTone), QString("stop read"));
    QCOMPARE(session.busy, (QVector<bool>{true, false, true, false}));
}

void SingleTonePageTest::fetchWhileAStartIsInFlight()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    VondSim_Hold(kSingleTone.start);
    session.Press("m_start");
    QVERIFY(VondSim_WaitUntilHeld(kSingleTone.start, 20000));
    session.Press("m_btnFetchPd");
    QCOMPARE(Enabled(session, kSingleTone), QString("none"));
    VondSim_Release(kSingleTone.start);
    QVERIFY(session.WaitForStatus("Finish fetch PD value."));
    QCOMPARE(Enabled(session, kSingleTone), QString("stop read"));
    QCOMPARE(session.busy, (QVector<bool>{true, true, false, false}));
    QVERIFY(ResultText(session, "pdValue") != "Error");
}

void SingleTonePageTest::failedFetchShowsErrorAndSaysWhy()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    session.Press("m_btnFetchPd");  // nothing is transmitted
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].title, QString("Error"));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Critical));
    const QString reason =
        QString::fromUtf8(JournalOf("VOND_GetErrorString").last().answer).remove(QChar(0));
    QVERIFY(!reason.isEmpty());
    QVERIFY2(boxes.Seen()[0].text.contains("There are some error in this page:  Single Tone TX<br>"
                                           "Get PD value from target failed\n" +
                                           reason + "<br>"),
             qPrintable(boxes.Seen()[0].text));
    QCOMPARE(session.StatusBar(), QString("Finish fetch PD value."));
    QCOMPARE(ResultText(session, "pdValue"), QString("Error"));
    QCOMPARE(Enabled(session, kSingleTone), QString("start read"));
    QCOMPARE(session.busy, (QVector<bool>{true, false}));

    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Single Tone Tx start..."));
    QVERIFY(Fetch(session));
    QCOMPARE(boxes.Seen().size(), 1);
    QVERIFY(ResultText(session, "pdValue") != "Error");
}

void SingleTonePageTest::answerThatIsNoDocumentLeavesThePage()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(ToneRuns(session));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Single Tone Tx stop."));
    CBoxWatcher boxes;
    for (const char *text : {"", "{", "[]"}) {
        QVERIFY(QMetaObject::invokeMethod(session.Page(), "Slot_GetSingleToneTxPdValueDone",
                                          Q_ARG(std::string, std::string(text))));
        QCOMPARE(session.StatusBar(), QString("Finish fetch PD value."));
    }
    QCOMPARE(ResultText(session, "pdValue"), QString("NA"));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Single Tone Tx start..."));
    const auto starts = JournalOf(kSingleTone.start);
    QCOMPARE(starts.size(), 2);
    QCOMPARE(starts[1].request.toHex(), starts[0].request.toHex());
    QVERIFY(Fetch(session));
    QVERIFY(ResultText(session, "pdValue") != "NA");
    QVERIFY(boxes.Seen().isEmpty());
}

void SingleTonePageTest::secondFetchDoesNotDoubleTheStatus()
{
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(ToneRuns(session));
    QSignalSpy statuses(session.Page(), SIGNAL(Signal_UpdateStatus(QString, int)));
    for (int fetch = 1; fetch <= 3; ++fetch) {
        session.Press("m_btnFetchPd");
        QVERIFY(WaitUntil([&] { return session.busy.size() == 2 + 2 * fetch; }));
        QCOMPARE(Count(statuses, "Finish fetch PD value."), fetch);
    }
}

QUORLIN_TEST_CLASS(SingleTonePageTest)
#include "SingleTonePageTest.moc"
