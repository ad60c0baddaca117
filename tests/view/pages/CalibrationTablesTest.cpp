// Tables of a calibration page, as wide as their cells need.
#include "View/pages/CalibrationTables.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QtTest>

#include "View/editors/LateEditors.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kNarrow[] = "response.group1.short";
const char kWide[] = "response.group2.short";

QString Numbers(const char *most)
{
    return QString("{'trait':{'dataType':'range','defaultValue':['0'],'value':{'min':0,'max':%1}}}")
        .arg(most);
}

// Two tables of three columns; of the second the last row needs the most room, and has the longest caption.
CTestDocument TwoTables()
{
    CTestDocument document;
    document.ColumnTable("response.group1", 3);
    document.Member(kNarrow, Numbers("999999"));
    document.ColumnTable("response.group2", 3);
    document.Member(kWide, Numbers("99"));
    document.Member("response.group2.tall", Numbers("2000000000"));
    return document;
}

struct STablesPage
{
    STablesPage() : page(TwoTables()), narrow(page.AddTable(kNarrow)), wide(page.AddTable(kWide))
    {
        page.Init();
    }

    CTestPage page;
    QTableWidget *narrow;
    QTableWidget *wide;
};

}  // namespace

class CalibrationTablesTest : public QObject
{
    Q_OBJECT

private slots:
    void columnsAreAsWideAsTheWidestCellOfAnyRowAndTable()
    {
        STablesPage p;
        EnsureEditors(p.narrow);
        EnsureEditors(p.wide);
        const int first = p.narrow->cellWidget(0, 0)->sizeHint().width();
        const int last = p.wide->cellWidget(1, 0)->sizeHint().width();
        QVERIFY(10 < first && first < last);
        const QList<QTableWidget *> both = {p.narrow, p.wide};
        for (QTableWidget *table : both) {
            for (int c = 0; c < 3; ++c)
                table->setColumnWidth(c, 10);
        }
        AlignColumns({p.narrow});
        QCOMPARE(p.narrow->columnWidth(2), first);
        AlignColumns(both);
        for (QTableWidget *table : both) {
            for (int c = 0; c < 3; ++c)
                QCOMPARE(table->columnWidth(c), last);
        }
    }

    void aFirstColumnThatIsWiderAlreadySetsTheWidthOfAll()
    {
        STablesPage p;
        p.narrow->setColumnWidth(0, 321);
        p.narrow->setColumnWidth(1, 654);
        AlignColumns({p.narrow, p.wide});
        for (QTableWidget *table : {p.narrow, p.wide}) {
            for (int c = 0; c < 3; ++c)
                QCOMPARE(table->columnWidth(c), 321);
        }
    }

    // It could not be measured, and its columns are what they were made with.
    void aTableWithoutRowsOrEditorsDoesNotSetTheWidth()
    {
        for (const int rows : {0, 2}) {
            STablesPage p;
            AlignColumns({p.wide});
            const int need = p.wide->columnWidth(0);
            QTableWidget bare(rows, 3);
            bare.setColumnWidth(0, 400);
            AlignColumns({&bare, p.wide});
            QCOMPARE(p.wide->columnWidth(2), need);
            QCOMPARE(bare.columnWidth(0), need);
        }
    }

    void captionsOfAllTablesTakeTheRoomOfTheLongest()
    {
        STablesPage p;
        p.wide->setVerticalHeaderItem(1, new QTableWidgetItem("a caption longer than the others"));
        AlignColumns({p.narrow, p.wide});
        const int need = p.wide->verticalHeader()->sizeHint().width();
        QCOMPARE(p.narrow->verticalHeader()->minimumWidth(), need);
        QCOMPARE(p.wide->verticalHeader()->minimumWidth(), need);
        QVERIFY(need > 100);
    }
};

QUORLIN_TEST_CLASS(CalibrationTablesTest)
#include "CalibrationTablesTest.moc"
