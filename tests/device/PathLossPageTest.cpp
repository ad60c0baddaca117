// The RX path loss page: what it shows, its selections, and what they keep.
#include <QScrollArea>
#include <QStackedWidget>

#include "tests/common/TestClass.h"
#include "tests/device/PathLossTables.h"

namespace {

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
    void switchFromHpmToLpmKeepsTheEditsMadeUnderHpm();
    void wheelOnASelectorWithoutFocusKeepsTheEdits();
    void selectorThatKeptTheFocusDoesNotStoreThePictureFromBeforeARead();
    void bandChangeKeepsTheEditsOfTheBandLeft();
    void editsOfAType2RouteSurviveChangesOfPathGainModeAndFrequency();
    void routeTypeChangesTheTables();
    void powerModeNamesTheColumnsOfThePartialOnTable();
    void labelShowsTheFrequencyOfTheIndex();
    void sameIndexPickedAgainRefreshesTheLabel();
    void selectionChangeIsBusyOnce();
    void type1TablesShowAllTheirCells();
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

QUORLIN_TEST_CLASS(PathLossPageTest)
#include "PathLossPageTest.moc"
