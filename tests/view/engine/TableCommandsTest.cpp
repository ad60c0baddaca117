// The commands of a table, by their keys, on the cells that are marked.
#include <QAction>
#include <QInputDialog>
#include <QtTest>

#include "View/engine/CellText.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/CellGrid.h"
#include "tests/view/engine/ClipboardBox.h"

class CTableCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { PutClipboard("-"); }

    void copyTakesRowsByLines()
    {
        CCellGrid grid;
        grid.MarkCells(1, 2, 0, 3);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(ClipboardNow(), QString("2.00000\t3.00000\n12.00000\t13.00000\n"));
        QCOMPARE(grid.m_status, QString("4 cells copied."));
    }

    void copyWithHeadersTakesTheCaptions()
    {
        CCellGrid grid;
        grid.MarkCells(1, 2, 1, 3);
        grid.Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(ClipboardNow(),
                 QString("\t2\t3\nRow 1\t12.00000\t13.00000\n")
                     .replace("\t2\t3", '\t' + Header(grid, 2) + '\t' + Header(grid, 3)));
    }

    void copyLeavesHiddenRowsOut()
    {
        CCellGrid grid;
        grid.m_table->setRowHidden(1, true);
        grid.MarkCells(0, 0, 2, 0);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(ClipboardNow(), QString("0.00000\n20.00000\n"));
    }

    void copyTakesWhatIsBeingTypedAtItsEnd()
    {
        CCellGrid grid;
        grid.Focus(0, 0);
        grid.Text(0, 0)->selectAll();
        QTest::keyClicks(grid.Cell(0, 0), "1.4");
        grid.Press(Qt::Key_Down, Qt::ShiftModifier);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(ClipboardNow(), QString("1.40625\n10.00000\n"));
    }

    void withoutAMarkTheKeysAreTheEditors()
    {
        CCellGrid grid;
        grid.Focus(1, 1);
        grid.Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(ClipboardNow(), QString("11.00000"));
        grid.Press(Qt::Key_Delete);
        QCOMPARE(grid.Text(1, 1)->text(), QString());
        PutClipboard("7.5");
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Text(1, 1)->text(), QString("7.5"));
        grid.Press(Qt::Key_Return);
        QCOMPARE(grid.Numbers(1), QString("10 7.5 12 13 14"));
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

    void aMarkBehindAPasteIsToldAgain()
    {
        CCellGrid grid;
        PutClipboard("1\t2\n");
        grid.MarkCells(0, 0, 0, 0);
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(grid.Marked(), QString("0,0 0,1"));
        grid.MarkCells(0, 0, 2, 0);
        QCOMPARE(grid.m_status, QString("3 cells marked."));
    }

    void aRefusedPasteLeavesTheMarkAsItIs()
    {
        CCellGrid grid;
        PutClipboard("1\tno number\n");
        grid.MarkCells(0, 0, 0, 0);
        const QString before = grid.Marked();
        grid.Press(Qt::Key_V, Qt::ControlModifier);
        ClosedBox();
        QCOMPARE(grid.Marked(), before);
        QCOMPARE(grid.Numbers(0), QString("0 1 2 3 4"));
    }

    void rowWithANumberAtOneEndAloneIsNotInterpolated()
    {
        for (const int gone : {0, 4}) {
            CCellGrid grid;
            grid.MarkCells(0, 0, 1, 4);
            grid.Box(0, 2)->setValue(30);
            grid.Box(1, 2)->setValue(30);
            grid.m_table->removeCellWidget(0, gone);
            grid.Press(Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
            QCOMPARE(grid.Box(0, 2)->value(), 30.0);
            QCOMPARE(grid.Box(1, 2)->value(), 12.0);
        }
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
