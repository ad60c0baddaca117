// The records that the two buttons of the RSSI page send.
#include <cstddef>

#include <QtTest>

#include "Vond/VondCommandRecords.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/device/RssiSession.h"

class RssiCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void startSendsTheseBytes();
    void calculateSendsTheseBytes();
    void editedFrequenciesReachTheCommand();
};

void RssiCommandTest::startSendsTheseBytes()
{
    CRssiSession session(Type1Profile(), 0xABCD);
    QVERIFY(session.ShowAndWait());
    session.Find<QDoubleSpinBox>(CRssiSession::ResultName("path0MainRfGain"))->setValue(60.1);
    session.Find<QDoubleSpinBox>(CRssiSession::ResultName("path0DivDigtalGain"))->setValue(-12.5);
    session.Press(kStartButton);
    QVERIFY(session.WaitForStatus("Fetch RSSI done"));

    const auto calls = JournalOf(kRssiCall);
    QCOMPARE(calls.size(), 1);
    // route kind, high power, one frequency of five (1950000 kHz is 1DC130), band and route, single
    // path, count, path, gains: 60.1 dB is 1923/32 (0783), -12.5 dB is -400/32 (FE70)
    const QByteArray hex = "01000000 00000000 30C11D00 00000000 00000000 00000000 00000000"
                           "0100 0100 01 01 0000 00000000"
                           "8307 0000 0000 70FE 000000000000000000000000";
    QCOMPARE(calls[0].request.toHex(), QByteArray::fromHex(hex).toHex());
    QCOMPARE(calls[0].call.handle, 0xABCDu);
    QCOMPARE(calls[0].call.timeoutMs, 10000u);
}

void RssiCommandTest::calculateSendsTheseBytes()
{
    CRssiSession session(Type2Profile(), 5);
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    Choose(session, "calType", "Simultaneously");
    Choose(session, "elnaModeMain", "G2");
    Choose(session, "path0MainSearch", "g1");
    Choose(session, "path1MainSearch", "g2");
    session.Press(kCalculateButton);
    QVERIFY(session.WaitForStatus("Fetch Gain info done"));

    const auto calls = JournalOf(kGainCall);
    QCOMPARE(calls.size(), 1);
    // NR, high power, both paths, eLNA main and div, gain modes of path 0 and 1
    const QByteArray hex = "01000000 00000000 01000000 02 00 01 00 02 00 0000";
    QCOMPARE(calls[0].request.toHex(), QByteArray::fromHex(hex).toHex());
    QCOMPARE(calls[0].call.handle, 5u);
    QCOMPARE(calls[0].call.timeoutMs, 10000u);
}

void RssiCommandTest::editedFrequenciesReachTheCommand()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    session.Find<QSpinBox>(MemberName("numFreq"))->setValue(5);
    for (int c = 0; c < 5; ++c) {
        auto *cell = qobject_cast<QSpinBox *>(session.FrequencyTable()->cellWidget(0, c));
        cell->setValue(1920000 + 5000 * c);
    }
    session.Press(kStartButton);
    QVERIFY(session.WaitForStatus("Fetch RSSI done"));
    const QByteArray request = JournalOf(kRssiCall)[0].request;
    QCOMPARE(request.mid(offsetof(SMMRssiCmdV7, dlFrequency), 20).toHex(),
             QByteArray("004c1d00885f1d0010731d0098861d00209a1d00"));
    QCOMPARE(session.ResultRow(0, CRssiSession::DlFreq),
             (QStringList{"1920000", "1925000", "1930000", "1935000", "1940000"}));
}

QUORLIN_TEST_CLASS(RssiCommandTest)
#include "RssiCommandTest.moc"
