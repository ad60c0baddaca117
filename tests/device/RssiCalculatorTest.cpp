// What a gain search shows on the RSSI page, and what a measurement makes of it.
#include <cstddef>

#include <QDockWidget>

#include "Vond/VondCommandRecords.h"
#include "Vond/VondResultRecords.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RssiSession.h"

namespace {

// What the calculator has put on the page.
QVector<double> Gains(const CRssiSession &session)
{
    QVector<double> gains;
    for (const char *path : {"path0", "path1"}) {
        for (const char *kind : {"MainRfGain", "DivRfGain", "MainDigtalGain", "DivDigtalGain"})
            gains.append(session.Gain(QString(path) + kind));
    }
    return gains;
}

}  // namespace

class RssiCalculatorTest : public QObject
{
    Q_OBJECT

private slots:
    void runDoesNotWipeTheCalculatorsValues_data();
    void runDoesNotWipeTheCalculatorsValues();
    void calculatorShowsTheGainsOfOnePath();
    void calculatorShowsTheGainsOfBothPaths();
    void failedSearchShowsNoAdvice();
    void foundGainsGoToTheMeasurementToTheBit();
};

void RssiCalculatorTest::runDoesNotWipeTheCalculatorsValues_data()
{
    QTest::addColumn<bool>("succeeds");
    QTest::newRow("good run") << true;
    QTest::newRow("failed run") << false;
}

void RssiCalculatorTest::runDoesNotWipeTheCalculatorsValues()
{
    QFETCH(bool, succeeds);
    CRssiSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    Choose(session, "calType", "Simultaneously");
    QVERIFY(Calculate(session));
    const QVector<double> gains = Gains(session);
    const QString advice = session.Text("adviseDlPower");
    QVERIFY(!gains.contains(0));
    QVERIFY(advice.toDouble() < 0);
    if (!succeeds)
        VondSim_AddFault(FailFault(kRssiCall));
    CBoxWatcher boxes;
    session.Press(kStartButton);
    QVERIFY(WaitUntil([&] { return session.busy.size() == 4; }));
    QCOMPARE(Gains(session), gains);
    QCOMPARE(session.Text("adviseDlPower"), advice);
}

void RssiCalculatorTest::calculatorShowsTheGainsOfOnePath()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QVERIFY(Calculate(session));
    const auto answer = LastAnswer<SMMGainSearchCnfV7>(kGainCall);
    const auto &gain = answer.gain.single;
    QCOMPARE(session.Text("adviseDlPower"), DbText(answer.adviseDlPower));
    QCOMPARE(Gains(session), (QVector<double>{gain.mainRfGain / 32.0, gain.divRfGain / 32.0,
                                              gain.mainDigitalGain / 32.0,
                                              gain.divDigitalGain / 32.0, 0, 0, 0, 0}));
    QVERIFY(gain.mainRfGain > 0);
}

void RssiCalculatorTest::calculatorShowsTheGainsOfBothPaths()
{
    CRssiSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    Choose(session, "calType", "Simultaneously");
    AddAnswerBytes(kGainCall, offsetof(SMMGainSearchCnfV7, gain),
                   "05060711");  // gain indexes 5, 6, 7 and 17
    QVERIFY(Calculate(session));
    const auto gain = LastAnswer<SMMGainSearchCnfV7>(kGainCall).gain.simultaneous;
    QCOMPARE(Gains(session),
             (QVector<double>{gain.path0MainRfGain / 32.0, gain.path0DivRfGain / 32.0,
                              gain.path0MainDigitalGain / 32.0, gain.path0DivDigitalGain / 32.0,
                              gain.path1MainRfGain / 32.0, gain.path1DivRfGain / 32.0,
                              gain.path1MainDigitalGain / 32.0, gain.path1DivDigitalGain / 32.0}));
    QVector<int> indexes;
    for (const char *member :
         {"path0MainGainIdx", "path0DivGainIdx", "path1MainGainIdx", "path1DivGainIdx"})
        indexes.append(session.Find<QSpinBox>(CRssiSession::ResultName(member))->value());
    QCOMPARE(indexes, (QVector<int>{5, 6, 7, 17}));
}

void RssiCalculatorTest::failedSearchShowsNoAdvice()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QVERIFY(Calculate(session));
    VondSim_AddFault(FailFault(kGainCall));
    CBoxWatcher boxes;
    session.Press(kCalculateButton);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.Text("adviseDlPower"), QString("Error"));
}

// Gains step by 1/32 dB; a page that showed two decimals would send back less than was found.
void RssiCalculatorTest::foundGainsGoToTheMeasurementToTheBit()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    // 1489/32, 1/32, 1727/32 and -1343/32 dB
    const QByteArray gains = "d1050100bf06c1fa";
    AddAnswerBytes(kGainCall, offsetof(SMMGainSearchCnfV7, gain), gains);
    QVERIFY(Calculate(session));
    QCOMPARE(Gains(session).mid(0, 4), (QVector<double>{46.53125, 0.03125, 53.96875, -41.96875}));
    QVERIFY(Measure(session));
    QCOMPARE(JournalOf(kRssiCall).last().request.mid(offsetof(SMMRssiCmdV7, gain), 8).toHex(),
             gains);
}

QUORLIN_TEST_CLASS(RssiCalculatorTest)
#include "RssiCalculatorTest.moc"
