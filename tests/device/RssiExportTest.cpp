// Exports of the RSSI page, of its gain search and of the power detector.
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/ResultSession.h"
#include "tests/device/RssiSession.h"
#include "tests/device/TxPages.h"

class RssiExportTest : public QObject
{
    Q_OBJECT

private slots:
    void eachMeasuredChannelIsARow();
    void gainSearchIsARow();
    void powerDetectorKeepsEachReadingWithItsSettings();
};

void RssiExportTest::eachMeasuredChannelIsARow()
{
    const QTemporaryDir folder;
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QVERIFY(Measure(session));
    QVERIFY(Export(session, folder.filePath("rssi.csv")));
    const CCsvFile csv(folder.filePath("rssi.csv"));
    QStringList shown = session.ResultRow(0, CRssiSession::DlFreq);
    shown.removeAll("0");
    QVERIFY(!shown.isEmpty());
    QCOMPARE(csv.Column("DL Freq. (kHz)"), shown);
    QCOMPARE(csv.Column("Main RSSI (dBm)"),
             session.ResultRow(0, CRssiSession::MainRssi).mid(0, shown.size()));
    QCOMPARE(csv.Column("Div RSSI (dBm)"),
             session.ResultRow(0, CRssiSession::DivRssi).mid(0, shown.size()));
    QCOMPARE(csv.Column("Gain Mode(RXM, RXD)").first(), session.Text("gainModeP0"));
    QCOMPARE(csv.Column("Path").first(), QString("0"));
    const QJsonObject settings = JsonFile(folder.filePath("rssi.json"));
    QCOMPARE(settings["page"].toString(), QString("RSSI"));
    QVERIFY(settings["request"].toObject()["group2"].toObject()["dlFrequency"].isArray());
}

void RssiExportTest::gainSearchIsARow()
{
    const QTemporaryDir folder;
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QVERIFY(Calculate(session));
    QVERIFY(Export(session, folder.filePath("gains.csv"), Qt::AltModifier));
    const CCsvFile csv(folder.filePath("gains.csv"));
    QCOMPARE(csv.Rows(), 1);
    QCOMPARE(csv.Column("Path0 Main Rf Gain (dB)").first().toDouble(),
             session.Gain("path0MainRfGain"));
    QCOMPARE(csv.Column("Advised DL Power (dBm)").first(), session.Text("adviseDlPower"));
    QVERIFY(csv.Headers().contains("Band"));
}

void RssiExportTest::powerDetectorKeepsEachReadingWithItsSettings()
{
    const QTemporaryDir folder;
    CPluginSession session("handset", 1, kSingleTone.className);
    QVERIFY(session.ShowAndWait());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Single Tone Tx start..."));
    session.Press("m_btnFetchPd");
    QVERIFY(session.WaitForStatus("Finish fetch PD value."));
    const QString shown =
        session.Find<QLabel>("cmdIf_response_group1_memberProperty_pdValue")->text();
    QVERIFY(Export(session, folder.filePath("pd.csv")));
    const CCsvFile csv(folder.filePath("pd.csv"));
    QCOMPARE(csv.Column("PD value (dBm)"), QStringList{shown});
    QCOMPARE(csv.Column("Band"), QStringList{"n1"});
    QCOMPARE(csv.Headers(), QStringList({"Time", "PD value (dBm)", "Band", "Comp. Route",
                                         "TX Power (dBm)", "UL Freq. (kHz)"}));
}

QUORLIN_TEST_CLASS(RssiExportTest)
#include "RssiExportTest.moc"
