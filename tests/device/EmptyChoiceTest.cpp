// A band that the band tables of 3GPP lack: no spacing and no bandwidth can be chosen, and nothing
// is sent.
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

// Another DUT's bands: n1, and n48 that the tables lack.
QString Profile(bool isUnknownFirst)
{
    const QString n1 = R"({"band": 1, "rx4x4": true})";
    const QString n48 = R"({"band": 48, "rx4x4": true, "uplink": [3550000, 3700000],
                            "downlink": [3550000, 3700000]})";
    return QString(R"({"name": "n48", "base": "handset", "bands": [%1],
        "txRoutes": [
            {"band": 1, "route": 1, "regions": [{"kHz": 20000, "antMask": 2, "feRoute": 204,
             "port": "TX_MB_1", "stx": 1, "mimoPairs": []}]},
            {"band": 48, "route": 50, "regions": [{"kHz": 20000, "antMask": 2, "feRoute": 204,
             "port": "TX_MB_1", "stx": 1, "mimoPairs": []}]}],
        "rxType1Routes": [
            {"band": 1, "route": 1, "antMask": 6, "feRoute": 301, "ports": ["RX_MB_1M", "RX_MB_1D"],
             "srx": 1, "mimoPairs": [], "txRoutes": [1]},
            {"band": 48, "route": 50, "antMask": 6, "feRoute": 301,
             "ports": ["RX_MB_1M", "RX_MB_1D"], "srx": 1, "mimoPairs": [], "txRoutes": [50]}],
        "rxType2Routes": [], "txLimits": [], "rxLimits": []})")
        .arg(isUnknownFirst ? n48 + ',' + n1 : n1 + ',' + n48);
}

QComboBox *Box(const CPluginSession &session, const QString &member)
{
    return session.Find<QComboBox>("cmdIf_request_group1_memberProperty_" + member);
}

// What Start sends for n1 on a page as it comes; empty when it fails.
QByteArray BytesOfStart(const QString &page, const QString &started, const char *command)
{
    CPluginSession session(Profile(false), 1, page);
    if (!session.ShowAndWait())
        return {};
    session.Press("m_start");
    if (!session.WaitForStatus(started) || JournalOf(command).size() != 1)
        return {};
    return JournalOf(command)[0].request;
}

}  // namespace

class EmptyChoiceTest : public QObject
{
    Q_OBJECT

private slots:
    void bandThatTheTablesLackOffersNothingAndSendsNothing_data();
    void bandThatTheTablesLackOffersNothingAndSendsNothing();
    void calculateSendsNothingEither();
    void choiceThatRelevanceTurnedOffIsNotAskedFor();
    void requestsOfTheRssiPageSendNothing();
};

void EmptyChoiceTest::bandThatTheTablesLackOffersNothingAndSendsNothing_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("scs");
    QTest::addColumn<QString>("bandwidth");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("started");
    QTest::addColumn<QByteArray>("command");
    const auto add = [](const char *page, const char *scs, const char *rb, const char *text,
                        const char *started, const char *command) {
        QTest::newRow(page) << page << scs << rb << text << started << QByteArray(command);
    };
    add("CNrPuschTxForcedDockWidgetV7", "txScs", "ulBandwidth", "SCS is empty.",
        "Pusch TX start...", "VOND_NRf_PuschTxV7_r");
    add("CNrPuschTxNormalDockWidgetV7", "txScs", "ulBandwidth", "SCS is empty.",
        "Pusch TX start...", "VOND_NRf_PuschTxV7_r");
    add("CNrRsrpForceDockWidgetV7", "rxScs", "dlBandwidth", "SCS is empty.", "Rsrp start...",
        "VOND_NRf_RsrpV7_r");
    add("CNrRsrpNormalDockWidgetV7", "rxScs", "dlBandwidth", "SCS is empty.", "Rsrp start...",
        "VOND_NRf_RsrpV7_r");
    add("CNrContRxDockWidgetV7", "dlBw", "dlBw", "DL Bandwidth is empty.", "Cont Rx start...",
        "VOND_MMRf_ContRxV7_r");
}

void EmptyChoiceTest::bandThatTheTablesLackOffersNothingAndSendsNothing()
{
    QFETCH(QString, page);
    QFETCH(QString, scs);
    QFETCH(QString, bandwidth);
    QFETCH(QString, text);
    QFETCH(QString, started);
    QFETCH(QByteArray, command);
    const QByteArray bytesOfN1 = BytesOfStart(page, started, command);
    QVERIFY(!bytesOfN1.isEmpty());
    CPluginSession session(Profile(false), 1, page);
    QVERIFY(session.ShowAndWait());
    const QString rbOfN1 = Box(session, bandwidth)->currentText();
    QVERIFY(!rbOfN1.isEmpty());
    Box(session, "band")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(Box(session, "band"), Qt::Key_Down);
    QCOMPARE(Box(session, "band")->currentText(), QString("n48"));
    QCOMPARE(Box(session, scs)->count(), 0);
    QCOMPARE(Box(session, bandwidth)->count(), 0);

    const int calls = Journal().size();
    CBoxWatcher boxes;
    session.Press("m_start");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), text);
    QCOMPARE(boxes.Seen()[0].title, text);
    QCOMPARE(boxes.Seen()[0].text, text);
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Warning));
    QCOMPARE(Journal().size(), calls);
    QVERIFY(session.busy.isEmpty());
    QVERIFY(session.Find("m_start")->isEnabled());

    // Back on a band of the tables, all is there again.
    QTest::keyClick(Box(session, "band"), Qt::Key_Up);
    QCOMPARE(Box(session, bandwidth)->currentText(), rbOfN1);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus(started));
    QCOMPARE(boxes.Seen().size(), 1);
    QCOMPARE(JournalOf(command).size(), 1);
    QCOMPARE(JournalOf(command)[0].request.toHex(), bytesOfN1.toHex());
}

void EmptyChoiceTest::calculateSendsNothingEither()
{
    for (const char *page : {"CNrPuschTxForcedDockWidgetV7", "CNrPuschTxNormalDockWidgetV7"}) {
        CPluginSession session(Profile(true), 1, page);
        QVERIFY(session.ShowAndWait());
        QCOMPARE(Box(session, "band")->currentText(), QString("n48"));
        QCOMPARE(Box(session, "txScs")->count(), 0);
        QCOMPARE(Box(session, "ulBandwidth")->count(), 0);
        session->EnablePages();
        CBoxWatcher boxes;
        session.Press("m_btnCalculate");
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        QCOMPARE(boxes.Seen()[0].title, QString("SCS is empty."));
        QCOMPARE(session.StatusBar(), QString("SCS is empty."));
        QCOMPARE(CountCalls("VOND_NRf_GetDlFreqV7_r"), 0);
        QVERIFY(session.busy.isEmpty());
    }
}

void EmptyChoiceTest::choiceThatRelevanceTurnedOffIsNotAskedFor()
{
    CPluginSession session("handset", 1, "CNrPuschTxForcedDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    QVERIFY(!Box(session, "tddSlotConfig")->isEnabled());
    Box(session, "tddSlotConfig")->setCurrentIndex(-1);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
}

void EmptyChoiceTest::requestsOfTheRssiPageSendNothing()
{
    CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    Box(session, "powerMode")->clear();
    Box(session, "path0MainSearch")->clear();
    int boxCount = 0;
    CBoxWatcher boxes;
    for (const char *button : {"m_start", "m_btnRssiSeqSrhCalculator"}) {
        session.Press(button);
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == boxCount + 1; }));
        QCOMPARE(boxes.Seen()[boxCount++].title, QString("Power Mode is empty."));
        QCOMPARE(session.StatusBar(), QString("Power Mode is empty."));
    }
    QCOMPARE(CountCalls("VOND_MMRf_RssiV7_r") + CountCalls("VOND_MMRf_GainSearchV7_r"), 0);
    QVERIFY(session.busy.isEmpty());
}

QUORLIN_TEST_CLASS(EmptyChoiceTest)
#include "EmptyChoiceTest.moc"
