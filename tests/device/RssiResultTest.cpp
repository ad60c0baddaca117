// What a measurement and a gain search show on the RSSI page, and how the page is laid out for it.
//
// Expected texts are worked out from the records that the DUT answered with.
#include <cstring>

#include <QDockWidget>
#include <QStackedWidget>
#include <QtTest>

#include "Vond/VondResultRecords.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RssiSession.h"

namespace {

const QStringList kEmptyRow{"", "", "", "", ""};
const QStringList kErrorRow{"ERROR", "ERROR", "ERROR", "ERROR", "ERROR"};

template <typename Record>
Record LastAnswer(const char *function)
{
    const QByteArray bytes = JournalOf(function).last().answer;
    Record record = {};
    if (bytes.size() == static_cast<int>(sizeof record))
        std::memcpy(&record, bytes.constData(), sizeof record);
    return record;
}

// dB of the wire, 1/32 dB, as the page shows them.
QString DbText(int value)
{
    return QString::number(value / 32.0, 'f', 5);
}

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

bool Measure(const CRssiSession &session)
{
    session.Press(kStartButton);
    return session.WaitForStatus("Fetch RSSI done");
}

bool Calculate(const CRssiSession &session)
{
    session.Press(kCalculateButton);
    return session.WaitForStatus("Fetch Gain info done");
}

void AddAnswerBytes(const char *function, int offset, const QByteArray &hex)
{
    VondSim_AddFault(QString(R"({"function": "%1", "kind": "bytes", "offset": %2, "hex": "%3"})")
                         .arg(function)
                         .arg(offset)
                         .arg(QString::fromLatin1(hex))
                         .toUtf8());
}

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

class RssiResultTest : public QObject
{
    Q_OBJECT

private slots:
    void tablesHaveFiveColumnsWhateverTheChannelNumber_data();
    void tablesHaveFiveColumnsWhateverTheChannelNumber();
    void unusedColumnsComeFromTheTarget();
    void pathsOfACalTypeGetTheResults_data();
    void pathsOfACalTypeGetTheResults();
    void bothPathsGetTheResultsOfASimultaneousRun();
    void failedRunShowsErrorOnThePathsAskedFor_data();
    void failedRunShowsErrorOnThePathsAskedFor();
    void runDoesNotWipeTheCalculatorsValues_data();
    void runDoesNotWipeTheCalculatorsValues();
    void calculatorShowsTheGainsOfOnePath();
    void calculatorShowsTheGainsOfBothPaths();
    void failedSearchShowsNoAdvice();
    void foundGainsGoToTheMeasurementToTheBit();
    void layoutIsFixedWhenTheInitIsDone();
    void noResultIsCutOff();
    void pageFitsTheWindow();
};

void RssiResultTest::tablesHaveFiveColumnsWhateverTheChannelNumber_data()
{
    QTest::addColumn<int>("channels");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("five") << 5;
}

void RssiResultTest::tablesHaveFiveColumnsWhateverTheChannelNumber()
{
    QFETCH(int, channels);
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    session.Find<QSpinBox>(MemberName("numFreq"))->setValue(channels);
    session.Press(kStartButton);
    CBoxWatcher boxes;  // the DUT may refuse to measure nothing
    QVERIFY(WaitUntil([&] { return session.busy.size() == 2; }));
    QCOMPARE(static_cast<int>(JournalOf(kRssiCall).last().request.at(33)), channels);
    for (int path : {0, 1}) {
        QCOMPARE(session.ResultTable(path)->columnCount(), 5);
        QCOMPARE(session.ResultTable(path)->rowCount(), 3);
    }
    QCOMPARE(session.ResultTable(0)->verticalHeaderItem(CRssiSession::MainRssi)->text(),
             QString("Main RSSI"));
}

void RssiResultTest::unusedColumnsComeFromTheTarget()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    AddAnswerBytes(kRssiCall, 24, "39300000");  // 12345 kHz in the last column
    AddAnswerBytes(kRssiCall, 44, "f0ff2000");  // -16/32 and 32/32 dBm
    QVERIFY(Measure(session));
    QCOMPARE(session.ResultRow(0, CRssiSession::DlFreq)[0], QString("1950000"));
    QCOMPARE(session.ResultRow(0, CRssiSession::DlFreq)[4], QString("12345"));
    QCOMPARE(session.ResultRow(0, CRssiSession::MainRssi)[4], QString("-0.50000"));
    QCOMPARE(session.ResultRow(0, CRssiSession::DivRssi)[4], QString("1.00000"));
}

void RssiResultTest::pathsOfACalTypeGetTheResults_data()
{
    QTest::addColumn<QString>("calType");
    QTest::addColumn<int>("path");
    QTest::newRow("path 0") << "Partial-On Path0" << 0;
    QTest::newRow("path 1") << "Partial-On Path1" << 1;
}

void RssiResultTest::pathsOfACalTypeGetTheResults()
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
    VondSim_AddFault(R"({"function": "VOND_MMRf_RssiV7_r", "kind": "fail", "result": 7})");
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

void RssiResultTest::runDoesNotWipeTheCalculatorsValues_data()
{
    QTest::addColumn<bool>("succeeds");
    QTest::newRow("good run") << true;
    QTest::newRow("failed run") << false;
}

void RssiResultTest::runDoesNotWipeTheCalculatorsValues()
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
        VondSim_AddFault(R"({"function": "VOND_MMRf_RssiV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press(kStartButton);
    QVERIFY(WaitUntil([&] { return session.busy.size() == 4; }));
    QCOMPARE(Gains(session), gains);
    QCOMPARE(session.Text("adviseDlPower"), advice);
}

void RssiResultTest::calculatorShowsTheGainsOfOnePath()
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

void RssiResultTest::calculatorShowsTheGainsOfBothPaths()
{
    CRssiSession session(Type2Profile());
    QVERIFY(session.ShowAndWait());
    Choose(session, "routeType", "Type2");
    Choose(session, "calType", "Simultaneously");
    AddAnswerBytes(kGainCall, 8, "05060711");  // gain indexes 5, 6, 7 and 17
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

void RssiResultTest::failedSearchShowsNoAdvice()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QVERIFY(Calculate(session));
    VondSim_AddFault(R"({"function": "VOND_MMRf_GainSearchV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press(kCalculateButton);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.Text("adviseDlPower"), QString("Error"));
}

// Gains step by 1/32 dB; a page that showed two decimals would send back less than was found.
void RssiResultTest::foundGainsGoToTheMeasurementToTheBit()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    // 1489/32, 1/32, 1727/32 and -1343/32 dB
    const QByteArray gains = "d10501 00bf06c1fa";
    AddAnswerBytes(kGainCall, 8, QByteArray(gains).replace(' ', ""));
    QVERIFY(Calculate(session));
    QCOMPARE(Gains(session).mid(0, 4), (QVector<double>{46.53125, 0.03125, 53.96875, -41.96875}));
    QVERIFY(Measure(session));
    QCOMPARE(JournalOf(kRssiCall).last().request.mid(40, 8).toHex(),
             QByteArray(gains).replace(' ', ""));
}

void RssiResultTest::layoutIsFixedWhenTheInitIsDone()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Page()->findChild<QStackedWidget *>()->currentIndex(), 0);
    for (const int path : {0, 1}) {
        const QTableWidget *table = session.ResultTable(path);
        QCOMPARE(table->minimumSize(), table->maximumSize());
        int width = table->verticalHeader()->width();
        for (int c = 0; c < table->columnCount(); ++c)
            width += table->columnWidth(c);
        int height = table->horizontalHeader()->height();
        for (int r = 0; r < table->rowCount(); ++r)
            height += table->rowHeight(r);
        QCOMPARE(table->size(), QSize(width, height));
        QCOMPARE(table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }
    const QSize size = session.ResultTable(0)->size();
    QVERIFY(Measure(session));
    QCOMPARE(session.ResultTable(0)->size(), size);
}

void RssiResultTest::noResultIsCutOff()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    AddAnswerBytes(kRssiCall, 8, "ffffffff");   // the highest frequency of the record
    AddAnswerBytes(kRssiCall, 28, "00800080");  // and the lowest level
    QVERIFY(Measure(session));
    QCOMPARE(session.ResultRow(0, CRssiSession::MainRssi)[0], QString("-1024.00000"));
    for (auto row : {CRssiSession::DlFreq, CRssiSession::MainRssi, CRssiSession::DivRssi}) {
        const QWidget *cell = session.ResultTable(0)->cellWidget(row, 0);
        QVERIFY2(cell->sizeHint().width() <= cell->width(), qPrintable(QString::number(row)));
        QVERIFY(cell->sizeHint().height() <= cell->height());
    }
    auto *frequency = qobject_cast<QSpinBox *>(session.FrequencyTable()->cellWidget(0, 0));
    QVERIFY(frequency->fontMetrics().horizontalAdvance("7125000") < frequency->width() - 4);
}

// The window opens with 1004 x 769 pixels; tab bar, title and status line take their part.
void RssiResultTest::pageFitsTheWindow()
{
    CRssiSession session;
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Page()->minimumSizeHint().width() <= 1004);
    const int around = session.Window()->height() - session.Page()->height();
    QVERIFY2(session.Page()->minimumSizeHint().height() + around <= 769,
             qPrintable(QString::number(session.Page()->minimumSizeHint().height() + around)));
}

QTEST_MAIN(RssiResultTest)
#include "RssiResultTest.moc"
