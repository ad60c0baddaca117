// The RX path loss page: selections, what they keep, and what reaches the flash.
#include <algorithm>
#include <cstddef>

#include "tests/device/CalibrationSession.h"

namespace {

constexpr int kMain = 2;  // groups of the type 1 tables
constexpr int kDiv = 3;
constexpr int kFrequency = 4;
constexpr int kPartialOn = 5;
constexpr int kGainMain = 6;
constexpr int kGainDiv = 7;

using SType1Block = SMMType1PathlossBlockV7;

// Where the blocks of a type 1 route stand in a download.
struct SPlace
{
    int round = -1;
    int offset = 0;  // of the first block
    int blocks = 0;
};

SPlace Type1Place(const QVector<QByteArray> &rounds, int route)
{
    for (int round = 0; round < rounds.size(); ++round) {
        const int count = WordAt(rounds[round], offsetof(SMMSetCalDataReqV7, type1Count));
        int block = 0;
        for (int i = 0; i < count; ++i) {
            const int entry =
                offsetof(SMMSetCalDataReqV7, type1) + i * int(sizeof(SMMCalRxEntryV7));
            const int blocks = WordAt(rounds[round], entry + offsetof(SMMCalRxEntryV7, blockCount));
            if (WordAt(rounds[round], entry + offsetof(SMMCalRxEntryV7, route)) == route)
                return {round,
                        int(offsetof(SMMSetCalDataReqV7, type1Block)) +
                            block * int(sizeof(SType1Block)),
                        blocks};
            block += blocks;
        }
    }
    return {};
}

// Offset of a type 1 value: a subband (0 to 63), a gain slot, a path and a power mode.
int LossOffset(const SPlace &place, int subband, EVondRxPath path, int slot, bool isHpm)
{
    return place.offset + subband / kVondCalBlockSubbands * int(sizeof(SType1Block)) +
           int(offsetof(SType1Block, loss)) +
           (subband % kVondCalBlockSubbands * kVondType1LossPairs + VondType1LossPair(path, slot)) *
               int(sizeof(SMMLossPair)) +
           int(isHpm ? offsetof(SMMLossPair, hpm) : offsetof(SMMLossPair, lpm));
}

bool IsReady(CCalibrationSession &session)
{
    return session.ShowAndWait() && session.Run(kRead);
}

QStringList Headers(const QTableWidget *table)
{
    QStringList texts;
    for (int c = 0; c < table->columnCount(); ++c)
        texts.append(table->horizontalHeaderItem(c)->text());
    return texts;
}

}  // namespace

class PathLossPageTest : public QObject
{
    Q_OBJECT

private slots:
    void pageShowsItsDocument();
    void readShowsWhatTheFlashHolds();
    void switchFromHpmToLpmKeepsTheEditsMadeUnderHpm();
    void wheelOnASelectorWithoutFocusKeepsTheEdits();
    void selectorThatKeptTheFocusDoesNotStoreThePictureFromBeforeARead();
    void bandChangeKeepsTheEditsOfTheBandLeft();
    void editsOfAType2RouteSurviveChangesOfPathGainModeAndFrequency();
    void resetOnAType1RouteLeavesTheType2Tables();
    void resetOnAType2RouteLeavesTheType1Tables();
    void writeChangesExactlyTheEditedValues();
    void routeTypeChangesTheTables();
    void powerModeNamesTheColumnsOfThePartialOnTable();
    void labelShowsTheFrequencyOfTheIndex();
    void sameIndexPickedAgainRefreshesTheLabel();
    void selectionChangeIsBusyOnce();
    void type1TablesShowAllTheirCells();
    void exportedEditsComeBackOnImport();
};

void PathLossPageTest::pageShowsItsDocument()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    QCOMPARE(session.Page()->windowTitle(), QString("RX Pathloss"));
    QCOMPARE(session.Selector("band")->currentText(), QString("n1"));
    QCOMPARE(session.Selector("routeType")->currentText(), QString("Type1"));
    QCOMPARE(session.Selector("powerMode")->currentText(), QString("HPM"));
    QCOMPARE(session.Find<QLabel>("m_lblFreq")->text(), QString("0"));
    QCOMPARE(session.Find<QStackedWidget>("m_stackedWidget")->currentIndex(), 0);
    const QStringList buttons = {"&Read", "&Write", "&Import", "&Export", "Reset"};
    const char *const names[] = {"m_btnUpload", "m_btnDownload", "m_btnLoad", "m_btnSave",
                                 "m_btnReset_2"};
    for (int i = 0; i < buttons.size(); ++i)
        QCOMPARE(session.Find<QPushButton>(names[i])->text(), buttons[i]);
}

void PathLossPageTest::readShowsWhatTheFlashHolds()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    QVERIFY(session.Run(kWrite));
    const QVector<QByteArray> rounds = Rounds(0);
    const SPlace place = Type1Place(rounds, 1);
    QVERIFY(place.round >= 0);
    for (int slot = 0; slot < 8; ++slot) {
        for (int subband : {0, place.blocks * 16 - 1}) {
            const int16_t word = WordAt(rounds[place.round],
                                        LossOffset(place, subband, EVondRxPath::Main, slot, true));
            QCOMPARE(session.CellText(kMain, "lna0", slot, subband),
                     QString::number(word / 32.0, 'f', 5));
        }
    }
    QVERIFY(session.CellText(kFrequency, "freq", 0, 0) != "0");
}

void PathLossPageTest::switchFromHpmToLpmKeepsTheEditsMadeUnderHpm()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    const QString lpm = "-7.25000";
    session.Type(kMain, "lna0", 0, 0, "11.5");
    session.Select("powerMode", "LPM");
    QVERIFY(session.CellText(kMain, "lna0", 0, 0) != "11.50000");
    session.Type(kMain, "lna0", 0, 0, "-7.25");
    session.Select("powerMode", "HPM");
    QCOMPARE(session.CellText(kMain, "lna0", 0, 0), QString("11.50000"));
    session.Select("powerMode", "LPM");
    QCOMPARE(session.CellText(kMain, "lna0", 0, 0), lpm);
}

void PathLossPageTest::wheelOnASelectorWithoutFocusKeepsTheEdits()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    session.Type(kDiv, "lna0", 2, 5, "3.75");
    QVERIFY(!session.Selector("route")->hasFocus());
    session.TurnWheel("route", -1);
    QCOMPARE(session.Selector("route")->currentText(), QString("2"));
    QVERIFY(session.CellText(kDiv, "lna0", 2, 5) != "3.75000");
    session.TurnWheel("route", 1);
    QCOMPARE(session.Selector("route")->currentText(), QString("1"));
    QCOMPARE(session.CellText(kDiv, "lna0", 2, 5), QString("3.75000"));
}

void PathLossPageTest::selectorThatKeptTheFocusDoesNotStoreThePictureFromBeforeARead()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    session.Selector("route")->setFocus();
    // By the shortcut, which leaves the focus where it is.
    session.Find<QPushButton>(kRead.button)->click();
    QVERIFY(session.WaitForStatus(kRead.done));
    QVERIFY(session.Selector("route")->hasFocus());
    const QStringList shown = session.TableTexts(kMain, "lna0");
    QVERIFY(shown.count("0.00000") < shown.size());
    QTest::keyClick(session.Selector("route"), Qt::Key_Down);
    QTest::keyClick(session.Selector("route"), Qt::Key_Up);
    QCOMPARE(session.TableTexts(kMain, "lna0"), shown);
}

void PathLossPageTest::bandChangeKeepsTheEditsOfTheBandLeft()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    const QString frequency = session.CellText(kFrequency, "freq", 0, 0);
    session.Type(kMain, "lna0", 4, 1, "-2.5");
    session.Select("band", "n78");
    QVERIFY(session.CellText(kFrequency, "freq", 0, 0).toInt() > 3000000);
    session.Select("band", "n1");
    QCOMPARE(session.CellText(kMain, "lna0", 4, 1), QString("-2.50000"));
    QCOMPARE(session.CellText(kFrequency, "freq", 0, 0), frequency);
}

void PathLossPageTest::editsOfAType2RouteSurviveChangesOfPathGainModeAndFrequency()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    session.Select("routeType", "Type2");
    int value = 0;
    const auto edit = [&] {
        ++value;
        session.Type(kPartialOn, "main", 0, 0, QString::number(value * 0.5));
        session.Type(kGainMain, "gain0", 1, 2, QString::number(-value * 0.5));
        session.Type(kGainDiv, "gain0", 2, 0, QString::number(value * 0.25));
    };
    const auto shows = [&](int wanted) {
        return session.CellText(kGainMain, "gain0", 1, 2).toDouble() == -wanted * 0.5 &&
               session.CellText(kGainDiv, "gain0", 2, 0).toDouble() == wanted * 0.25 &&
               session.CellText(kPartialOn, "main", 0, 0).toDouble() == wanted * 0.5;
    };
    edit();
    session.Select("path", "1");
    edit();
    session.Select("freqIdx", "3");
    edit();
    session.Select("powerMode", "LPM");
    edit();
    QVERIFY(shows(4));
    session.Select("powerMode", "HPM");
    QVERIFY(shows(3));
    session.Select("freqIdx", "0");
    QVERIFY(shows(2));
    session.Select("path", "0");
    QVERIFY(shows(1));
    // The gain mode chooses the gain-by-gain row alone.
    session.Select("type2GainModeIdx", "G4");
    QVERIFY(session.CellText(kGainMain, "gain0", 1, 2).toDouble() != -0.5);
    session.Type(kGainMain, "gain0", 1, 2, "5");
    session.Select("type2GainModeIdx", "G0");
    QVERIFY(shows(1));
    session.Select("type2GainModeIdx", "G4");
    QCOMPARE(session.CellText(kGainMain, "gain0", 1, 2), QString("5.00000"));
}

void PathLossPageTest::resetOnAType1RouteLeavesTheType2Tables()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    session.Select("routeType", "Type2");
    const QStringList partialOn = session.TableTexts(kPartialOn, "main");
    const QStringList gains = session.TableTexts(kGainMain, "gain0");
    QVERIFY(partialOn.count("0.00000") < partialOn.size());
    session.Select("routeType", "Type1");
    QVERIFY(session.TableTexts(kMain, "lna0").count("0.00000") < 8 * 64);
    session.Press("m_btnReset_2");
    QCOMPARE(session.TableTexts(kMain, "lna0").count("0.00000"), 8 * 64);
    QCOMPARE(session.TableTexts(kDiv, "lna0").count("0.00000"), 8 * 64);
    QCOMPARE(session.TableTexts(kPartialOn, "main"), partialOn);
    QCOMPARE(session.TableTexts(kGainMain, "gain0"), gains);
}

void PathLossPageTest::resetOnAType2RouteLeavesTheType1Tables()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    const QStringList main = session.TableTexts(kMain, "lna0");
    session.Select("routeType", "Type2");
    session.Press("m_btnReset_2");
    QCOMPARE(session.TableTexts(kPartialOn, "main").count("0.00000"), 2 * 8);
    QCOMPARE(session.TableTexts(kGainMain, "gain0").count("0.00000"), 3 * 3);
    QCOMPARE(session.TableTexts(kGainDiv, "gain0").count("0.00000"), 3 * 3);
    QCOMPARE(session.TableTexts(kMain, "lna0"), main);
}

void PathLossPageTest::writeChangesExactlyTheEditedValues()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    QVERIFY(session.Run(kWrite));
    const QVector<QByteArray> before = Rounds(0);
    const SPlace first = Type1Place(before, 1);
    const SPlace second = Type1Place(before, 2);
    QVERIFY(first.round >= 0 && second.round >= 0);

    struct SEdit
    {
        int offset;
        int round;
        int16_t value;  // 1/32 dB
    };
    QVector<SEdit> edits;
    const auto edit = [&](const SPlace &place, int group, int slot, int subband, bool isHpm,
                          double value) {
        session.Type(group, "lna0", slot, subband, QString::number(value));
        const EVondRxPath path = group == kMain ? EVondRxPath::Main : EVondRxPath::Div;
        edits.append({LossOffset(place, subband, path, slot, isHpm), place.round,
                      static_cast<int16_t>(value * 32)});
    };
    edit(first, kMain, 0, 0, true, 12.5);
    edit(first, kDiv, 7, 15, true, -29.96875);
    session.Select("powerMode", "LPM");
    edit(first, kMain, 3, 2, false, 1.03125);
    session.Select("route", "2");
    edit(second, kDiv, 1, 1, false, -4);
    session.Select("powerMode", "HPM");
    session.Select("route", "1");
    QVERIFY(session.Run(kWrite));

    const QVector<QByteArray> after = Rounds(before.size());
    QCOMPARE(after.size(), before.size());
    QVector<SWordChange> expected;
    for (const SEdit &e : edits)
        expected.append({e.round, e.offset, WordAt(before[e.round], e.offset), e.value});
    std::sort(expected.begin(), expected.end(), [](const SWordChange &a, const SWordChange &b) {
        return std::make_pair(a.round, a.offset) < std::make_pair(b.round, b.offset);
    });
    QCOMPARE(Changes(before, after), expected);
}

void PathLossPageTest::routeTypeChangesTheTables()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    const auto *stack = session.Find<QStackedWidget>("m_stackedWidget");
    session.Select("routeType", "Type2");
    QCOMPARE(stack->currentIndex(), 1);
    QVERIFY(session.Table(kPartialOn, "main")->isVisible());
    session.Select("routeType", "Type1");
    QCOMPARE(stack->currentIndex(), 0);
    QVERIFY(session.Table(kMain, "lna0")->isVisible());
    // A band without type 2 routes brings the tables of type 1 back.
    session.Select("routeType", "Type2");
    session.Select("band", "n3");
    QCOMPARE(stack->currentIndex(), 0);
}

void PathLossPageTest::powerModeNamesTheColumnsOfThePartialOnTable()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    const QStringList hpm = {"G0,g0", "G0,g1", "G1,g1", "G2,g1",
                             "G3,g1", "G4,g2", "G5,g2", "G6,g2"};
    const QStringList lpm = {"G0,g0", "G1,g0", "G1,g1", "G2,g0",
                             "G2,g1", "G3,g0", "G4,g1", "G6,g2"};
    const QTableWidget *table = session.Table(kPartialOn, "main");
    QCOMPARE(Headers(table), hpm);
    session.Select("powerMode", "LPM");
    QCOMPARE(Headers(table), lpm);
    session.Select("powerMode", "HPM");
    QCOMPARE(Headers(table), hpm);
}

void PathLossPageTest::labelShowsTheFrequencyOfTheIndex()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    const auto *label = session.Find<QLabel>("m_lblFreq");
    QCOMPARE(label->text(), session.CellText(kFrequency, "freq", 0, 0));
    session.Type(kFrequency, "freq", 0, 0, "2111000");
    session.Selector("powerMode")->setFocus();
    QCOMPARE(label->text(), QString("2111000"));
    session.Select("freqIdx", "2");
    QCOMPARE(label->text(), session.CellText(kFrequency, "freq", 0, 2));
    session.Select("band", "n78");
    QCOMPARE(label->text(), session.CellText(kFrequency, "freq", 0, 2));
    QVERIFY(label->text().toInt() > 3000000);
}

void PathLossPageTest::sameIndexPickedAgainRefreshesTheLabel()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    session.Type(kFrequency, "freq", 0, 0, "2112000");
    emit session.Selector("freqIdx")->activated(0);
    QCOMPARE(session.Find<QLabel>("m_lblFreq")->text(), QString("2112000"));
}

void PathLossPageTest::selectionChangeIsBusyOnce()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    session.Select("path", "1");
    QCOMPARE(session.busy, (QVector<bool>{true, false}));
    QVERIFY(session.IsIdle());
}

void PathLossPageTest::type1TablesShowAllTheirCells()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    for (int group : {kMain, kDiv}) {
        const QTableWidget *table = session.Table(group, "lna0");
        QCOMPARE(table->minimumSize(), table->maximumSize());
        QCOMPARE(table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(table->width() >=
                table->verticalHeader()->width() + table->horizontalHeader()->length());
    }
    // Its row captions stay in sight.
    auto *area = session.Find<QScrollArea>("m_mainPathArea");
    area->horizontalScrollBar()->setValue(500);
    const QTableWidget *main = session.Table(kMain, "lna0");
    QCOMPARE(main->verticalHeader()->mapTo(area, QPoint(0, 0)).x(), 0);
    QCOMPARE(session.Table(kFrequency, "freq")->horizontalScrollBar()->value(), 500);
}

void PathLossPageTest::exportedEditsComeBackOnImport()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("loss.ini");
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    session.Type(kMain, "lna0", 0, 0, "8.5");
    QVERIFY(session.Run(kExport, file));
    session.Type(kMain, "lna0", 0, 0, "1");
    QVERIFY(session.Run(kImport, file));
    QCOMPARE(session.CellText(kMain, "lna0", 0, 0), QString("8.50000"));
}

QTEST_MAIN(PathLossPageTest)
#include "PathLossPageTest.moc"
