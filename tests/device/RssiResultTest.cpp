// What a measurement shows on the RSSI page. Expected texts are worked out from the records that
// the DUT answered with.
#include <cstddef>
#include <type_traits>

#include <QDockWidget>

#include "Vond/VondResultRecords.h"
#include "tests/common/AnswerField.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RssiSession.h"

namespace {

const QStringList kEmptyRow{"", "", "", "", ""};
const QStringList kErrorRow{"ERROR", "ERROR", "ERROR", "ERROR", "ERROR"};

QStringList FrequencyRow(const SMMRssiCnfV7 &answer)
{
    QStringList row;
    for (uint32_t kHz : answer.dlFrequency)
        row.append(QString::number(kHz));
    return row;
}

template <typename Rows, typename Field>
QStringList RssiRow(const Rows &rows, Field field)
{
    QStringList texts;
    for (const auto &row : rows.row)
        texts.append(DbText(row.*field));
    return texts;
}

}  // namespace

class RssiResultTest : public QObject
{
    Q_OBJECT

private slots:
    void unusedColumnsComeFromTheTarget();
    void pathOfTheCalTypeGetsTheResultsAndTheOtherTableIsEmpty_data();
    void pathOfTheCalTypeGetsTheResultsAndTheOtherTableIsEmpty();
    void bothPathsGetTheResultsOfASimultaneousRun();
    void gainModesAreShownAsTheyCame_data();
    void gainModesAreShownAsTheyCame();
    void failedRunShowsErrorOnThePathsAskedFor_data();
    void failedRunShowsErrorOnThePathsAskedFor();
};

void RssiResultTest::unusedColumnsComeFromTheTarget()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    AnswerField(kRssiCall, "dlFrequency[4]", 12345);             // kHz, in the last column
    AnswerField(kRssiCall, "rows.single.row[4].rssiMain", -16);  // in 1/32 dBm
    AnswerField(kRssiCall, "rows.single.row[4].rssiDiv", 32);
    QVERIFY(Measure(session));
    QCOMPARE(session.ResultRow(0, CRssiSession::DlFreq)[0], QString("1950000"));
    QCOMPARE(session.ResultRow(0, CRssiSession::DlFreq)[4], QString("12345"));
    QCOMPARE(session.ResultRow(0, CRssiSession::MainRssi)[4], QString("-0.50000"));
    QCOMPARE(session.ResultRow(0, CRssiSession::DivRssi)[4], QString("1.00000"));
}

void RssiResultTest::pathOfTheCalTypeGetsTheResultsAndTheOtherTableIsEmpty_data()
{
    QTest::addColumn<QString>("calType");
    QTest::addColumn<int>("path");
    QTest::newRow("path 0") << "Partial-On Path0" << 0;
    QTest::newRow("path 1") << "Partial-On Path1" << 1;
}

void RssiResultTest::pathOfTheCalTypeGetsTheResultsAndTheOtherTableIsEmpty()
{
    QFETCH(QString, calType);
    QFETCH(int, path);
    CRssiSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    // Both tables are filled before, so that one has something to lose.
    Choose(session, "calType", "Simultaneously");
    QVERIFY(Measure(session));
    Choose(session, "calType", calType);
    session.Press(kStartButton);
    QVERIFY(WaitUntil([&] { return session.busy.size() == 4; }));
    QCOMPARE(session.StatusBar(), QString("Fetch RSSI done"));

    const auto answer = LastAnswer<SMMRssiCnfV7>(kRssiCall);
    const auto &rows = answer.rows.single;
    using Row = std::remove_reference_t<decltype(rows.row[0])>;
    QVERIFY(rows.row[0].rssiMain < 0);
    QCOMPARE(session.ResultRow(path, CRssiSession::DlFreq), FrequencyRow(answer));
    QCOMPARE(session.ResultRow(path, CRssiSession::MainRssi),
             RssiRow(rows, &std::remove_const_t<Row>::rssiMain));
    QCOMPARE(session.ResultRow(path, CRssiSession::DivRssi),
             RssiRow(rows, &std::remove_const_t<Row>::rssiDiv));
    QCOMPARE(session.Text(QString("gainModeP%1").arg(path)), QString("(G%1+g%2, G%3+g%4)")
                                                                 .arg(rows.mainG)
                                                                 .arg(rows.maing)
                                                                 .arg(rows.divG)
                                                                 .arg(rows.divg));
    for (auto row : {CRssiSession::DlFreq, CRssiSession::MainRssi, CRssiSession::DivRssi})
        QCOMPARE(session.ResultRow(1 - path, row), kEmptyRow);
    QCOMPARE(session.Text(QString("gainModeP%1").arg(1 - path)), QString());
}

void RssiResultTest::bothPathsGetTheResultsOfASimultaneousRun()
{
    CRssiSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    Choose(session, "calType", "Simultaneously");
    QVERIFY(Measure(session));
    const auto answer = LastAnswer<SMMRssiCnfV7>(kRssiCall);
    const auto &rows = answer.rows.simultaneous;
    using Row = std::remove_const_t<std::remove_reference_t<decltype(rows.row[0])>>;
    for (int path : {0, 1}) {
        QCOMPARE(session.ResultRow(path, CRssiSession::DlFreq), FrequencyRow(answer));
        QVERIFY(session.ResultTable(path)->cellWidget(0, 0)->isEnabled());
    }
    QCOMPARE(session.ResultRow(0, CRssiSession::MainRssi), RssiRow(rows, &Row::path0Main));
    QCOMPARE(session.ResultRow(0, CRssiSession::DivRssi), RssiRow(rows, &Row::path0Div));
    QCOMPARE(session.ResultRow(1, CRssiSession::MainRssi), RssiRow(rows, &Row::path1Main));
    QCOMPARE(session.ResultRow(1, CRssiSession::DivRssi), RssiRow(rows, &Row::path1Div));
}

void RssiResultTest::gainModesAreShownAsTheyCame_data()
{
    QTest::addColumn<QString>("calType");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("path0");
    QTest::addColumn<QString>("path1");
    QTest::newRow("path 0") << "Partial-On Path0" << 48 << QByteArray("07ff03ff")
                            << "(G7+g3, G255+g255)"
                            << "";
    QTest::newRow("path 1") << "Partial-On Path1" << 48 << QByteArray("06080209") << ""
                            << "(G6+g2, G8+g9)";
    QTest::newRow("both") << "Simultaneously" << 68 << QByteArray("0708030405ff")
                          << "(G7+g3, G8+g4)"
                          << "(G7+g5, G8+g255)";
}

// A DUT that tells a gain mode that no DUT has is one to look at.
void RssiResultTest::gainModesAreShownAsTheyCame()
{
    QFETCH(QString, calType);
    QFETCH(int, offset);
    QFETCH(QByteArray, hex);
    CRssiSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    Choose(session, "calType", calType);
    AddAnswerBytes(kRssiCall, offset, hex);
    QVERIFY(Measure(session));
    QTEST(session.Text("gainModeP0"), "path0");
    QTEST(session.Text("gainModeP1"), "path1");
}

void RssiResultTest::failedRunShowsErrorOnThePathsAskedFor_data()
{
    QTest::addColumn<QString>("calType");
    QTest::addColumn<QStringList>("path0");
    QTest::addColumn<QStringList>("path1");
    QTest::newRow("path 0") << "Partial-On Path0" << kErrorRow << kEmptyRow;
    QTest::newRow("path 1") << "Partial-On Path1" << kEmptyRow << kErrorRow;
    QTest::newRow("both") << "Simultaneously" << kErrorRow << kErrorRow;
}

// The cells say so already when the box opens.
void RssiResultTest::failedRunShowsErrorOnThePathsAskedFor()
{
    QFETCH(QString, calType);
    QFETCH(QStringList, path0);
    QFETCH(QStringList, path1);
    CRssiSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    Choose(session, "calType", calType);
    VondSim_AddFault(FailFault(kRssiCall));
    CBoxWatcher boxes;
    QVector<QStringList> inTheBox;
    boxes.onBox = [&] {
        for (int path : {0, 1}) {
            for (auto row : {CRssiSession::DlFreq, CRssiSession::MainRssi, CRssiSession::DivRssi})
                inTheBox.append(session.ResultRow(path, row));
        }
    };
    session.Press(kStartButton);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(inTheBox, (QVector<QStringList>{path0, path0, path0, path1, path1, path1}));
    QCOMPARE(session.Text("gainModeP0"), path0[0]);
    QCOMPARE(session.Text("gainModeP1"), path1[0]);
}

QUORLIN_TEST_CLASS(RssiResultTest)
#include "RssiResultTest.moc"
