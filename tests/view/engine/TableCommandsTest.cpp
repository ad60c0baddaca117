// The commands of a table, by their keys, on the cells that are marked.
#include "View/engine/TableCommands.h"

#include <ctime>
#include <utility>

#include <QAction>
#include <QClipboard>
#include <QInputDialog>
#include <QMessageBox>
#include <QTextDocument>
#include <QtTest>

#include "View/engine/CellText.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/CellGrid.h"

namespace {

void Put(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

QString Taken()
{
    return QGuiApplication::clipboard()->text();
}

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

// The text of the box that comes, which is closed; empty when none comes.
QString ClosedBox()
{
    QString text;
    QTimer::singleShot(0, [&text] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            text = box->text();
            box->close();
        }
    });
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    return text;
}

}  // namespace

class CTableCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { Put("-"); }

    void copyTakesRowsByLines()
    {
        CCellGrid grid;
        grid.MarkCells(1, 2, 0, 3);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Taken(), QString("2.00000\t3.00000\n12.00000\t13.00000\n"));
        QCOMPARE(grid.m_status, QString("4 cells copied."));
    }

    void copyWithHeadersTakesTheCaptions()
    {
        CCellGrid grid;
        grid.MarkCells(1, 2, 1, 3);
        grid.Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Taken(), QString("\t2\t3\nRow 1\t12.00000\t13.00000\n")
                              .replace("\t2\t3", '\t' + Header(grid, 2) + '\t' + Header(grid, 3)));
    }

    void copyLeavesHiddenRowsOut()
    {
        CCellGrid grid;
        grid.m_table->setRowHidden(1, true);
        grid.MarkCells(0, 0, 2, 0);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Taken(), QString("0.00000\n20.00000\n"));
    }

    void copyTakesWhatIsBeingTypedAtItsEnd()
    {
        CCellGrid grid;
        grid.Focus(0, 0);
        grid.Text(0, 0)->selectAll();
        QTest::keyClicks(grid.Cell(0, 0), "1.4");
        grid.Press(Qt::Key_Down, Qt::ShiftModifier);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Taken(), QString("1.40625\n10.00000\n"));
    }

    void withoutAMarkTheKeysAreTheEditors()
    {
        CCellGrid grid;
        grid.Focus(1, 1);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Taken(), QString("11.00000"));
        grid.Press(Qt::Key_Delete);
        QCOMPARE(grid.Text(1, 1)->text(), QString());
        Put("7.5");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Text(1, 1)->text(), QString("7.5"));
        grid.Press(Qt::Key_Return);
        QCOMPARE(grid.Numbers(1), QString("10 7.5 12 13 14"));
    }

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
        Put(text);
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
        Put("1.5\t2.5\n3.5\t4.5\n");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(1), QString("10 11 12 1.5 2.5"));
        QCOMPARE(grid.Numbers(2), QString("20 21 22 3.5 4.5"));
        QCOMPARE(grid.Marked(), QString("1,3 1,4 2,3 2,4"));
    }

    void oneTextGoesIntoAllMarkedCells()
    {
        CCellGrid grid;
        grid.MarkCells(0, 1, 2, 2);
        Put("1.4\n");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("0 1.40625 1.40625 3 4"));
        QCOMPARE(grid.Numbers(2), QString("20 1.40625 1.40625 23 24"));
    }

    void rowGoesIntoAllMarkedRows()
    {
        CCellGrid grid;
        grid.MarkCells(0, 0, 2, 1);
        Put("5\t6");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("5 6 2 3 4"));
        QCOMPARE(grid.Numbers(2), QString("5 6 22 23 24"));
    }

    void pastePassesOverHiddenRows()
    {
        CCellGrid grid;
        grid.m_table->setRowHidden(1, true);
        grid.Focus(0, 0);
        Put("5\n6\n");
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
        Put(text);
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
        Put(text);
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
        Put("5\t1\t6");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("5 1 6 3 4"));
        Put("7\t8\t9");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("5 1 6 3 4"));
        QCOMPARE(grid.m_status,
                 QString("Paste: Row 0, %1: the cell cannot be changed now.").arg(Header(grid, 1)));
        QVERIFY(!ClosedBox().isEmpty());
    }

    void readOnlyCellIsNotChanged()
    {
        CCellGrid grid;
        grid.Box(0, 1)->setReadOnly(true);
        grid.MarkCells(0, 0, 0, 2);
        grid.Press(Qt::Key_Delete);
        QCOMPARE(grid.Numbers(0), QString("0 1 0 3 4"));
    }

    void deleteSetsToZeroOrTheNearestAllowedValue_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("expected");
        QTest::newRow("zero") << "pointRange"
                              << "{'min':-30,'max':40}"
                              << "0.00000";
        QTest::newRow("above zero") << "pointRange"
                                    << "{'min':3,'max':40}"
                                    << "3.00000";
        QTest::newRow("below zero") << "pointRange"
                                    << "{'min':-30,'max':-2}"
                                    << "-2.00000";
        QTest::newRow("ranges without zero") << "range"
                                             << "{'min':0,'max':99,'rangeCheck':'50~60,5,9'}"
                                             << "5";
        QTest::newRow("ranges with zero") << "range"
                                          << "{'min':0,'max':99,'rangeCheck':'50~60,0'}"
                                          << "0";
        QTest::newRow("unsigned") << "unsignedRange"
                                  << "{'min':'2','max':'255','displayBase':16}"
                                  << "2";
    }

    void deleteSetsToZeroOrTheNearestAllowedValue()
    {
        QFETCH(QString, type);
        QFETCH(QString, entry);
        CCellGrid grid(CCellGrid::Document(type, entry));
        grid.MarkCells(0, 1, 1, 2);
        grid.Press(Qt::Key_Delete);
        QTEST(CellText(grid.Cell(0, 1)), "expected");
        QTEST(CellText(grid.Cell(1, 2)), "expected");
    }

    void fillRightGivesEachRowItsFirstValue()
    {
        CCellGrid grid;
        grid.Cell(0, 3)->setEnabled(false);
        grid.MarkCells(0, 1, 1, 4);
        grid.Press(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(grid.Numbers(0), QString("0 1 1 3 1"));
        QCOMPARE(grid.Numbers(1), QString("10 11 11 11 11"));
        QCOMPARE(grid.Numbers(2), QString("20 21 22 23 24"));
        QCOMPARE(grid.m_status, QString("Fill right: 5 cells changed."));
    }

    void offsetIsAskedForAndAddedToAllOrNone()
    {
        CCellGrid grid;
        grid.MarkCells(0, 1, 0, 2);
        AddOffset(grid, "2.5");
        QCOMPARE(grid.Numbers(0), QString("0 3.5 4.5 3 4"));
        QCOMPARE(grid.m_status, QString("Add an offset: 2 cells changed."));
        AddOffset(grid, "36");
        QCOMPARE(grid.Numbers(0), QString("0 3.5 4.5 3 4"));
        QVERIFY2(grid.m_status.contains("\"40.50000\" is not allowed"), qPrintable(grid.m_status));
        QVERIFY(!ClosedBox().isEmpty());
    }

    void dialogOfTheOffsetGoesWithThePage()
    {
        auto grid = std::make_unique<CCellGrid>();
        grid->MarkCells(0, 1, 0, 2);
        grid->Press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
        const QPointer<QWidget> dialog = grid->m_page.findChild<QInputDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        grid.reset();
        QVERIFY(!dialog);
    }

    void interpolateDrawsALineBetweenTheEndsOfEachRow()
    {
        CCellGrid grid;
        grid.Box(0, 0)->setValue(1);
        grid.Box(0, 4)->setValue(-2);
        grid.Box(1, 0)->setValue(0);
        grid.Box(1, 4)->setValue(1);
        grid.MarkCells(0, 4, 1, 0);
        grid.Press(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(grid.Numbers(0), QString("1 0.25 -0.5 -1.25 -2"));
        QCOMPARE(grid.Numbers(1), QString("0 0.25 0.5 0.75 1"));
    }

    void interpolationGoesToTheStepsOfTheWire()
    {
        CCellGrid grid;
        grid.Box(0, 0)->setValue(0);
        grid.Box(0, 3)->setValue(1);
        grid.MarkCells(0, 0, 0, 3);
        grid.Press(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(grid.Box(0, 1)->text(), QString("0.34375"));
        QCOMPARE(grid.Box(0, 2)->text(), QString("0.65625"));
    }

    void commandWithTooFewCellsSaysSo()
    {
        CCellGrid grid;
        grid.MarkCells(0, 0, 1, 0);
        grid.Press(Qt::Key_R, Qt::ControlModifier);
        QVERIFY2(grid.m_status.contains("two marked columns"), qPrintable(grid.m_status));
        ClosedBox();
        QApplication::setActiveWindow(&grid.m_page);
        grid.Press(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY2(grid.m_status.contains("three marked columns"), qPrintable(grid.m_status));
        ClosedBox();
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
        Put(TextOfCells(rows));
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
        qInfo() << "copy" << timer.Restart() << "ms";
        grid.Press(Qt::Key_Escape);
        qInfo() << "unmark" << timer.Restart() << "ms";
        QVERIFY(Taken().endsWith("\t-63.71875\n"));
    }

    void undoKeysAreThePagesActionsWithAMark()
    {
        CCellGrid grid;
        QAction undo;
        QAction redo;
        undo.setObjectName("m_actionUndo");
        redo.setObjectName("m_actionRedo");
        undo.setParent(&grid.m_page);
        redo.setParent(&grid.m_page);
        QSignalSpy undone(&undo, &QAction::triggered);
        QSignalSpy redone(&redo, &QAction::triggered);
        grid.Focus(0, 0);
        grid.Press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(undone.size(), 0);
        grid.MarkCells(0, 0, 0, 1);
        grid.Press(Qt::Key_Z, Qt::ControlModifier);
        grid.Press(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(undone.size(), 1);
        QCOMPARE(redone.size(), 1);
        undo.setParent(nullptr);
        redo.setParent(nullptr);
    }

    void windowShortcutDoesNotTakeAMarkedTablesKey()
    {
        CCellGrid grid;
        QAction copy(&grid.m_page);
        copy.setShortcut(QKeySequence("Ctrl+R"));
        grid.m_page.addAction(&copy);
        QSignalSpy triggered(&copy, &QAction::triggered);
        grid.MarkCells(0, 1, 0, 2);
        grid.Press(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(triggered.size(), 0);
        QCOMPARE(grid.Numbers(0), QString("0 1 1 3 4"));
        grid.Press(Qt::Key_Escape);
        grid.Press(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(triggered.size(), 1);
    }

private:
    static QString Header(const CCellGrid &grid, int column)
    {
        return grid.m_table->model()->headerData(column, Qt::Horizontal).toString();
    }

    static void AddOffset(const CCellGrid &grid, const QString &number)
    {
        grid.Press(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
        auto *dialog = grid.m_page.findChild<QInputDialog *>();
        QVERIFY(dialog);
        auto *box = dialog->findChild<QDoubleSpinBox *>();
        box->selectAll();
        QTest::keyClicks(box, number);
        QTest::keyClick(box, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
    }
};

QUORLIN_TEST_CLASS(CTableCommandsTest)
#include "TableCommandsTest.moc"
