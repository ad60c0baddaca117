// The reports of the RSRP pages: ticks, rows, and how they stand beside Stop.
#include <cstddef>

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QThreadPool>
#include <QTimer>
#include <QtTest>

#include "Model/OperationResult.h"
#include "Vond/VondResultRecords.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RsrpSession.h"

namespace {

constexpr char kDone[] = "RsrpRsrq RX get report done.";
constexpr char kReportFails[] =
    R"({"function": "VOND_NRf_GetMixRxReportV7_r", "kind": "fail", "result": 7})";
constexpr char kNoReports[] =
    R"({"function": "VOND_NRf_GetMixRxReportV7_r", "kind": "bytes", "hex": "00"})";

// Period of the page's running report timer, ms; 0 when it does not run.
int RunningPeriod(const CRsrpSession &session)
{
    const auto *timer = session.Page()->findChild<QTimer *>("reportTimer");
    return timer && timer->isActive() ? timer->interval() : 0;
}

}  // namespace

class RsrpReportTest : public QObject
{
    Q_OBJECT

private slots:
    void fetchShowsTheMeasurements_data() { BothRsrpPages(); }
    void fetchShowsTheMeasurements();
    void shortestPeriodFetchesThreeTimesASecond_data() { BothRsrpPages(); }
    void shortestPeriodFetchesThreeTimesASecond();
    void longestPeriodFetchesNothingInTheFirstSecond_data() { BothRsrpPages(); }
    void longestPeriodFetchesNothingInTheFirstSecond();
    void ticksAreSkippedWhileAFetchIsInFlight_data() { BothRsrpPages(); }
    void ticksAreSkippedWhileAFetchIsInFlight();
    void failedFetchAddsARowAndNoBox_data() { BothRsrpPages(); }
    void failedFetchAddsARowAndNoBox();
    void emptyReportAddsARowOfNoData_data() { BothRsrpPages(); }
    void emptyReportAddsARowOfNoData();
    void answerWithoutADocumentChangesNothing_data();
    void answerWithoutADocumentChangesNothing();
    void answerAfterStopIsAppended_data() { BothRsrpPages(); }
    void answerAfterStopIsAppended();
    void startAfterAStopBeginsAtRowOne_data() { BothRsrpPages(); }
    void startAfterAStopBeginsAtRowOne();
    void startWithAFetchInFlightBeginsAtRowOne_data() { BothRsrpPages(); }
    void startWithAFetchInFlightBeginsAtRowOne();
    void fourAntennasLeaveTheOtherTableAsItWas();
};

void RsrpReportTest::fetchShowsTheMeasurements()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode, R"({"name": "exact", "base": "handset",
                                   "radio": {"fluctuationDb": 0}})");
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.WaitForStatus(kDone));
    QCOMPARE(session.Rows(), 5);
    // 1/128 dB, in the order of the record: five reports of each antenna.
    const QByteArray report = JournalOf(kRsrpReport)[0].answer;
    const auto dbm = [&](int offset) {
        const auto word = static_cast<int16_t>(static_cast<uint8_t>(report[offset]) |
                                               static_cast<uint8_t>(report[offset + 1]) << 8);
        return QString::number(word / 128.0, 'f', 2);
    };
    QCOMPARE(session.Cell(0, "RSSI0"), dbm(offsetof(NRfTestResult_GetMixRxReportV7, RSSI0[0])));
    QCOMPARE(session.Cell(4, "RSSI0"), dbm(offsetof(NRfTestResult_GetMixRxReportV7, RSSI0[4])));
    QCOMPARE(session.Cell(0, "RSSI1"), dbm(offsetof(NRfTestResult_GetMixRxReportV7, RSSI1[0])));
    QVERIFY(session.Cell(0, "RSRP0").toDouble() < -50);
    QCOMPARE(session.Column("Total BLK"), QStringList({"100", "100", "100", "100", "100"}));
    QCOMPARE(session.Cell(0, "BLER(%)"), QString("0.00"));
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 10);
    QCOMPARE(session.Cell(9, "Total BLK"), QString("200"));
    QCOMPARE(session.Cell(0, "Total BLK"), QString("100"));
}

void RsrpReportTest::shortestPeriodFetchesThreeTimesASecond()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Ready());
    session.Input<QSpinBox>("group1", "reportPeriod")->setValue(300);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QCOMPARE(RunningPeriod(session), 300);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(WaitUntil([] { return CountCalls(kRsrpReport) >= 4; }));
    // Four periods; a machine under load adds to it.
    QVERIFY2(timer.elapsed() >= 1000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(session.Stop());
    const int reports = CountCalls(kRsrpReport);
    QVERIFY(!WaitUntil([&] { return CountCalls(kRsrpReport) > reports; }, 700));
}

void RsrpReportTest::longestPeriodFetchesNothingInTheFirstSecond()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QCOMPARE(RunningPeriod(session), 10000);
    QVERIFY(!WaitUntil([] { return CountCalls(kRsrpReport) > 0; }, 1000));
    QCOMPARE(session.Rows(), 0);
}

void RsrpReportTest::ticksAreSkippedWhileAFetchIsInFlight()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.HoldFetch());
    for (int i = 0; i < 5; ++i)
        session.Tick();
    VondSim_Release(kRsrpReport);
    QVERIFY(session.WaitForStatus(kDone));
    QCOMPARE(session.Rows(), 5);
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 10);
    QCOMPARE(CountCalls(kRsrpReport), 2);
}

void RsrpReportTest::failedFetchAddsARowAndNoBox()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    VondSim_AddFault(kReportFails);
    CBoxWatcher boxes;
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 6);
    QCOMPARE(session.Cell(5, "RSRP0"), QString("FAIL"));
    QCOMPARE(session.Cell(5, "BLER(%)"), QString("FAIL"));
    const QString text =
        QString::fromUtf8(JournalOf("VOND_GetErrorString").last().answer).remove(QChar(0));
    QVERIFY(!text.isEmpty());
    QCOMPARE(session.StatusBar(), "RsrpRsrq RX get report failed: " + text);
    QVERIFY(boxes.Seen().isEmpty());
    QCOMPARE(session.Enabled(), QString("stop reset"));
    VondSim_ClearFaults();
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 11);
    QCOMPARE(session.StatusBar(), QString(kDone));
}

void RsrpReportTest::emptyReportAddsARowOfNoData()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    VondSim_AddFault(kNoReports);
    QVERIFY(session.Fetch());
    QVERIFY(session.WaitForStatus(kDone));
    QCOMPARE(session.Column("RSRP1"), QStringList{"NO DATA"});
    QCOMPARE(session.Column("Total BLK"), QStringList{"NO DATA"});
}

void RsrpReportTest::answerWithoutADocumentChangesNothing_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("response");
    for (const char *mode : {"Force", "Normal"}) {
        QTest::newRow(qPrintable(QString(mode) + ", empty")) << mode << "";
        QTest::newRow(qPrintable(QString(mode) + ", torn")) << mode << R"({"cmdIf": {"resp)";
        QTest::newRow(qPrintable(QString(mode) + ", no object")) << mode << "[1]";
    }
}

void RsrpReportTest::answerWithoutADocumentChangesNothing()
{
    QFETCH(QString, mode);
    QFETCH(QString, response);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    const QByteArray slot = "Slot_Rsrp" + mode.toLatin1() + "FetchReportDone";
    const SEachItemOperationResult good;
    QVERIFY(QMetaObject::invokeMethod(session.Page(), slot, Qt::DirectConnection,
                                      Q_ARG(SEachItemOperationResult, good),
                                      Q_ARG(std::string, response.toStdString())));
    QCOMPARE(session.Rows(), 5);
    QCOMPARE(session.StatusBar(), QString("RsrpRsrq RX get report failed: "));
    QVERIFY(QMetaObject::invokeMethod(session.Page(), "Slot_RsrpClearReportDone",
                                      Qt::DirectConnection,
                                      Q_ARG(std::string, response.toStdString())));
    QCOMPARE(session.Rows(), 5);
    // The page goes on with the document that it had.
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 10);
}

void RsrpReportTest::answerAfterStopIsAppended()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.HoldFetch());
    session.Press("m_stop");
    QCOMPARE(session.Rows(), 0);
    VondSim_Release(kRsrpReport);
    QVERIFY(WaitUntil([&] { return session.Enabled() == "start reset clear rx tx"; }));
    QVERIFY(WaitUntil([&] { return session.Rows() == 5; }));
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void RsrpReportTest::startAfterAStopBeginsAtRowOne()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    QCOMPARE(session.Rows(), 10);
    session.Input<QSpinBox>("group1", "measCnt")->setValue(3);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(WaitUntil([&] { return session.Rows() == 0; }));
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 3);
    QCOMPARE(session.Cell(0, "Total BLK"), session.Cell(2, "Total BLK"));
    // What was packaged for the run has not been lost with the old rows.
    const char *count = mode == "Force" ? "forcedMode.carrier.common.measCnt"
                                        : "normalMode.carrier[0].common.measCnt";
    QVERIFY(RequestNumber(JournalOf(kRsrpStart)[1], count) == 3);
}

// The fetch has the old rows in its document: they must not come back, not even for a moment.
void RsrpReportTest::startWithAFetchInFlightBeginsAtRowOne()
{
    QFETCH(QString, mode);
    CRsrpSession session(mode);
    QVERIFY(session.Running());
    QVERIFY(session.Fetch());
    QVERIFY(session.Stop());
    QVERIFY(session.HoldFetch());
    const QSignalSpy added(session.Table()->model(), &QAbstractItemModel::rowsInserted);
    session.Press("m_start");
    VondSim_Release(kRsrpReport);
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(WaitUntil([&] { return session.Rows() == 0; }));
    QCOMPARE(added.size(), 0);
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 5);
    QCOMPARE(CountCalls(kRsrpReport), 3);
}

void RsrpReportTest::fourAntennasLeaveTheOtherTableAsItWas()
{
    CRsrpSession session("Normal");
    QVERIFY(session.Ready());
    QVERIFY(session.Choose("mimoType", "4x4"));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 5);
    QVERIFY(session.Stop());
    QVERIFY(session.Choose("mimoType", "2x2"));
    QCOMPARE(session.Rows(), 0);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Rsrp start..."));
    QVERIFY(session.Fetch());
    QCOMPARE(session.Rows(), 5);
    QVERIFY(session.Stop());
    QVERIFY(session.Choose("mimoType", "4x4"));
    QCOMPARE(session.Rows(), 0);  // the run began with a clear of both
}

QUORLIN_TEST_CLASS(RsrpReportTest)
#include "RsrpReportTest.moc"
