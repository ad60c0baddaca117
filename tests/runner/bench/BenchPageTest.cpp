// A page as the bench reads it and types into it.
#include <QJsonDocument>
#include <QtTest>

#include "tests/common/TestClass.h"
#include "tests/runner/bench/BenchSession.h"

namespace {

SBenchMember MemberOf(const CBenchPage *page, const QString &name)
{
    for (const SBenchMember &member : page->Members()) {
        if (member.Name() == name)
            return member;
    }
    return {};
}

QString ValueOf(const CBenchPage *page, const QString &name, int column = 0)
{
    return MemberOf(page, name).values.value(column);
}

}  // namespace

class BenchPageTest : public QObject
{
    Q_OBJECT

private slots:
    void membersAreWhatTheDocumentAndTheEditorsSay();
    void everyPageOfEveryDutCanBeRead_data();
    void everyPageOfEveryDutCanBeRead();
    void readingLeavesThePageAsItIs();
    void choiceRunsRelevance();
    void limitsAreThoseOfNow();
    void minMidAndMaxAreOfTheLimits();
    void refusedValueLeavesTheOldOne_data();
    void refusedValueLeavesTheOldOne();
    void shortNamesFitOneEditorAlone();
    void cellsAreSetByTheirColumn();
    void disabledAndHiddenEditorsAreRefused();
    void modeOfAntennasTurnsTheResultTable();
    void selectorOfACalibrationPageShowsItsData();
    void tablesHaveRowsColumnsAndValues();
};

void BenchPageTest::membersAreWhatTheDocumentAndTheEditorsSay()
{
    CBenchSession session;
    const CBenchPage *page = session.Page("RSRP Normal Mode");
    const SBenchMember band = MemberOf(page, "request.group1.band");
    QCOMPARE(band.caption, QString("Band"));
    QCOMPARE(band.type, QString("list"));
    QCOMPARE(band.groupName, QString("RX Carrier Config"));
    QVERIFY(band.choices.contains("n78"));
    QCOMPARE(band.values, QStringList{"n1"});
    QVERIFY(band.isEnabled && band.isShown && band.IsInput());
    const SBenchMember period = MemberOf(page, "request.group1.reportPeriod");
    QCOMPARE(period.unit, QString("ms"));
    QCOMPARE(period.min + '|' + period.max, QString("300|10000"));
    QCOMPARE(period.values, QStringList{"1000"});
    const SBenchMember power = MemberOf(page, "request.group2.txPowerValue");
    QCOMPARE(power.unit, QString("dBm"));
    QVERIFY(!power.isEnabled);
}

void BenchPageTest::everyPageOfEveryDutCanBeRead_data()
{
    QTest::addColumn<QString>("profile");
    QTest::newRow("handset") << "handset";
    QTest::newRow("odd") << ODD_PROFILE;
}

void BenchPageTest::everyPageOfEveryDutCanBeRead()
{
    QFETCH(QString, profile);
    CBenchSession session(profile);
    QCOMPARE(session.error.text, QString());
    for (const CBenchPage *page : session.bench.Pages()) {
        QVERIFY(page->ClassName().startsWith("CNr"));
        QVERIFY2(!page->Buttons().isEmpty(), qPrintable(page->Title()));
        const QVector<SBenchMember> members = page->Members();
        QVERIFY2(members.size() > 5, qPrintable(page->Title()));
        for (const SBenchMember &member : members) {
            const QByteArray name = (page->Title() + ' ' + member.Name()).toUtf8();
            QVERIFY2(!member.type.isEmpty(), name);
            QVERIFY2(!member.values.isEmpty(), name);
            if (member.isEnabled && member.IsNumber())
                QVERIFY2(!member.min.isEmpty() && !member.max.isEmpty(), name);
            if (member.isCells)
                QVERIFY2(member.columns.size() == member.values.size(), name);
        }
    }
}

void BenchPageTest::readingLeavesThePageAsItIs()
{
    CBenchSession session;
    for (const CBenchPage *page : session.bench.Pages()) {
        const QString before = page->DocumentText();
        QVERIFY(QJsonDocument::fromJson(before.toUtf8()).isObject());
        page->Members();
        page->Tables();
        page->FindOutput("BLER(%)");
        QCOMPARE(page->DocumentText(), before);
    }
    QVERIFY(session.bench.TakeBoxes().isEmpty());
}

void BenchPageTest::choiceRunsRelevance()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Normal Mode");
    const SBenchMember before = MemberOf(page, "request.group1.dlFrequency");
    QCOMPARE(Text(page->Set("request.group1.band", " n78 ")), QString());
    QCOMPARE(ValueOf(page, "request.group1.band"), QString("n78"));
    const SBenchMember after = MemberOf(page, "request.group1.dlFrequency");
    QVERIFY(after.min != before.min);
    QVERIFY(after.values != before.values);
}

void BenchPageTest::limitsAreThoseOfNow()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Normal Mode");
    const QString ofN1 = MemberOf(page, "request.group1.dlFrequency").max;
    QCOMPARE(Text(page->Set("dlFrequency", ofN1)), QString());
    QCOMPARE(Text(page->Set("request.group1.band", "n78")), QString());
    const SBenchMember now = MemberOf(page, "request.group1.dlFrequency");
    const auto refusal = page->Set("dlFrequency", ofN1);
    QVERIFY(refusal);
    QCOMPARE(refusal->allowed, now.min + '~' + now.max);
}

void BenchPageTest::minMidAndMaxAreOfTheLimits()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Normal Mode");
    for (const auto &[word, value] :
         {std::pair{"min", "300"}, {"max", "10000"}, {"mid", "5150"}, {" min ", "300"}}) {
        QCOMPARE(Text(page->Set("reportPeriod", word)), QString());
        QCOMPARE(ValueOf(page, "request.group1.reportPeriod"), QString(value));
    }
    QVERIFY(page->Set("request.group1.band", "min"));
}

void BenchPageTest::refusedValueLeavesTheOldOne_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    for (const char *value : {"299", "10001", "-1", "1e3", "1000.5", "", "x",
                              "99999999999999999999", "0x400", "10 00", "\u0661"})
        QTest::addRow("period %s", value) << "request.group1.reportPeriod" << QString(value);
    for (const char *value : {"n999", "78", "N78", "", "n78,n1"})
        QTest::addRow("band %s", value) << "request.group1.band" << QString(value);
}

void BenchPageTest::refusedValueLeavesTheOldOne()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Normal Mode");
    const QString before = page->DocumentText();
    const auto refusal = page->Set(name, value);
    QVERIFY(refusal);
    QVERIFY2(refusal->reason.startsWith(name), qPrintable(refusal->reason));
    QVERIFY2(!refusal->allowed.isEmpty(), qPrintable(refusal->reason));
    QCOMPARE(page->DocumentText(), before);
}

void BenchPageTest::shortNamesFitOneEditorAlone()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Force Mode");
    QCOMPARE(Text(page->Set("reportPeriod", "500")), QString());
    // The band of the transmission is a label, and so no editor.
    QCOMPARE(Text(page->Set("band", "n3")), QString());
    const auto unknown = page->Set("bandwidth", "5");
    QVERIFY(unknown && unknown->allowed.contains("request.group1.dlBandwidth"));
    CBenchPage *pusch = session.Page("Normal PUSCH TX");
    QStringList keys;
    QStringList twice;
    for (const SBenchMember &member : pusch->Members()) {
        if (member.IsInput() && keys.contains(member.key))
            twice.append(member.key);
        keys.append(member.key);
    }
    QVERIFY(!twice.isEmpty());
    const auto several = pusch->Set(twice[0], "1");
    QVERIFY(several && several->reason.contains("more than one editor"));
}

void BenchPageTest::cellsAreSetByTheirColumn()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSSI");
    const SBenchMember frequency = MemberOf(page, "request.group2.dlFrequency");
    QVERIFY(frequency.isCells);
    QVERIFY(frequency.columns.size() > 1);
    const QString untouched = frequency.values[1];
    QCOMPARE(Text(page->Set("request.group2.dlFrequency[0]", "max")), QString());
    QCOMPARE(ValueOf(page, "request.group2.dlFrequency", 0), frequency.max);
    QCOMPARE(ValueOf(page, "request.group2.dlFrequency", 1), untouched);
    const auto bare = page->Set("request.group2.dlFrequency", "max");
    QVERIFY(bare && bare->reason.contains("needs a column"));
    const auto beyond =
        page->Set(QString("request.group2.dlFrequency[%1]").arg(frequency.columns.size()), "max");
    QVERIFY(beyond && beyond->allowed.contains("[0] to"));
    const auto single = page->Set("request.group1.band[0]", "n1");
    QVERIFY(single && single->reason.contains("one value"));
}

void BenchPageTest::disabledAndHiddenEditorsAreRefused()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Normal Mode");
    const auto off = page->Set("txPowerValue", "0");
    QVERIFY(off);
    QCOMPARE(off->reason, QString("request.group2.txPowerValue is disabled now."));
    QCOMPARE(Text(page->Set("trxMode", "Pseudo TX/RX")), QString());
    QCOMPARE(Text(page->Set("txPowerValue", "0")), QString());
    int hidden = 0;
    for (CBenchPage *other : session.bench.Pages()) {
        for (const SBenchMember &member : other->Members()) {
            if (!member.IsInput() || member.isShown)
                continue;
            ++hidden;
            const auto refusal = other->Set(member.Name() + (member.isCells ? "[0]" : ""), "min");
            QVERIFY2(refusal && refusal->reason.contains("hidden"), qPrintable(member.Name()));
        }
    }
    QVERIFY(hidden > 0);
}

void BenchPageTest::modeOfAntennasTurnsTheResultTable()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RSRP Normal Mode");
    const auto shown = [page] {
        QString name;
        for (const SBenchTable &table : page->Tables())
            name += table.isShown ? table.Name() : QString();
        return name;
    };
    QCOMPARE(shown(), QString("response.group1"));
    QVERIFY(!page->FindOutput("RSRP3").isFound);
    QCOMPARE(Text(page->Set("mimoType", "4x4")), QString());
    QCOMPARE(shown(), QString("response.group2"));
    QVERIFY(page->FindOutput("RSRP3").isFound);
    QCOMPARE(page->FindOutput("BLER(%)").unit, QString("%"));
}

void BenchPageTest::selectorOfACalibrationPageShowsItsData()
{
    CBenchSession session;
    CBenchPage *page = session.Page("RX Pathloss");
    QCOMPARE(int(page->Press("Read", kLong).how), int(EPressEnd::Idle));
    QCOMPARE(session.bench.Status(), QString("Read data from target successfully."));
    const SBenchMember route = MemberOf(page, "config.group1.route");
    QVERIFY(route.choices.size() > 1);
    const QString name = "data.group1.plOffset[0]";
    const QString first = ValueOf(page, "data.group1.plOffset");
    QCOMPARE(Text(page->Set(name, "1.40625")), QString());
    QCOMPARE(Text(page->Set("config.group1.route", route.choices[1])), QString());
    QVERIFY(ValueOf(page, "data.group1.plOffset") != "1.40625");
    QCOMPARE(Text(page->Set("config.group1.route", route.choices[0])), QString());
    QCOMPARE(ValueOf(page, "data.group1.plOffset"), QString("1.40625"));
    QVERIFY(first != "1.40625");
}

void BenchPageTest::tablesHaveRowsColumnsAndValues()
{
    CBenchSession session;
    const CBenchPage *page = session.Page("RSSI");
    const QVector<SBenchTable> tables = page->Tables();
    QVERIFY(tables.size() >= 3);
    for (const SBenchTable &table : tables) {
        QVERIFY(!table.isResults);
        QVERIFY(!table.columns.isEmpty());
        QCOMPARE(table.rows.size(), table.values.size());
        for (const QStringList &values : table.values)
            QCOMPARE(values.size(), table.columns.size());
    }
}

QUORLIN_TEST_CLASS(BenchPageTest)

#include "BenchPageTest.moc"
