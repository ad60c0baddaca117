// Names of members, units of captions: what needs no tool.
#include <QtTest>

#include "Runner/bench/Names.h"
#include "Runner/bench/Units.h"
#include "tests/common/TestClass.h"

namespace {

const QStringList kCandidates = {"request.group1.band", "request.group2.band",
                                 "request.group2.freq"};

}  // namespace

class BenchNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void bracketsNameAColumn_data();
    void bracketsNameAColumn();
    void shortNameFitsOneCandidateAlone();
    void unknownNameListsTheCandidates();
    void unitIsThatOfTheCaption_data();
    void unitIsThatOfTheCaption();
};

void BenchNamesTest::bracketsNameAColumn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("plain") << "band"
                           << "band" << -1 << true;
    QTest::newRow("first") << "request.group2.freq[0]"
                           << "request.group2.freq" << 0 << true;
    QTest::newRow("blanks") << "  freq [ 12 ] "
                            << "freq" << 12 << true;
    QTest::newRow("open") << "freq["
                          << "freq[" << -1 << false;
    QTest::newRow("no number") << "freq[a]"
                               << "freq[a]" << -1 << false;
    QTest::newRow("twice") << "freq[0][1]"
                           << "freq[0][1]" << -1 << false;
    QTest::newRow("negative") << "freq[-1]"
                              << "freq[-1]" << -1 << false;
    QTest::newRow("huge") << "freq[99999999999]"
                          << "freq[99999999999]" << -1 << false;
    QTest::newRow("empty") << ""
                           << "" << -1 << false;
}

void BenchNamesTest::bracketsNameAColumn()
{
    QFETCH(QString, text);
    const SParsedName parsed = ParseName(text);
    QTEST(parsed.name, "name");
    QTEST(parsed.column, "column");
    QTEST(parsed.isGood, "isGood");
}

void BenchNamesTest::shortNameFitsOneCandidateAlone()
{
    QCOMPARE(MatchName("freq", kCandidates, "editor").index, 2);
    QCOMPARE(MatchName("group2.band", kCandidates, "editor").index, 1);
    QCOMPARE(MatchName("request.group1.band", kCandidates, "editor").index, 0);
    QCOMPARE(MatchName("req", kCandidates, "editor").index, -1);
    QCOMPARE(MatchName("", kCandidates, "editor").index, -1);
    const SNameMatch several = MatchName("band", kCandidates, "editor");
    QCOMPARE(several.index, -1);
    QVERIFY(several.isSeveral);
    QCOMPARE(several.refusal.Text(),
             QString("\"band\" is the name of more than one editor. Allowed: "
                     "request.group1.band, request.group2.band."));
}

void BenchNamesTest::unknownNameListsTheCandidates()
{
    const SNameMatch match = MatchName("power", kCandidates, "editor");
    QCOMPARE(match.index, -1);
    QVERIFY(!match.isSeveral);
    QCOMPARE(match.refusal.reason, QString("There is no editor \"power\"."));
    QCOMPARE(match.refusal.allowed, kCandidates.join(", "));
}

void BenchNamesTest::unitIsThatOfTheCaption_data()
{
    QTest::addColumn<QString>("unit");
    QTest::newRow("TX Power (dBm)") << "dBm";
    QTest::newRow("PA Mode0(dB)") << "dB";
    QTest::newRow("DL Freq.(1kHz)") << "kHz";
    QTest::newRow("Report Period (ms)") << "ms";
    QTest::newRow("BLER(%)") << "%";
    QTest::newRow("Route(Type1 Only)") << "";
    QTest::newRow("Gain Mode(RXM, RXD)") << "";
    QTest::newRow("dBm") << "";
}

void BenchNamesTest::unitIsThatOfTheCaption()
{
    QTEST(UnitOf(QTest::currentDataTag()), "unit");
}

QUORLIN_TEST_CLASS(BenchNamesTest)

#include "BenchNamesTest.moc"
