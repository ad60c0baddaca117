// Row tables: Append, report by report.
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "Support/Log.h"
#include "View/engine/TableSize.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/RowTableDocument.h"
#include "tests/view/engine/TestPage.h"

class CRowTableAppendTest : public QObject
{
    Q_OBJECT

private slots:
    void newRowsAreAddedAndOldOnesStay()
    {
        CTestPage page(RowDocument(Values(1)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        QWidget *first = table->cellWidget(0, 1);
        page.AppendWidget(RowDocument({{"changed", "0", "0"}, {"new", "7", "-1.5"}}).Json());
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(table->cellWidget(0, 1), first);
        QCOMPARE(CellTexts(table, 0), Values(1)[0]);  // only new rows are written
        QCOMPARE(CellTexts(table, 1), (QStringList{"new", "7", "-1.50"}));
        QCOMPARE(table->rowHeight(1), 22);
    }

    void appendedCellsHaveButtonsAndNoToolTip()
    {
        CTestPage page(RowDocument({}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        page.AppendWidget(RowDocument(Values(1)).Json());
        auto *label = qobject_cast<QLabel *>(table->cellWidget(0, 0));
        auto *range = qobject_cast<QSpinBox *>(table->cellWidget(0, 1));
        auto *point = qobject_cast<QDoubleSpinBox *>(table->cellWidget(0, 2));
        QVERIFY(label && range && point);
        QCOMPARE(label->alignment(), Qt::AlignCenter);
        QCOMPARE(range->toolTip(), QString());
        QCOMPARE(point->toolTip(), QString());
        QCOMPARE(range->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
        QCOMPARE(point->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
        QCOMPARE(point->decimals(), 2);
        for (int c = 0; c < 3; ++c)
            QCOMPARE(table->cellWidget(0, c)->font().family(), QString("Arial"));
    }

    void appendedValueOutsideTheLimitsIsClippedByQtAlone()
    {
        CTestPage page(RowDocument({}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        page.AppendWidget(RowDocument({{"x", "5000", "9"}}).Json());
        QCOMPARE(CellTexts(table, 0), (QStringList{"x", "1000", "0.00"}));
    }

    void missingValueOfANewRowShowsZeroInALabel()
    {
        CTestPage page(RowDocument({}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        CTestDocument update = RowDocument({{"x", "1", "-1"}});
        update.Member(kRowTable, "{'trait':{'dataType':'label'}}");
        page.AppendWidget(update.Json());
        QCOMPARE(CellTexts(table, 0), (QStringList{"0", "1", "-1.00"}));
    }

    void sameListTwiceIsNoNewRow()
    {
        CTestPage page(RowDocument({}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        page.AppendWidget(RowDocument(Values(2)).Json());
        LogCapture log(lcEngine());
        page.AppendWidget(RowDocument({{"other", "0", "0"}, {"other", "0", "0"}}).Json());
        QVERIFY(log.Debug().contains("---> [Append][type2] No new row to update"));
        QCOMPARE(CellTexts(table, 1), Values(2)[1]);
    }

    void appendTellsItsCounts()
    {
        CTestPage page(RowDocument(Values(1)));
        page.AddTable(kRowTable);
        page.Init();
        LogCapture log(lcEngine());
        page.AppendWidget(RowDocument(Values(4)).Json());
        const QStringList lines = log.Debug();
        QVERIFY(lines.contains("---> [Append][type2] Current Column size - from table <--- 3"));
        QVERIFY(lines.contains("---> [Append][type2] Current Row size - from table <--- 1"));
        QVERIFY(lines.contains("---> [Append][type2] Need appending count (New row size - Current "
                               "row size) 3"));
        QVERIFY(lines.contains("---> [Append][type2] Done "));
        QCOMPARE(log.Critical(), QStringList());
    }

    void emptiedListClearsTheTable()
    {
        CTestPage page(RowDocument(Values(3), {{"r0", "First"}}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        LogCapture log(lcEngine());
        page.AppendWidget(RowDocument({}).Json());
        QVERIFY(log.Debug().contains("---> [Append][type2] Clear table."));
        QCOMPARE(table->rowCount(), 0);
        QCOMPARE(table->columnCount(), 3);
        QCOMPARE(table->horizontalHeaderItem(1)->text(), QString("Range"));
        QCOMPARE(table->maximumHeight(), 6 * table->horizontalHeader()->height());
        QCOMPARE(table->minimumSize(), table->maximumSize());
    }

    void clearRemovesItemsTooAndTheTableGrowsAnew()
    {
        CTestPage page(RowDocument(Values(300)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        QVERIFY(table->item(0, 0));
        page.AppendWidget(RowDocument({}).Json());
        QCOMPARE(table->rowCount(), 0);
        page.AppendWidget(RowDocument(Values(2)).Json());
        CheckSplit(table, 2);
        page.AppendWidget(RowDocument(Values(270)).Json());
        CheckSplit(table, 270);
    }

    void shrinkingListTouchesNoRow()
    {
        CTestPage page(RowDocument(Values(3)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        LogCapture log(lcEngine());
        page.AppendWidget(RowDocument({{"other", "0", "0"}}).Json());
        QCOMPARE(table->rowCount(), 3);
        for (int r = 0; r < 3; ++r)
            QCOMPARE(CellTexts(table, r), Values(3)[r]);
        QVERIFY(log.Debug().contains("---> [Append][type2] Need appending count (New row size - "
                                     "Current row size) -2"));
        QVERIFY(log.Debug().contains("---> [Append][type2] Done "));
        QCOMPARE(log.Critical(), QStringList());
    }

    void rowsRetireAsTheTableGrowsRowByRow()
    {
        CTestPage page(RowDocument({}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        for (int rows = 58; rows <= 68; ++rows)
            page.AppendWidget(RowDocument(Values(rows)).Json());
        CheckSplit(table, 68);
    }

    void rowsRetireAsManyCameAtOnce()
    {
        CTestPage page(RowDocument(Values(10)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        page.AppendWidget(RowDocument(Values(300)).Json());
        CheckSplit(table, 300);
        page.AppendWidget(RowDocument(Values(900)).Json());
        CheckSplit(table, 900);
    }

    void updateAfterAnAppendReachesAllRows()
    {
        CTestPage page(RowDocument({}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        page.AppendWidget(RowDocument(Values(300)).Json());
        page.UpdateWidget(RowDocument(QVector<QStringList>(300, {"u", "3", "-1.5"})).Json());
        for (const int row : {0, 235, 236, 299})
            QCOMPARE(CellTexts(table, row), (QStringList{"u", "3", "-1.50"}));
    }

    void unsupportedColumnDoesNotKeepTheOthersFromRetiring()
    {
        CTestDocument document = RowDocument(Values(kEditorRows + 2));
        document.Member("response.group1.range", "{'trait':{'dataType':'list'}}");
        CTestPage page(RowDocument({}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        LogCapture log(lcEngine());
        page.AppendWidget(document.Json());
        QCOMPARE(log.Count("---> [Fail][Append][type2] Not support this data type yet <---"),
                 kEditorRows + 2);
        QVERIFY(table->item(1, 0) && table->item(1, 2));
        QVERIFY(table->cellWidget(2, 0) && table->cellWidget(2, 2));
        QCOMPARE(CellTexts(table, 1)[1], QString("(empty)"));
    }

    void appendWidensTheTableAndShowsItsLastRow()
    {
        CTestPage page(RowDocument(Values(30)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        table->setFixedHeight(120);
        page.AppendWidget(RowDocument(Values(60)).Json());
        QCOMPARE(table->minimumWidth(), FitTableSize(table).width() + 20);
        QCOMPARE(table->verticalScrollBar()->value(), table->verticalScrollBar()->maximum());
        QVERIFY(table->verticalScrollBar()->maximum() > 0);
    }

    void appendedRowsBearTheTablesNumbers()
    {
        CTestPage page(RowDocument(Values(1), {{"r0", "First"}}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        page.AppendWidget(RowDocument(Values(2), {{"r0", "First"}, {"r1", "Second"}}).Json());
        QCOMPARE(table->verticalHeaderItem(0)->text(), QString("First"));
        QVERIFY(!table->verticalHeaderItem(1));
        QCOMPARE(table->model()->headerData(1, Qt::Vertical).toInt(), 2);
    }

    void appendDoesNotAdoptTheDocument()
    {
        CTestPage page(RowDocument({}));
        page.AddTable(kRowTable);
        page.Init();
        const QJsonObject before = page.Model();
        CTestDocument update = RowDocument(Values(1));
        update.Root("modelIntegrity", JsonObject("{'integrity':false,'messageList':['x']}"));
        page.AppendWidget(update.Json());  // a box would never close
        QCOMPARE(page.Model(), before);
        QVERIFY(page.IsModelReady());
    }
};

QUORLIN_TEST_CLASS(CRowTableAppendTest)
#include "RowTableAppendTest.moc"
