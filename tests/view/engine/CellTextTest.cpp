// What a cell's editor takes as a text is what it would show when the user types it.
#include "View/engine/CellText.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

#include "View/editors/UnsignedSpinBox.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kRow[] = "request.group2.row";

// A table of one cell.
CTestDocument Table(const QString &type, const QString &entry)
{
    return CTestDocument()
        .ColumnTable("request.group2", 1)
        .Member(kRow,
                QString("{'defaultSupport':1,'defaultEnableStatus':1,'trait':{'dataType':'%1',"
                        "'value':%2,'defaultValue':['0']}}")
                    .arg(type, entry));
}

const char kDb[] = "{'min':-30,'max':40}";
const char kKhz[] = "{'min':0,'max':9999999,'rangeCheck':'0,1920000~1980000'}";
const char kMhz[] = "{'min':0,'max':99999,'decimals':2,'rangeCheck':'7,1920~1980.5'}";
const char kHex[] = "{'min':'2','max':'65535','displayBase':16}";

void Columns()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("text");
}

}  // namespace

class CCellTextTest : public QObject
{
    Q_OBJECT

private slots:
    void takenTextIsWhatTypingLeaves_data()
    {
        Columns();
        QTest::newRow("step of the wire") << "pointRange" << kDb << "0.9375";
        QTest::newRow("between two steps") << "pointRange" << kDb << "1.4";
        QTest::newRow("negative") << "pointRange" << kDb << "-29.99";
        QTest::newRow("limit") << "pointRange" << kDb << "40";
        QTest::newRow("no digit in front of the point") << "pointRange" << kDb << ".5";
        QTest::newRow("with a plus") << "pointRange" << kDb << "+5";
        QTest::newRow("list of ranges, number") << "range" << kKhz << "0";
        QTest::newRow("list of ranges, range") << "range" << kKhz << "1950000";
        QTest::newRow("decimals, number") << "pointRange" << kMhz << "7.0";
        QTest::newRow("decimals, range") << "pointRange" << kMhz << "1980.5";
        QTest::newRow("lower case digits") << "unsignedRange" << kHex << "ab1";
        QTest::newRow("upper case digits") << "unsignedRange" << kHex << "FFFF";
    }

    void takenTextIsWhatTypingLeaves()
    {
        QFETCH(QString, type);
        QFETCH(QString, entry);
        QFETCH(QString, text);
        CTestPage page(Table(type, entry));
        QTableWidget *table = page.AddTable(kRow);
        page.Init();
        QWidget *cell = table->cellWidget(0, 0);
        const QString before = CellText(cell);

        const auto taken = TakenText(cell, ' ' + text + "\t");
        QVERIFY(taken);
        QCOMPARE(CellText(cell), before);

        if (auto *box = qobject_cast<QAbstractSpinBox *>(cell))
            box->selectAll();
        else
            qobject_cast<QLineEdit *>(cell)->setText("");
        QTest::keyClicks(cell, text);
        QTest::keyClick(cell, Qt::Key_Return);
        QCOMPARE(CellText(cell), *taken);

        SetCellText(cell, before);
        QCOMPARE(CellText(cell), before);
        SetCellText(cell, *taken);
        QCOMPARE(CellText(cell), *taken);
    }

    void textThatCannotBeTypedIsRefused_data()
    {
        Columns();
        QTest::newRow("empty") << "pointRange" << kDb << "";
        QTest::newRow("word") << "pointRange" << kDb << "high";
        QTest::newRow("above") << "pointRange" << kDb << "40.1";
        QTest::newRow("below") << "pointRange" << kDb << "-31";
        QTest::newRow("half a number") << "pointRange" << kDb << "-";
        QTest::newRow("comma of decimals") << "pointRange" << kMhz << "1950,5";
        QTest::newRow("comma of thousands") << "range" << kKhz << "1,950,000";
        QTest::newRow("too many decimals") << "pointRange" << kDb << "0.123456";
        QTest::newRow("not a number") << "pointRange" << kDb << "nan";
        QTest::newRow("endless") << "pointRange" << kDb << "inf";
        QTest::newRow("between the ranges") << "range" << kKhz << "5";
        QTest::newRow("beside the ranges, decimals") << "pointRange" << kMhz << "1980.51";
        QTest::newRow("decimals of an integer") << "range" << kKhz << "1950000.0";
        QTest::newRow("beyond an int") << "range" << kKhz << "99999999999";
        QTest::newRow("digit of another radix") << "unsignedRange" << kHex << "1G";
        QTest::newRow("below an unsigned limit") << "unsignedRange" << kHex << "1";
        QTest::newRow("above an unsigned limit") << "unsignedRange" << kHex << "10000";
        QTest::newRow("sign of an unsigned") << "unsignedRange" << kHex << "+11";
        QTest::newRow("radix of an unsigned") << "unsignedRange" << kHex << "0x11";
    }

    void textThatCannotBeTypedIsRefused()
    {
        QFETCH(QString, type);
        QFETCH(QString, entry);
        QFETCH(QString, text);
        CTestPage page(Table(type, entry));
        QTableWidget *table = page.AddTable(kRow);
        page.Init();
        QVERIFY(!TakenText(table->cellWidget(0, 0), text));
    }

    // Its tool tip is made for people, with six digits.
    void toolTipOfLimitsAloneRefusesNothingWithinThem()
    {
        CTestPage page(Table("pointRange", "{'min':0,'max':1234567.5}"));
        QTableWidget *table = page.AddTable(kRow);
        page.Init();
        QCOMPARE(table->cellWidget(0, 0)->toolTip(), QString("0~1.23457e+06"));
        QVERIFY(TakenText(table->cellWidget(0, 0), "1024"));
    }

    void listTakesWhatItOffers()
    {
        QComboBox list;
        list.addItems({"n1", "n78 "});
        QCOMPARE(TakenText(&list, " n78"), std::optional<QString>("n78 "));
        QVERIFY(!TakenText(&list, "N78"));
        QVERIFY(!TakenText(&list, ""));
        QSignalSpy changed(&list, &QComboBox::currentTextChanged);
        SetCellText(&list, "n78 ");
        QCOMPARE(CellText(&list), QString("n78 "));
        QCOMPARE(changed.size(), 1);
    }

    void otherWidgetHasNoText()
    {
        QWidget widget;
        QCOMPARE(CellText(&widget), QString());
        QVERIFY(!TakenText(&widget, "1"));
    }

    void pageChangesCellsAfterTheEditUnderWay()
    {
        CTestPage page(Table("pointRange", kDb));
        QTableWidget *table = page.AddTable(kRow);
        page.Init();
        auto *box = qobject_cast<QDoubleSpinBox *>(table->cellWidget(0, 0));
        box->selectAll();
        QTest::keyClicks(box, "2.3");
        QSignalSpy values(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
        page.ChangeCells("Paste", {{.table = table, .row = 0, .column = 0, .text = "5.00000"},
                                   {.table = table, .row = 0, .column = 9, .text = "6.00000"}});
        QCOMPARE(box->text(), QString("5.00000"));
        QCOMPARE(values.size(), 2);  // the step of the edit, and the change
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(box->text(), QString("5.00000"));
    }

    void changeReachesATableThatHasNoEditorsYet()
    {
        CTestPage page(Table("pointRange", kDb));
        page.m_hasEditorsAtOnce = false;
        QTableWidget *table = page.AddTable(kRow);
        page.Init();
        page.ChangeCells("Paste", {{.table = table, .row = 0, .column = 0, .text = "5.00000"}});
        QCOMPARE(CellText(table->cellWidget(0, 0)), QString("5.00000"));
    }
};

QUORLIN_TEST_CLASS(CCellTextTest)
#include "CellTextTest.moc"
