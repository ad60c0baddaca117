// What a table takes from the clipboard: all of it, or nothing.
#include <ctime>
#include <utility>

#include <QTextDocument>
#include <QtTest>

#include "View/engine/ClipboardText.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/CellGrid.h"
#include "tests/view/engine/ClipboardBox.h"

namespace {

class CCpuTimer
{
public:
    // Milliseconds since the last time.
    double Restart()
    {
        const double before = std::exchange(m_since, Now());
        return m_since - before;
    }

private:
    static double Now() { return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

    double m_since = Now();
};

}  // namespace

class CTablePasteTest : public QObject
{
    Q_OBJECT

private slots:
    void pasteTakesWhatASpreadsheetGives_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << "1.5\t2.5\n3.5\t4.5\n";
        QTest::newRow("ends of a PC") << "1.5\t2.5\r\n3.5\t4.5\r\n";
        QTest::newRow("quoted") << "\"1.5\"\t\"2.5\"\n\"3.5\"\t\"4.5\"\n";
        QTest::newRow("with blanks") << " 1.5\t2.5 \n3.5\t4.5";
    }

    void pasteTakesWhatASpreadsheetGives()
    {
        QFETCH(QString, text);
        CCellGrid grid;
        grid.MarkCells(0, 1, 1, 2);
        PutClipboard(text);
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("0 1.5 2.5 3 4"));
        QCOMPARE(grid.Numbers(1), QString("10 3.5 4.5 13 14"));
        QCOMPARE(grid.m_status, QString("Paste: 4 cells changed."));
        QCOMPARE(grid.Marked(), QString("0,1 0,2 1,1 1,2"));
    }

    void blockIsPastedFromOneCellOnAndIsMarked()
    {
        CCellGrid grid;
        grid.Focus(1, 3);
        PutClipboard("1.5\t2.5\n3.5\t4.5\n");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(1), QString("10 11 12 1.5 2.5"));
        QCOMPARE(grid.Numbers(2), QString("20 21 22 3.5 4.5"));
        QCOMPARE(grid.Marked(), QString("1,3 1,4 2,3 2,4"));
    }

    void oneTextGoesIntoAllMarkedCells()
    {
        CCellGrid grid;
        grid.MarkCells(0, 1, 2, 2);
        PutClipboard("1.4\n");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("0 1.40625 1.40625 3 4"));
        QCOMPARE(grid.Numbers(2), QString("20 1.40625 1.40625 23 24"));
    }

    void rowGoesIntoAllMarkedRows()
    {
        CCellGrid grid;
        grid.MarkCells(0, 0, 2, 1);
        PutClipboard("5\t6");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("5 6 2 3 4"));
        QCOMPARE(grid.Numbers(2), QString("5 6 22 23 24"));
    }

    void pastePassesOverHiddenRows()
    {
        CCellGrid grid;
        grid.m_table->setRowHidden(1, true);
        grid.Focus(0, 0);
        PutClipboard("5\n6\n");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("5 1 2 3 4"));
        QCOMPARE(grid.Numbers(1), QString("10 11 12 13 14"));
        QCOMPARE(grid.Numbers(2), QString("6 21 22 23 24"));
    }

    void refusedPasteNamesTheFirstCellAndChangesNothing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("said");
        QTest::newRow("beyond the limits")
            << "5\t6\n7\t77\n"
            << "Paste: Row 1, %1: \"77\" is not allowed. Allowed: -30~40, 5 decimals at most.";
        QTest::newRow("comma") << "5\t6\n7\t1,5\n"
                               << "Paste: Row 1, %1: \"1,5\" has a comma; decimals take a point. "
                                  "Allowed: -30~40, 5 decimals at most.";
        QTest::newRow("empty cell") << "5\t6\n7\t\n"
                                    << "Paste: Row 1, %1: there is no value for it. Allowed: "
                                       "-30~40, 5 decimals at most.";
        QTest::newRow("short row") << "5\t6\n7\n"
                                   << "Paste: Row 1, %1: there is no value for it. Allowed: "
                                      "-30~40, 5 decimals at most.";
        QTest::newRow("word of rich text")
            << "5\t6\n7\t<b>x</b>"
            << "Paste: Row 1, %1: \"<b>x</b>\" is not allowed. Allowed: -30~40, 5 decimals at "
               "most.";
    }

    void refusedPasteNamesTheFirstCellAndChangesNothing()
    {
        QFETCH(QString, text);
        QFETCH(QString, said);
        CCellGrid grid;
        grid.MarkCells(0, 1, 1, 2);
        PutClipboard(text);
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.m_status, said.arg(Header(grid, 2)));
        QTextDocument shown;
        shown.setHtml(ClosedBox());
        QCOMPARE(shown.toPlainText().simplified(), grid.m_status.simplified());
        QCOMPARE(grid.Numbers(0), QString("0 1 2 3 4"));
        QCOMPARE(grid.Numbers(1), QString("10 11 12 13 14"));
    }

    void pasteThatDoesNotFitIsRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::newRow("odd size") << "1\t2\t3" << 2 << 2;
        QTest::newRow("beyond the table") << "1\t2\t3\t4\t5" << 1 << 1;
        QTest::newRow("larger than the mark") << "1\t2\n3\t4\n5\t6" << 2 << 2;
    }

    void pasteThatDoesNotFitIsRefused()
    {
        QFETCH(QString, text);
        QFETCH(int, rows);
        QFETCH(int, columns);
        CCellGrid grid;
        grid.MarkCells(0, 1, rows - 1, columns);
        PutClipboard(text);
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY2(grid.m_status.contains("do not fit into"), qPrintable(grid.m_status));
        QVERIFY(!ClosedBox().isEmpty());
        QCOMPARE(grid.Numbers(0), QString("0 1 2 3 4"));
    }

    void cellThatIsOffTakesItsOwnTextAlone()
    {
        CCellGrid grid;
        grid.Cell(0, 1)->setEnabled(false);
        grid.MarkCells(0, 0, 0, 2);
        PutClipboard("5\t1\t6");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("5 1 6 3 4"));
        PutClipboard("7\t8\t9");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("5 1 6 3 4"));
        QCOMPARE(grid.m_status,
                 QString("Paste: Row 0, %1: the cell cannot be changed now.").arg(Header(grid, 1)));
        QVERIFY(!ClosedBox().isEmpty());
    }

    // The times are of the processor; a busy machine takes longer.
    void largePasteIsOneQuickChange()
    {
        constexpr int kRows = 64;
        constexpr int kColumns = 24;
        CCellGrid grid(
            CCellGrid::Document("pointRange", "{'min':-300,'max':900}", kRows, kColumns));
        CellRows rows;
        for (int r = 0; r < kRows; ++r) {
            rows.emplace_back();
            for (int c = 0; c < kColumns; ++c)
                rows.back().append(QString::number(-r - c / 32.0));
        }
        PutClipboard(TextOfCells(rows));
        grid.Focus(0, 0);
        CCpuTimer timer;
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        qInfo() << "paste" << timer.Restart() << "ms";
        QCOMPARE(grid.m_status, QString("Paste: %1 cells changed.").arg(kRows * kColumns - 1));
        QCOMPARE(grid.Box(63, 23)->text(), QString("-63.71875"));
        grid.Press(Qt::Key_Escape);
        timer.Restart();
        grid.Mark()->MarkAll();
        qInfo() << "mark all" << timer.Restart() << "ms";
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QTRY_VERIFY(ClipboardNow().endsWith("\t-63.71875\n"));
        qInfo() << "copy" << timer.Restart() << "ms";
        grid.Press(Qt::Key_Escape);
        qInfo() << "unmark" << timer.Restart() << "ms";
    }

private:
    static QString Header(const CCellGrid &grid, int column)
    {
        return grid.m_table->model()->headerData(column, Qt::Horizontal).toString();
    }
};

QUORLIN_TEST_CLASS(CTablePasteTest)
#include "TablePasteTest.moc"
