// Results are marked by mouse and keyboard and copied with their captions, however many rows there are.
#include <ctime>
#include <functional>
#include <numeric>

#include <QAction>
#include <QClipboard>
#include <QLabel>
#include <QTableWidget>
#include <QtTest>

#include "View/editors/TableKeys.h"
#include "View/engine/RowCopy.h"
#include "View/engine/TableCommands.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/view/engine/ClipboardBox.h"

namespace {

constexpr int kMillion = 1000000;

// A table of results: items in its older rows, labels in its newest ones.
class CReadTable : public QTableWidget
{
public:
    CReadTable(int rows, int columns, int labels = 2) : QTableWidget(rows, columns)
    {
        for (int c = 0; c < columns; ++c)
            setHorizontalHeaderItem(c, new QTableWidgetItem(QString(QChar('A' + c))));
        auto *keys = new CTableKeys(this);
        keys->SetForReading(true);
        new CTableCommands(this, keys);
        for (int r = 0; r < qMin(rows, 200); ++r) {
            for (int c = 0; c < columns; ++c)
                r < rows - labels ? setItem(r, c, new QTableWidgetItem(Text(r, c)))
                                  : setCellWidget(r, c, new QLabel(Text(r, c)));
        }
        resize(600, 300);
        show();
        QApplication::setActiveWindow(this);
        setFocus();
    }

    static QString Text(int row, int column) { return QString("%1.%2").arg(row).arg(column); }

    void Press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(this, static_cast<Qt::Key>(key), modifiers);
    }

    QPoint Place(int row, int column) { return visualRect(model()->index(row, column)).center(); }
};

double ThreadMs()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

// The longest turn of the event loop until a copy is done, by the time of this thread.
double LongestTurn(const std::function<bool()> &isDone)
{
    double longest = 0;
    while (!isDone()) {
        const double before = ThreadMs();
        QCoreApplication::processEvents();
        longest = std::max(longest, ThreadMs() - before);
    }
    return longest;
}

}  // namespace

class TableCopyTest : public QObject
{
    Q_OBJECT

private slots:
    void markOfTheMouseIsCopiedWithItsCaptions()
    {
        CReadTable table(4, 3);
        QTest::mousePress(table.viewport(), Qt::LeftButton, {}, table.Place(1, 1));
        QMouseEvent move(QEvent::MouseMove, table.Place(2, 2), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(table.viewport(), &move);
        QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, table.Place(2, 2));
        table.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QString("\tB\tC\n2\t1.1\t1.2\n3\t2.1\t2.2\n"));
        table.Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("1.1\t1.2\n2.1\t2.2\n"));
    }

    void plainClickOnALabelMarksIt()
    {
        CReadTable table(4, 3);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.Place(3, 1));
        table.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("\tB\n4\t3.1\n"));
    }

    void keysMoveAndGrowTheMark()
    {
        CReadTable table(30, 3);
        table.Press(Qt::Key_Down);  // the first cell
        table.Press(Qt::Key_Down);
        table.Press(Qt::Key_Right);
        table.Press(Qt::Key_Right, Qt::ShiftModifier);
        table.Press(Qt::Key_Down, Qt::ShiftModifier);
        table.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QString("\tB\tC\n2\t1.1\t1.2\n3\t2.1\t2.2\n"));
        table.Press(Qt::Key_End, Qt::ControlModifier);
        table.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("\tC\n30\t29.2\n"));
        table.Press(Qt::Key_Home, Qt::ControlModifier);
        table.Press(Qt::Key_PageDown, Qt::ShiftModifier);
        table.Press(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QGuiApplication::clipboard()->text().count('\n') > 5);
    }

    void withoutAMarkAllIsCopied()
    {
        CReadTable table(2, 2, 1);
        table.hideColumn(0);
        table.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("\tB\n1\t0.1\n2\t1.1\n"));
    }

    void menuHasTheCommandsOfResultsAlone()
    {
        const CReadTable table(2, 2);
        QStringList texts;
        for (const QAction *action : CTableCommands::Of(&table)->Actions())
            texts.append(action->text());
        QCOMPARE(texts, (QStringList{"Copy cells\tCtrl+Shift+C", "Copy with headers\tCtrl+C",
                                     "Mark all cells\tCtrl+A"}));
    }

    void resultsAreNotChangedByKeys()
    {
        CReadTable table(4, 2);
        QGuiApplication::clipboard()->setText("7\t8\n");
        table.Press(Qt::Key_A, Qt::ControlModifier);
        for (const int key : {int(Qt::Key_Delete), int(Qt::Key_5)})
            table.Press(key);
        table.Press(Qt::Key_V, Qt::ControlModifier);
        table.Press(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(table.item(0, 1)->text(), CReadTable::Text(0, 1));
    }

    // All at once it would take a second and more.
    void aMillionRowsAreCopiedWithoutAStall()
    {
        QGuiApplication::clipboard()->clear();
        CReadTable table(kMillion, 8, 0);
        table.item(0, 0)->setText("first");
        QCoreApplication::processEvents();
        const double before = ThreadMs();
        table.Press(Qt::Key_A, Qt::ControlModifier);
        const double marking = ThreadMs() - before;
        table.Press(Qt::Key_C, Qt::ControlModifier);
        const double begin = ThreadMs() - before - marking;
        QVERIFY(QGuiApplication::clipboard()->text().isEmpty());  // it goes on
        const double turn =
            LongestTurn([] { return !QGuiApplication::clipboard()->text().isEmpty(); });
        const QString text = QGuiApplication::clipboard()->text();
        QCOMPARE(text.count('\n'), kMillion + 1);
        QVERIFY(text.startsWith("\tA\tB\tC\tD\tE\tF\tG\tH\n1\tfirst\t0.1"));
        qInfo("marking %.1f ms, begin %.1f ms, longest turn %.1f ms", marking, begin, turn);
        constexpr double kMost = 100;  // of instrumented code, too
        QVERIFY2(marking < kMost && begin < kMost && turn < kMost,
                 qPrintable(QString("%1 %2 %3").arg(marking).arg(begin).arg(turn)));
    }

    void aCopyUnderWayEndsWhenItsRowsGo()
    {
        QGuiApplication::clipboard()->setText("before");
        QTableWidget table(kMillion, 4);
        CRowCopy copy;
        bool isDone = true;
        std::vector<int> rows(kMillion);
        std::iota(rows.begin(), rows.end(), 0);
        copy.Start({.rows = rows,
                    .line =
                        [&](int row) {
                            return QStringList(table.model()->index(row, 0).data().toString());
                        }},
                   table.model(), [&](bool is) { isDone = is; });
        QVERIFY(copy.IsUnderWay());
        table.setRowCount(0);
        QVERIFY(!copy.IsUnderWay() && !isDone);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("before"));
    }

    void aTableMayGoWhileItIsCopied()
    {
        {
            CReadTable table(kMillion, 2, 0);
            table.Press(Qt::Key_C, Qt::ControlModifier);
        }
        QCoreApplication::processEvents();
    }
};

QUORLIN_TEST_CLASS(TableCopyTest)
#include "TableCopyTest.moc"
