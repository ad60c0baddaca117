// Row tables: Init and Update.
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "Support/Log.h"
#include "View/engine/TableSize.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/RowTableDocument.h"
#include "tests/view/engine/TestPage.h"

class CRowTableTest : public QObject
{
    Q_OBJECT

private slots:
    void tableHasAColumnAMemberAndARowAnInstance()
    {
        CTestPage page(RowDocument(Values(2), {{"r0", "First"}, {"r1", "Second"}}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        QCOMPARE(table->columnCount(), 3);
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(table->horizontalHeaderItem(0)->text(), QString("Label"));
        QCOMPARE(table->horizontalHeaderItem(2)->text(), QString("Point"));
        QCOMPARE(table->verticalHeaderItem(0)->text(), QString("First"));
        QCOMPARE(table->verticalHeaderItem(1)->text(), QString("Second"));
        QCOMPARE(table->rowHeight(0), 22);
        QCOMPARE(CellTexts(table, 1), Values(2)[1]);
        QCOMPARE(table->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(table->minimumSize(), table->maximumSize());
        QCOMPARE(table->maximumSize(), FitTableSize(table));
    }

    void cellsAreMadeByTheirDataType()
    {
        CTestPage page(RowDocument(Values(1)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        auto *label = qobject_cast<QLabel *>(table->cellWidget(0, 0));
        auto *range = qobject_cast<QSpinBox *>(table->cellWidget(0, 1));
        auto *point = qobject_cast<QDoubleSpinBox *>(table->cellWidget(0, 2));
        QVERIFY(label && range && point);
        QCOMPARE(label->alignment(), Qt::AlignCenter);
        QCOMPARE(range->minimum(), -1000);
        QCOMPARE(range->maximum(), 1000);
        QCOMPARE(range->toolTip(), QString("-1000~1000"));
        QCOMPARE(range->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QCOMPARE(point->decimals(), 2);
        QCOMPARE(point->toolTip(), QString("-150.5~0"));
        QCOMPARE(point->buttonSymbols(), QAbstractSpinBox::NoButtons);
        for (int c = 0; c < 3; ++c)
            QCOMPARE(table->cellWidget(0, c)->font().family(), QString("Arial"));
    }

    void valueOutsideTheLimitsStartsInTheirMiddle()
    {
        CTestPage page(RowDocument({{"x", "1001", "1"}}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        QCOMPARE(CellTexts(table, 0), (QStringList{"x", "0", "-75.25"}));
    }

    void pointCellHasFiveDecimalsUnlessToldOtherwise()
    {
        CTestDocument document;
        document.Group("response.group1", 2, "{'instanceList':['r0']}");
        document.Member("response.group1.p", "{'trait':{'dataType':'pointRange','value':{'min':-1,"
                                             "'max':1}},'r0':{'defaultValue':'0.12345'}}");
        CTestPage page(document);
        auto *table = page.AddTable("response.group1.p");
        page.Init();
        QCOMPARE(CellTexts(table, 0), QStringList("0.12345"));
    }

    void missingCellValueShowsZeroInALabel()
    {
        CTestDocument document;
        document.Group("response.group1", 2, "{'instanceList':['r0','r1']}");
        document.Member("response.group1.a",
                        "{'trait':{'dataType':'label'},'r1':{'defaultValue':'-80'}}");
        CTestPage page(document);
        auto *table = page.AddTable("response.group1.a");
        page.Init();
        QCOMPARE(CellTexts(table, 0), QStringList("0"));
        QCOMPARE(CellTexts(table, 1), QStringList("-80"));
    }

    void emptyInstanceListShowsAnEmptyFrameSixTimesItsHeader()
    {
        CTestPage page(RowDocument({}));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        QCOMPARE(table->rowCount(), 0);
        QCOMPARE(table->columnCount(), 3);
        QVERIFY(table->horizontalHeader()->height() > 0);
        QCOMPARE(table->maximumHeight(), 6 * table->horizontalHeader()->height());
        QCOMPARE(table->minimumHeight(), table->maximumHeight());
    }

    void oneRowIsSixTimesItsHeightAndTwoAreNot()
    {
        for (const int rows : {1, 2}) {
            CTestPage page(RowDocument(Values(rows)));
            auto *table = page.AddTable(kRowTable);
            page.Init();
            const int height = table->horizontalHeader()->height() + rows * 22;
            QCOMPARE(table->maximumHeight(), rows == 1 ? 6 * height : height);
        }
    }

    void sixteenRowsAreNarrowAndMoreKeepTheScrollBar()
    {
        for (const int rows : {16, 17}) {
            CTestDocument document;
            QStringList instances;
            for (int r = 0; r < rows; ++r)
                instances.append(QString("'r%1'").arg(r));
            document.Group("response.group1", 2, "{'instanceList':[" + instances.join(',') + "]}");
            for (int c = 0; c < 20; ++c)
                document.Member(QString("response.group1.m%1").arg(c),
                                "{'trait':{'dataType':'label'}}");
            CTestPage page(document);
            auto *table = page.AddTable("response.group1.m0");
            page.Init();
            const int header = table->horizontalHeader()->height();
            const int columns = rows == 16 ? 20 : 15;
            QCOMPARE(table->maximumWidth(),
                     table->verticalHeader()->width() + columns * table->columnWidth(0));
            QCOMPARE(table->maximumHeight(), (rows == 16 ? 1 : 2) * header + rows * 22);
            QCOMPARE(table->minimumSize(), table->maximumSize());
            QCOMPARE(table->horizontalScrollBarPolicy(),
                     rows == 16 ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
        }
    }

    void lastMemberAloneDecidesAboutHiding_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<bool>("hidden");
        QTest::newRow("both without a word") << ""
                                             << "" << false;
        QTest::newRow("first unsupported") << "'defaultSupport':0,"
                                           << "" << false;
        QTest::newRow("last unsupported") << ""
                                          << "'defaultSupport':0," << true;
        QTest::newRow("last neither 0 nor 1") << ""
                                              << "'defaultSupport':2," << true;
        QTest::newRow("last supported") << "'defaultSupport':0,"
                                        << "'defaultSupport':1," << false;
    }

    void lastMemberAloneDecidesAboutHiding()
    {
        QFETCH(QString, first);
        QFETCH(QString, last);
        QFETCH(bool, hidden);
        CTestDocument document;
        document.Group("response.group1", 2);
        document.Member("response.group1.a", "{" + first + "'trait':{'dataType':'label'}}");
        document.Member("response.group1.b", "{" + last + "'trait':{'dataType':'label'}}");
        CTestPage page(document);
        auto *table = page.AddTable("response.group1.a");
        page.Init();
        QCOMPARE(table->isHidden(), hidden);
        QCOMPARE(table->columnCount(), hidden ? 0 : 2);
    }

    void unsupportedDataTypesLeaveTheirCellsEmpty()
    {
        for (const QString type : {"list", "boolean", "unsignedRange"}) {
            CTestDocument document;
            document.Group("response.group1", 2, "{'instanceList':['r0']}");
            document.Member("response.group1.a", "{'trait':{'dataType':'" + type + "'}}");
            CTestPage page(document);
            auto *table = page.AddTable("response.group1.a");
            LogCapture log(lcEngine());
            page.Init();
            QVERIFY(!table->cellWidget(0, 0));
            QCOMPARE(log.Critical(),
                     QStringList("---> [Fail][Init][type2] Cannot get the row info - dataType not "
                                 "support yet <---  \"" +
                                 type + "\""));
        }
    }

    void updateWritesTheCellsThatExist()
    {
        CTestPage page(RowDocument(Values(2)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        page.UpdateWidget(
            RowDocument({{"u", "7", "-1.5"}, {"v", "8", "-2.5"}, {"w", "9", "-3"}}).Json());
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(CellTexts(table, 0), (QStringList{"u", "7", "-1.50"}));
        QCOMPARE(CellTexts(table, 1), (QStringList{"v", "8", "-2.50"}));
    }

    void initOfManyRowsTurnsTheOldOnesIntoItems()
    {
        CTestPage page(RowDocument(Values(300)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        CheckSplit(table, 300);
    }

    void updateWritesItemsAsItWritesEditors()
    {
        CTestPage page(RowDocument(Values(300)));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        QVector<QStringList> values;
        for (int r = 0; r < 300; ++r)
            values.append({QString("u%1").arg(r), "5000", QString("-%1.129").arg(r % 100)});
        page.UpdateWidget(RowDocument(values).Json());
        // Held to the limits and rounded in either kind of cell.
        for (const int row : {0, 235, 236, 299}) {
            QCOMPARE(CellTexts(table, row), (QStringList{QString("u%1").arg(row), "1000",
                                                         QString("-%1.13").arg(row % 100)}));
        }
        QVERIFY(!table->cellWidget(235, 1));
        QVERIFY(table->cellWidget(236, 1));
    }

    void retiredRowsLookLikeTheirEditors()
    {
        CTestPage page(RowDocument(QVector<QStringList>(kEditorRows + 1, {"same", "12", "-3.25"})));
        auto *table = page.AddTable(kRowTable);
        page.Init();
        QCOMPARE(CellTexts(table, 0), CellTexts(table, 1));
        for (int c = 0; c < 3; ++c) {
            const QTableWidgetItem *item = table->item(0, c);
            QWidget *editor = table->cellWidget(1, c);
            QVERIFY(item && editor && !table->cellWidget(0, c) && !table->item(1, c));
            QCOMPARE(item->font().family(), editor->font().family());
            QCOMPARE(item->font().pointSizeF(), editor->font().pointSizeF());
            QCOMPARE(item->font().weight(), editor->font().weight());
            QVERIFY(!(item->flags() & Qt::ItemIsEditable));
        }
        QCOMPARE(table->item(0, 0)->textAlignment(), int(Qt::AlignCenter));
        const auto *range = qobject_cast<QSpinBox *>(table->cellWidget(1, 1));
        QCOMPARE(table->item(0, 1)->textAlignment() & Qt::AlignHorizontal_Mask,
                 int(range->alignment() & Qt::AlignHorizontal_Mask));
        QVERIFY(table->item(0, 1)->textAlignment() & Qt::AlignVCenter);
    }

    void pageKeepsItsPlaceAndVisibility()
    {
        CTestPage page(RowDocument(Values(2)));
        page.AddTable(kRowTable);
        page.m_answersAtOnce = false;
        page.show();
        page.move(120, 90);
        page.Deliver();
        QVERIFY(page.isVisible());
        QCOMPARE(page.pos(), QPoint(120, 90));

        CTestPage hidden(RowDocument(Values(2)));
        hidden.Add<QTableWidget>(kRowTable);
        hidden.m_answersAtOnce = false;
        hidden.show();
        hidden.hide();
        hidden.Deliver();
        QVERIFY(!hidden.isVisible());
    }

    void tableIsNotPackaged()
    {
        CTestPage page(RowDocument(Values(1)));
        page.AddTable(kRowTable);
        page.Init();
        LogCapture log(lcEngine());
        QVERIFY(page.Package(kRowTable).isUndefined());
        QCOMPARE(log.Critical(), QStringList("====== Failed to packge : Not support this group "
                                             "type yet ======"));
    }
};

QUORLIN_TEST_CLASS(CRowTableTest)
#include "RowTableTest.moc"
