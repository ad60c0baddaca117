// Which cells of a table are marked, by the keys and by the mouse.
#include "tests/common/TestClass.h"
#include "tests/view/engine/CellGrid.h"

class CTableMarkTest : public QObject
{
    Q_OBJECT

private slots:
    void shiftAndArrowsMarkARectangle()
    {
        CCellGrid grid;
        grid.Focus(1, 1);
        grid.Press(Qt::Key_Right, Qt::ShiftModifier, 2);
        QCOMPARE(grid.Marked(), QString("1,1 1,2 1,3"));
        grid.Press(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString("0,1 0,2 0,3 1,1 1,2 1,3"));
        grid.Press(Qt::Key_Left, Qt::ShiftModifier, 3);
        QCOMPARE(grid.Marked(), QString("0,0 0,1 1,0 1,1"));
        QVERIFY(grid.Cell(1, 1)->hasFocus());
        QCOMPARE(grid.m_status, QString("4 cells marked."));
    }

    void markStaysInTheTable()
    {
        CCellGrid grid;
        grid.Focus(0, 0);
        grid.Press(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString("0,0"));
        grid.Press(Qt::Key_Down, Qt::ShiftModifier, 9);
        QCOMPARE(grid.Marked(), QString("0,0 1,0 2,0"));
    }

    void shiftAndClickMarksUpToTheCell()
    {
        CCellGrid grid;
        grid.Click(2, 2);
        QCOMPARE(grid.Marked(), QString());
        grid.Click(1, 3, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString("1,2 1,3 2,2 2,3"));
        QVERIFY(grid.Cell(2, 2)->hasFocus());
        grid.Click(2, 1, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString("2,1 2,2"));
        grid.Press(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString("1,1 1,2 2,1 2,2"));
    }

    void plainClickArrowKeyOrEscapeEndsTheMark_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("click") << 0;
        QTest::newRow("arrow") << int(Qt::Key_Down);
        QTest::newRow("enter") << int(Qt::Key_Return);
        QTest::newRow("escape") << int(Qt::Key_Escape);
        QTest::newRow("digit") << int(Qt::Key_5);
    }

    void plainClickArrowKeyOrEscapeEndsTheMark()
    {
        QFETCH(int, key);
        CCellGrid grid;
        grid.MarkCells(0, 0, 1, 1);
        if (key != 0)
            grid.Press(static_cast<Qt::Key>(key));
        else
            grid.Click(2, 2);
        QCOMPARE(grid.Marked(), QString());
        QVERIFY(grid.Mark()->IsEmpty());
    }

    void rightClickKeepsAMarkThatItIsIn()
    {
        CCellGrid grid;
        grid.MarkCells(0, 0, 1, 1);
        grid.Click(1, 0, Qt::NoModifier, Qt::RightButton);
        QCOMPARE(grid.Marked(), QString("0,0 0,1 1,0 1,1"));
        grid.Click(2, 0, Qt::NoModifier, Qt::RightButton);
        QCOMPARE(grid.Marked(), QString());
    }

    void headerMarksItsRow()
    {
        CCellGrid grid;
        QHeaderView *header = grid.m_table->verticalHeader();
        const QPoint at(4, header->sectionViewportPosition(1) + 4);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(grid.Marked(), QString("1,0 1,1 1,2 1,3 1,4"));
        QCOMPARE(grid.m_status, QString("5 cells marked."));
        // The keys work on from there.
        QTest::keyClick(grid.m_table, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(grid.Mark()->Rows(), (std::vector<int>{1, 2}));
        QTest::keyClick(grid.m_table, Qt::Key_Escape);
        QCOMPARE(grid.Marked(), QString());
    }

    void controlAMarksAllBehindTheText()
    {
        CCellGrid grid;
        grid.Focus(1, 1);
        grid.Text(1, 1)->deselect();
        grid.Press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(grid.Marked(), QString());
        QVERIFY(grid.Text(1, 1)->hasSelectedText());
        grid.Press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(grid.Marked().count(' '), 14);
        grid.Press(Qt::Key_Escape);
        grid.Press(Qt::Key_Right, Qt::ShiftModifier);
        grid.Press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(grid.Marked().count(' '), 14);
    }

    void textThatIsBeingTypedKeepsShiftAndArrowsUpToItsEnd()
    {
        CCellGrid grid;
        grid.Focus(1, 1);
        QTest::keyClicks(grid.Cell(1, 1), "12");
        grid.Press(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(grid.Text(1, 1)->selectedText(), QString("2"));
        QCOMPARE(grid.Marked(), QString());
        grid.Press(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString());
        grid.Press(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString("1,0 1,1"));
        QCOMPARE(grid.Text(1, 1)->text(), QString("12.00000"));  // the edit is over
    }

    void textThatIsNotBeingTypedGivesShiftAndArrowsAway()
    {
        CCellGrid grid;
        grid.Click(1, 1);
        grid.Text(1, 1)->setCursorPosition(1);
        grid.Press(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString("1,1 1,2"));
    }

    void disabledCellIsMarkedByKeysAndByTheMouse()
    {
        CCellGrid grid;
        grid.Cell(1, 2)->setEnabled(false);
        grid.Focus(1, 1);
        grid.Press(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(grid.Marked(), QString("1,1 1,2"));
        grid.Press(Qt::Key_Escape);
        QTest::mouseClick(grid.m_table->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          grid.Cell(1, 2)->geometry().center());
        QCOMPARE(grid.Marked(), QString("1,1 1,2"));
        QTest::mouseClick(grid.m_table->viewport(), Qt::LeftButton, {},
                          grid.Cell(1, 2)->geometry().center());
        QCOMPARE(grid.Marked(), QString());
    }

    void hiddenRowsAndColumnsAreNoPartOfAMark()
    {
        CCellGrid grid;
        grid.m_table->setRowHidden(1, true);
        grid.m_table->setColumnHidden(2, true);
        grid.Focus(0, 1);
        grid.Press(Qt::Key_Down, Qt::ShiftModifier);
        grid.Press(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(grid.Mark()->Rows(), (std::vector<int>{0, 2}));
        QCOMPARE(grid.Mark()->Columns(), (std::vector<int>{1, 3}));
    }

    void oneTableOfAPageIsMarked()
    {
        CTestDocument document = CCellGrid::Document("pointRange", "{'min':0,'max':40}");
        document.ColumnTable("request.group3", 2)
            .Member("request.group3.other",
                    "{'defaultSupport':1,'trait':{'dataType':'pointRange','value':{'min':0,"
                    "'max':1},'defaultValue':['0']}}");
        CTestPage page(document);
        QTableWidget *one = page.AddTable("request.group2.row0");
        QTableWidget *other = page.AddTable("request.group3.other");
        page.Init();
        CTableMark::Of(one)->MarkAll();
        CTableMark::Of(other)->MarkAll();
        QVERIFY(CTableMark::Of(one)->IsEmpty());
        QVERIFY(!HasCellLook(one->cellWidget(0, 0), ECellLook::Marked));
        QVERIFY(HasCellLook(other->cellWidget(0, 0), ECellLook::Marked));
    }

    void markMakesLateEditors()
    {
        CTestPage page(CCellGrid::Document("pointRange", "{'min':0,'max':40}"));
        page.m_hasEditorsAtOnce = false;
        QTableWidget *table = page.AddTable("request.group2.row0");
        page.Init();
        QVERIFY(!table->cellWidget(0, 0));
        CTableMark::Of(table)->MarkAll();
        QVERIFY(HasCellLook(table->cellWidget(2, 4), ECellLook::Marked));
    }
};

QUORLIN_TEST_CLASS(CTableMarkTest)
#include "TableMarkTest.moc"
