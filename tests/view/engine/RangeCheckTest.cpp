// Range checks: the list of allowed values that a spin box holds in its tool tip.
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QtTest>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kFrequency[] = "request.group1.frequency";
const char kTable[] = "request.group2.frequency";

CTestDocument Scalar(const QString &check)
{
    return CTestDocument().Member(
        kFrequency, QString("{'trait':{'dataType':'range','value':{'min':0,'max':9999999%1},"
                            "'defaultValue':'0'}}")
                        .arg(check.isNull() ? QString() : ",'rangeCheck':'" + check + "'"));
}

void Enter(QAbstractSpinBox *box, const QString &text)
{
    box->selectAll();
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Return);
}

}  // namespace

class CRangeCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void entryIsHeldToTheList_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("expected");
        const QString zeroFirst = "0,1920000~1980000";
        QTest::newRow("zero") << zeroFirst << "0" << 0;
        QTest::newRow("low limit") << zeroFirst << "1920000" << 1920000;
        QTest::newRow("high limit") << zeroFirst << "1980000" << 1980000;
        QTest::newRow("inside the band") << zeroFirst << "1955555" << 1955555;
        QTest::newRow("refused goes to the first token, a number") << zeroFirst << "5" << 0;
        QTest::newRow("just below") << zeroFirst << "1919999" << 0;
        QTest::newRow("just above") << zeroFirst << "1980001" << 0;
        QTest::newRow("refused goes to the first token, a range") << "1920000~1980000,0"
                                                                  << "5" << 1950000;
        QTest::newRow("second of two ranges") << "10~20,30~40"
                                              << "35" << 35;
        QTest::newRow("between two ranges") << "10~20,30~40"
                                            << "25" << 15;
        QTest::newRow("middle is truncated") << "10~21"
                                             << "5" << 15;
        QTest::newRow("list of numbers") << "7,8,9"
                                         << "8" << 8;
        QTest::newRow("not in the list of numbers") << "7,8,9"
                                                    << "10" << 7;
        QTest::newRow("later tokens do not move the fallback") << "7,100~200,9"
                                                               << "10" << 7;
    }

    void entryIsHeldToTheList()
    {
        QFETCH(QString, list);
        QFETCH(QString, entry);
        CTestPage page(Scalar(list));
        auto *box = page.Add<QSpinBox>(kFrequency);
        page.Init();
        QCOMPARE(box->toolTip(), list);
        Enter(box, entry);
        QTEST(box->value(), "expected");
    }

    void checkLogsItsListAndItsFind()
    {
        CTestPage page(Scalar("0,10~20"));
        auto *box = page.Add<QSpinBox>(kFrequency);
        page.Init();
        LogCapture log(lcEngine());
        Enter(box, "15");
        QVERIFY(log.Debug().contains("---> Slot_RangeCheck <---  (\"0\", \"10~20\")"));
        QVERIFY(log.Debug().contains("find return"));
        log.Clear();
        Enter(box, "5");
        QVERIFY(!log.Debug().contains("find return"));
    }

    void tokenIsComparedWithTheWholeTextOfTheBox()
    {
        CTestPage page(Scalar("8,30~40"));
        auto *box = page.Add<QSpinBox>(kFrequency);
        box->setSuffix(" kHz");
        page.Init();
        Enter(box, "35");
        QCOMPARE(box->value(), 8);  // "35 kHz" is no number
    }

    void memberWithoutAListIsNotChecked()
    {
        CTestPage page(Scalar(QString()));
        auto *box = page.Add<QSpinBox>(kFrequency);
        page.Init();
        QCOMPARE(box->toolTip(), QString("0~9999999"));
        LogCapture log(lcEngine());
        Enter(box, "5");
        QCOMPARE(box->value(), 5);
        QVERIFY(!log.Has("---> Slot_RangeCheck"));
    }

    void plainLimitsAsTheListAddNothingToThoseOfQt()
    {
        CTestPage page(Scalar("0~9999999"));
        auto *box = page.Add<QSpinBox>(kFrequency);
        page.Init();
        Enter(box, "5");
        QCOMPARE(box->value(), 5);
        Enter(box, "9999999");
        QCOMPARE(box->value(), 9999999);
    }

    void listIsReadAtTheTimeOfTheCheck()
    {
        CTestPage page(Scalar("0"));
        auto *box = page.Add<QSpinBox>(kFrequency);
        page.Init();
        box->setToolTip("40~50");
        Enter(box, "45");
        QCOMPARE(box->value(), 45);
    }

    void lossOfFocusChecksToo()
    {
        CTestPage page(Scalar("0,10~20"));
        auto *box = page.Add<QSpinBox>(kFrequency);
        page.Init();
        box->selectAll();
        QTest::keyClicks(box, "5");
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(box, &out);
        QCOMPARE(box->value(), 0);
    }

    void valueThatTheUserDidNotEnterIsNotChecked()
    {
        CTestPage page(Scalar("0,10~20"));
        auto *box = page.Add<QSpinBox>(kFrequency);
        page.Init();
        box->setValue(5);
        LogCapture log(lcEngine());
        QTest::keyClick(box, Qt::Key_Return);
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(box, &out);
        emit box->editingFinished();
        QCOMPARE(box->value(), 5);
        QVERIFY(!log.Has("---> Slot_RangeCheck"));
    }

    void scalarPointRangeIsNeverChecked()
    {
        CTestDocument document;
        document.Member(kFrequency, "{'trait':{'dataType':'pointRange','value':{'min':0,'max':99,"
                                    "'rangeCheck':'0,10~20'},'defaultValue':'0'}}");
        CTestPage page(document);
        auto *box = page.Add<QDoubleSpinBox>(kFrequency);
        page.Init();
        QCOMPARE(box->toolTip(), QString("0~99"));
        Enter(box, "5");
        QCOMPARE(box->value(), 5.0);
    }

    void pointRangeCellIsHeldToItsList_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<double>("expected");
        QTest::newRow("number") << "0,10.5~20.5"
                                << "0.0" << 0.0;
        QTest::newRow("low limit") << "0,10.5~20.5"
                                   << "10.5" << 10.5;
        QTest::newRow("high limit") << "0,10.5~20.5"
                                    << "20.5" << 20.5;
        QTest::newRow("refused to the number") << "0.25,10.5~20.5"
                                               << "10.25" << 0.25;
        QTest::newRow("refused to the middle") << "10.5~21.0,0"
                                               << "10.25" << 15.75;
        QTest::newRow("number in another spelling") << "7,1.50"
                                                    << "1.5" << 1.5;
    }

    void pointRangeCellIsHeldToItsList()
    {
        QFETCH(QString, list);
        QFETCH(QString, entry);
        CTestDocument document;
        document.ColumnTable("request.group2", 2)
            .Member(kTable, QString("{'trait':{'dataType':'pointRange','value':{'min':0,'max':99,"
                                    "'decimals':2,'rangeCheck':'%1'},'defaultValue':['0']}}")
                                .arg(list));
        CTestPage page(document);
        auto *table = page.Add<QTableWidget>(kTable);
        page.Init();
        auto *cell = qobject_cast<QDoubleSpinBox *>(table->cellWidget(0, 1));
        QVERIFY(cell);
        QCOMPARE(cell->toolTip(), list);
        LogCapture log(lcEngine());
        Enter(cell, entry);
        QTEST(cell->value(), "expected");
        QVERIFY(log.Has("---> Slot_PointRangeCheck <--- "));
        QCOMPARE(log.Has("find return"), cell->value() == entry.toDouble());
    }

    void rangeCellIsHeldToItsList()
    {
        CTestDocument document;
        document.ColumnTable("request.group2", 2)
            .Member(kTable, "{'trait':{'dataType':'range','value':{'min':0,'max':9999999,"
                            "'rangeCheck':'1920000~1980000,0'},'defaultValue':['0']}}");
        CTestPage page(document);
        auto *table = page.Add<QTableWidget>(kTable);
        page.Init();
        auto *first = qobject_cast<QSpinBox *>(table->cellWidget(0, 0));
        auto *second = qobject_cast<QSpinBox *>(table->cellWidget(0, 1));
        QVERIFY(first && second);
        Enter(second, "5");
        QCOMPARE(second->value(), 1950000);
        QCOMPARE(first->value(), 0);
    }

    void limitsInAToolTipHaveSixDigitsAndAListStandsAsItIs()
    {
        const QString member = "{'trait':{'dataType':'pointRange','value':{'min':-1234.56789,"
                               "'max':1234567.8%1},'defaultValue':['0']}}";
        CTestDocument document;
        document.ColumnTable("request.group2", 1)
            .Member("request.group2.plain", member.arg(""))
            .Member("request.group2.listed", member.arg(",'rangeCheck':'0,1234567.8'"));
        CTestPage page(document);
        auto *table = page.Add<QTableWidget>("request.group2.plain");
        page.Init();
        QCOMPARE(table->cellWidget(0, 0)->toolTip(), QString("-1234.57~1.23457e+06"));
        QCOMPARE(table->cellWidget(1, 0)->toolTip(), QString("0,1234567.8"));
    }
};

QUORLIN_TEST_CLASS(CRangeCheckTest)
#include "RangeCheckTest.moc"
