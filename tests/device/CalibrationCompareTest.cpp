// Compare of the calibration pages: the DUT, the page and files side by side, and the way to a value.
#include <QAction>
#include <QClipboard>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QThreadPool>

#include "tests/common/TestClass.h"
#include "tests/device/CompareSession.h"

namespace {

struct SEdit
{
    const char *name;
    const char *page;
    int group;
    const char *member;
    int row;
    int column;
    const char *text;
    const char *field;  // field and index of the difference
};

constexpr SEdit kEdits[] = {
    {"path loss", kPathLossPage, 2, "lna0", 1, 3, "7.25", "loss.hpm|3, 1"},
    {"APT", kAptPage, 7, "paHighPaGain", 2, 5, "7.25", "paGain|2, 5"},
};

void AddPages()
{
    QTest::addColumn<int>("edit");
    for (int i = 0; i < int(std::size(kEdits)); ++i)
        QTest::newRow(kEdits[i].name) << i;
}

QComboBox *Filter(const CCompareSession &session, const char *name)
{
    return session.InWindow<QComboBox>(name);
}

// The same with every value of two tables zeroed: hundreds of differences.
bool HasMany(CCompareSession &session)
{
    if (!IsReady(session))
        return false;
    session.Press("m_btnResetPaGain");
    session.Press("m_btnResetPd");
    return session.Compare(eDutSide, ePageSide) && CountOf(session) > 20;
}

}  // namespace

class CalibrationCompareTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_folder.isValid()); }

    void anEditIsTheOneDifferenceInEveryPairing_data() { AddPages(); }
    void anEditIsTheOneDifferenceInEveryPairing();
    void comparisonChangesNeitherFlashNorPage_data() { AddPages(); }
    void comparisonChangesNeitherFlashNorPage();
    void whatThePageHasNotReadIsLackingThere();
    void filtersShowARouteAFieldAndASize();
    void columnsSortByNumberNotByText();
    void copyGivesHeadersAndTheSelectedRows();
    void doubleClickGoesToTheCellOnThePage_data() { AddPages(); }
    void doubleClickGoesToTheCellOnThePage();
    void valueOfAnotherSelectionIsGoneToWithEditsKept();
    void returnOnAStatisticShowsItsDifferences();
    void keysAloneOpenCompareAndGo();
    void comparingLeavesTheFocusAtCompare();

private:
    QString File(const char *name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void CalibrationCompareTest::anEditIsTheOneDifferenceInEveryPairing()
{
    QFETCH(int, edit);
    const SEdit &e = kEdits[edit];
    CCompareSession session(e.page);
    QVERIFY(IsReady(session));
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QVERIFY2(session.Summary().startsWith("Both sides are the same."),
             qPrintable(session.Summary()));
    QVERIFY(session.Run(kExport, File("before.ini")));
    const QString before = session.CellText(e.group, e.member, e.row, e.column);
    session.Type(e.group, e.member, e.row, e.column, e.text);
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QCOMPARE(CountOf(session), 1);
    const QString row = session.Rows()[0];
    QVERIFY2(row.contains(QString("|") + e.field + '|'), qPrintable(row));
    const double was = before.toDouble();
    QVERIFY2(row.endsWith(QString("|%1 dB|7.25 dB|%2 dB").arg(was).arg(7.25 - was)),
             qPrintable(row));
    QCOMPARE(session.StatusBar(), QString("Compare done: 1 differences."));

    QVERIFY(session.Run(kExport, File("after.ini")));
    const struct
    {
        ESideChoice left, right;
        const char *leftFile, *rightFile;
        int count;
    } pairs[] = {
        {ePageSide, eDutSide, "", "", 1},
        {eFileSide, ePageSide, "before.ini", "", 1},
        {ePageSide, eFileSide, "", "before.ini", 1},
        {eFileSide, eDutSide, "after.ini", "", 1},
        {eFileSide, eFileSide, "before.ini", "after.ini", 1},
        {eDutSide, eFileSide, "", "before.ini", 0},
        {eFileSide, ePageSide, "after.ini", "", 0},
        {eDutSide, eDutSide, "", "", 0},
    };
    for (const auto &pair : pairs) {
        QVERIFY(session.Compare(pair.left, pair.right, File(pair.leftFile), File(pair.rightFile)));
        QVERIFY2(CountOf(session) == pair.count, qPrintable(session.Summary()));
    }
}

void CalibrationCompareTest::comparisonChangesNeitherFlashNorPage()
{
    QFETCH(int, edit);
    const SEdit &e = kEdits[edit];
    CCompareSession session(e.page);
    QVERIFY(IsReady(session));
    QVERIFY(session.Run(kExport, File("other.ini")));
    session.Type(e.group, e.member, e.row, e.column, e.text);
    QTest::keyClick(session.Cell(e.group, e.member, e.row, e.column), Qt::Key_Return);
    const QStringList shown = session.TableTexts(e.group, e.member);
    const int writes = CountCalls(kWriteCall);
    QVERIFY(session.Compare(eDutSide, eFileSide, {}, File("other.ini")));
    QCOMPARE(session.TableTexts(e.group, e.member), shown);
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QCOMPARE(CountOf(session), 1);
    QCOMPARE(CountCalls(kWriteCall), writes);
}

void CalibrationCompareTest::whatThePageHasNotReadIsLackingThere()
{
    CCompareSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.OpenCompare());
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QVERIFY(CountOf(session) > 0);
    for (const QString &row : session.Rows())
        QVERIFY2(row.endsWith("|record||there|lacking|"), qPrintable(row));
    QVERIFY2(session.Summary().endsWith("right has 0 records."), qPrintable(session.Summary()));
}

void CalibrationCompareTest::filtersShowARouteAFieldAndASize()
{
    CCompareSession session(kAptPage);
    QVERIFY(HasMany(session));
    const int all = CountOf(session);
    QComboBox *fields = Filter(session, "m_field");
    QCOMPARE(fields->count(), 3);  // all, and the two tables
    fields->setCurrentIndex(2);
    QVERIFY(fields->currentText().startsWith("powerDetector ("));
    const int detector = CountOf(session);
    QVERIFY(detector > 0 && detector < all);
    for (const QString &row : session.Rows())
        QVERIFY(row.contains("|powerDetector|"));
    QVERIFY(session.InWindow<QLabel>("m_shown")->text() ==
            QString("%1 of %2 shown").arg(detector).arg(all));

    auto *least = session.InWindow<QDoubleSpinBox>("m_least");
    least->setValue(5);
    QVERIFY(CountOf(session) < detector);
    for (const QString &row : session.Rows())
        QVERIFY(qAbs(row.section('|', -1).section(' ', 0, 0).toDouble()) >= 5);
    fields->setCurrentIndex(0);
    least->setValue(0);
    QCOMPARE(CountOf(session), all);

    QComboBox *routes = Filter(session, "m_route");
    QCOMPARE(routes->count(), 2);
    routes->setCurrentIndex(1);
    QCOMPARE(CountOf(session), all);
}

void CalibrationCompareTest::columnsSortByNumberNotByText()
{
    CCompareSession session(kAptPage);
    QVERIFY(HasMany(session));
    const QStringList unsorted = session.Rows();
    QHeaderView *header = session.Differences()->horizontalHeader();
    const auto click = [&](int column) {
        const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    };
    const auto sizes = [&] {
        QVector<double> sizes;
        for (const QString &row : session.Rows())
            sizes.append(qAbs(row.section('|', -1).section(' ', 0, 0).toDouble()));
        return sizes;
    };
    click(7);
    QVector<double> sorted = sizes();
    QVERIFY(std::is_sorted(sorted.begin(), sorted.end()));
    click(7);
    sorted = sizes();
    QVERIFY(std::is_sorted(sorted.rbegin(), sorted.rend()));
    click(4);
    click(4);
    QStringList rows = session.Rows();
    QVERIFY(rows != unsorted);
    rows.sort();
    QStringList same = unsorted;
    same.sort();
    QCOMPARE(rows, same);
}

void CalibrationCompareTest::copyGivesHeadersAndTheSelectedRows()
{
    CCompareSession session(kAptPage);
    QVERIFY(HasMany(session));
    const QString headers = "Route\tBand\tRegion\tField\tIndex\tLeft\tRight\tDifference\n";
    QTest::mouseClick(session.InWindow<QPushButton>("m_copy"), Qt::LeftButton);
    QString all = headers;
    for (const QString &row : session.Rows())
        all += QString(row).replace('|', '\t') + '\n';
    QCOMPARE(QApplication::clipboard()->text(), all);

    QTableView *table = session.Differences();
    table->setFocus();
    table->setCurrentIndex(table->model()->index(2, 0));
    QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = all.split('\n');
    QCOMPARE(QApplication::clipboard()->text(), headers + lines[3] + '\n' + lines[4] + '\n');
}

void CalibrationCompareTest::doubleClickGoesToTheCellOnThePage()
{
    QFETCH(int, edit);
    const SEdit &e = kEdits[edit];
    CCompareSession session(e.page);
    QVERIFY(IsReady(session));
    session.Type(e.group, e.member, e.row, e.column, e.text);
    QVERIFY(session.Compare(eDutSide, ePageSide));
    session.Select("band", "n78");
    QVERIFY(session.ClickTab("RSSI"));
    QTableView *table = session.Differences();
    const QPoint place = table->visualRect(table->model()->index(0, 3)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
    QAbstractSpinBox *cell = session.Cell(e.group, e.member, e.row, e.column);
    QVERIFY(WaitUntil([&] {
        return session.Selector("band")->currentText() != "n78" &&
               session.Window()->focusWidget() == cell;
    }));
    QVERIFY(!cell->visibleRegion().isEmpty());
    QCOMPARE(cell->text(), QString("7.25000"));
}

void CalibrationCompareTest::valueOfAnotherSelectionIsGoneToWithEditsKept()
{
    CCompareSession session(kPathLossPage);
    QVERIFY(IsReady(session));
    session.Select("band", "n78");
    session.Select("routeType", "Type2");
    session.Select("powerMode", "LPM");
    session.Select("freqIdx", "2");
    session.Select("path", "1");
    session.Select("type2GainModeIdx", "G1");
    session.Type(7, "gain0", 0, 0, "-4.5");
    session.Select("powerMode", "HPM");
    session.Select("freqIdx", "0");
    session.Select("path", "0");
    session.Select("type2GainModeIdx", "G0");
    session.Type(5, "main", 0, 0, "3.75");
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QCOMPARE(CountOf(session), 2);
    session.Type(5, "main", 0, 1, "2.5");  // behind the comparison
    QTableView *table = session.Differences();
    const bool isFirst = session.Rows()[0].contains("lpm");
    table->setCurrentIndex(table->model()->index(isFirst ? 0 : 1, 0));
    session.InWindow<QPushButton>("m_goTo")->click();
    QCOMPARE(session.Window()->focusWidget(), session.Cell(7, "gain0", 0, 0));
    QCOMPARE(session.CellText(7, "gain0", 0, 0), QString("-4.50000"));
    QCOMPARE(session.Selector("powerMode")->currentText(), QString("LPM"));
    QVERIFY(session.Compare(eDutSide, ePageSide));
    QCOMPARE(CountOf(session), 3);
}

void CalibrationCompareTest::returnOnAStatisticShowsItsDifferences()
{
    CCompareSession session(kAptPage);
    QVERIFY(HasMany(session));
    auto *fields = session.InWindow<QTableWidget>("m_fields");
    QCOMPARE(fields->rowCount(), 2);
    QCOMPARE(fields->item(1, 0)->text(), QString("powerDetector"));
    session.InWindow<QTabWidget>("m_tabs")->setCurrentIndex(1);
    fields->setFocus();
    fields->setCurrentCell(1, 0);
    QTest::keyClick(fields, Qt::Key_Return);
    QCOMPARE(QString::number(CountOf(session)), fields->item(1, 1)->text());
    QVERIFY(session.Differences()->isVisible());
}

void CalibrationCompareTest::keysAloneOpenCompareAndGo()
{
    const SEdit &e = kEdits[1];
    CCompareSession session(e.page);
    QVERIFY(session.ShowAndWait() && session.Run(kRead));
    session.Type(e.group, e.member, e.row, e.column, e.text);
    QApplication::setActiveWindow(session.Window());
    QTest::keyClick(session.Window()->focusWidget(), Qt::Key_C, Qt::AltModifier);
    QVERIFY(WaitUntil([&] { return session.CompareWindow() != nullptr; }));
    QApplication::setActiveWindow(session.CompareWindow());
    QTest::keyClick(session.CompareWindow()->focusWidget(), Qt::Key_Return);
    QVERIFY(WaitUntil([&] { return session.IsIdle() && CountOf(session) == 1; }));
    QTableView *table = session.Differences();
    table->setFocus(Qt::TabFocusReason);
    QTest::keyClick(table, Qt::Key_Return);
    QCOMPARE(session.Window()->focusWidget(), session.Cell(e.group, e.member, e.row, e.column));
    QTest::keyClick(session.CompareWindow(), Qt::Key_Escape);
    QVERIFY(!session.CompareWindow()->isVisible());
}

// The button is off meanwhile; a key that comes then chooses no filter.
void CalibrationCompareTest::comparingLeavesTheFocusAtCompare()
{
    CCompareSession session(kAptPage);
    QVERIFY(IsReady(session));
    QApplication::setActiveWindow(session.CompareWindow());
    session.Choose("left", eDutSide);
    session.Choose("right", ePageSide);
    auto *compare = session.InWindow<QPushButton>("m_compare");
    compare->setFocus();
    VondSim_Hold(kReadCall);
    QTest::keyClick(compare, Qt::Key_Space);
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000) == 1);
    QVERIFY(!compare->isEnabled());
    const QWidget *meanwhile = session.CompareWindow()->focusWidget();
    VondSim_Release(kReadCall);
    QVERIFY(WaitUntil([&] { return session.IsIdle() && compare->isEnabled(); }));
    QCOMPARE(meanwhile ? meanwhile->objectName() : QString(), QString());
    QCOMPARE(session.CompareWindow()->focusWidget(), compare);
}

QUORLIN_TEST_CLASS(CalibrationCompareTest)
#include "CalibrationCompareTest.moc"
