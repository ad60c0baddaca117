// The 40 bytes that Start sends, for every layout of the command.
#include <cstddef>

#include <QtTest>

#include "Vond/VondCommandRecords.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/device/ContRxProfiles.h"

class ContRxCommandTest : public QObject
{
    Q_OBJECT

private slots:
    void startSendsTheseBytes_data();
    void startSendsTheseBytes();
    void stopIsOfKindOne();
    void editedValuesReachTheCommand();
    void gainsAreEnteredInTheStepsOfTheCommand();
};

void ContRxCommandTest::startSendsTheseBytes_data()
{
    QTest::addColumn<QString>("profile");
    QTest::addColumn<QString>("routeType");
    QTest::addColumn<QString>("calType");
    QTest::addColumn<QString>("powerMode");
    QTest::addColumn<QString>("hex");

    // route kind, low power, bandwidth, band and route, single path, path, gain block, frequency.
    // 60.1 dB is 1923/32 (0783), 5 MHz is 5000 kHz (1388), 1950000 kHz is 1DC130.
    const QString kind1 = "01000000", kind3 = "03000000", hpm = "00000000", lpm = "01000000";
    const QString carrier = "88130000 0100 0100", frequency = "30C11D00";
    const QString path0 = "01000000 00000000", path1 = "01000000 01000000";
    const QString both = "00000000 03000000";
    const QString single = "8307 8307 0000 0000 0000 0000";
    const QString simultaneous = "10101010 8307 8307 8307 8307";

    const auto row = [&](const char *name, const QString &profile, const QString &routeType,
                         const QString &calType, const QString &kind, const QString &layout,
                         const QString &gain) {
        for (const QString &power : {hpm, lpm}) {
            const QString mode = power == hpm ? "HPM" : "LPM";
            QTest::newRow(qPrintable(QString(name) + ", " + mode))
                << profile << routeType << calType << mode
                << kind + power + carrier + layout + gain + frequency;
        }
    };
    row("type 1 route", Type1Profile(), "Type1", "Partial-On Path0", kind1, path0, single);
    row("type 2 route, path 0", Type2Profile(), "Type2", "Partial-On Path0", kind3, path0, single);
    row("type 2 route, path 1", Type2Profile(), "Type2", "Partial-On Path1", kind3, path1, single);
    row("type 2 route, both paths", Type2Profile(), "Type2", "Simultaneously", kind3, both,
        simultaneous);
}

void ContRxCommandTest::startSendsTheseBytes()
{
    QFETCH(QString, profile);
    QFETCH(QString, routeType);
    QFETCH(QString, calType);
    QFETCH(QString, powerMode);
    QFETCH(QString, hex);

    CPluginSession session(profile, 0xABCD);
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", routeType);
    Choose(session, "calType", calType);
    Choose(session, "powerMode", powerMode);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Cont Rx stop."));

    const auto starts = JournalOf("VOND_MMRf_ContRxV7_r");
    QCOMPARE(starts.size(), 1);
    QCOMPARE(starts[0].request.size(), 40);
    QCOMPARE(starts[0].request.toHex(), QByteArray::fromHex(hex.toLatin1()).toHex());
    QCOMPARE(starts[0].call.handle, 0xABCDu);
    QCOMPARE(starts[0].call.timeoutMs, 10000u);
    QCOMPARE(starts[0].call.result, 0);
}

void ContRxCommandTest::stopIsOfKindOne()
{
    CPluginSession session(Type1Profile(), 5);
    QVERIFY(session.ShowAndWait());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Cont Rx stop."));
    const auto stops = JournalOf("VOND_MMRf_TestStopV7_r");
    QCOMPARE(stops.size(), 1);
    QCOMPARE(stops[0].request.toHex(), QByteArray("01000000"));
    QCOMPARE(stops[0].call.handle, 5u);
    QCOMPARE(stops[0].call.timeoutMs, 10000u);
    QCOMPARE(QString(VondSim_RunningTest()), QString());
}

void ContRxCommandTest::editedValuesReachTheCommand()
{
    CPluginSession session(Type1Profile());
    QVERIFY(session.ShowAndWait());
    session.Find<QSpinBox>(MemberName("dlFrequency"))->setValue(1920000);
    session.Find<QDoubleSpinBox>(MemberName("path0MainRfGain"))->setValue(0.04);
    session.Find<QDoubleSpinBox>(MemberName("path0DivRfGain"))->setValue(70);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    const QByteArray bytes = JournalOf("VOND_MMRf_ContRxV7_r")[0].request;
    QCOMPARE(bytes.mid(offsetof(SMMContRxCmdV7, gain), 4).toHex(),
             QByteArray("0100c008"));  // 1/32 dB and 70 dB
    QCOMPARE(bytes.mid(offsetof(SMMContRxCmdV7, dlFrequency), 4).toHex(),
             QByteArray("004c1d00"));  // 1920000 kHz
}

void ContRxCommandTest::gainsAreEnteredInTheStepsOfTheCommand()
{
    CPluginSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    Choose(session, "calType", "Simultaneously");
    for (const char *gain :
         {"path0MainRfGain", "path0DivRfGain", "path1MainRfGain", "path1DivRfGain"}) {
        auto *box = session.Find<QDoubleSpinBox>(MemberName(gain));
        box->setFocus(Qt::TabFocusReason);
        box->selectAll();
        QTest::keyClicks(box, "60.03125");
        QCOMPARE(box->text(), QString("60.03125"));
    }
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    for (const char *gain :
         {"path0MainRfGain", "path0DivRfGain", "path1MainRfGain", "path1DivRfGain"})
        QCOMPARE(session.Find<QDoubleSpinBox>(MemberName(gain))->text(), QString("60.03125"));
    // 60.03125 dB is 1921/32 (0781).
    const int gains = offsetof(SMMContRxCmdV7, gain.simultaneous.path0MainRfGain);
    QCOMPARE(JournalOf("VOND_MMRf_ContRxV7_r")[0].request.mid(gains, 8).toHex(),
             QByteArray("8107810781078107"));
}

QUORLIN_TEST_CLASS(ContRxCommandTest)
#include "ContRxCommandTest.moc"
