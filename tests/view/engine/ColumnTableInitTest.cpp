// Column tables: Init.
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "Support/Log.h"
#include "View/editors/UnsignedSpinBox.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kGroup[] = "request.group2";
const char kTable[] = "request.group2.a";

CTestDocument Table(int columns, const QString &member, const QString &keys = "{}")
{
    return CTestDocument().ColumnTable(kGroup, columns, keys).Member(kTable, member);
}

const char kLabel[] = "{'caption':'A','trait':{'dataType':'label','defaultValue':['x']}}";
const char kRange[] = "{'trait':{'dataType':'range','value':{'min':%1,'max':%2%3},"
                      "'defaultValue':%4}}";

QStringList Headers(const QTableWidget *table, Qt::Orientation orientation)
{
    const int count = orientation == Qt::Horizontal ? table->columnCount() : table->rowCount();
    QStringList headers;
    for (int i = 0; i < count; ++i)
        headers.append(table->model()->headerData(i, orientation).toString());
    return headers;
}

template <typename Widget>
Widget *Cell(const QTableWidget *table, int row, int column)
{
    return qobject_cast<Widget *>(table->cellWidget(row, column));
}

struct SPage
{
    explicit SPage(const CTestDocument &document) : page(document), table(page.AddTable(kTable))
    {
        page.Init();
    }
    CTestPage page;
    QTableWidget *table;
};

}  // namespace

class CColumnTableInitTest : public QObject
{
    Q_OBJECT

private slots:
    void columnsAreNumberedFromTheStartIndex_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QStringList>("headers");
        QTest::newRow("plain") << "{'startIndex':0,'indexStep':1}" << QStringList{"0", "1", "2"};
        QTest::newRow("steps") << "{'startIndex':-2,'indexStep':5}" << QStringList{"-2", "3", "8"};
        QTest::newRow("captions win")
            << "{'startIndex':4,'indexStep':1,'colFieldCaptionList':['a','b','c']}"
            << QStringList{"a", "b", "c"};
        QTest::newRow("too few captions leave empty headers")
            << "{'colFieldCaptionList':['G']}" << QStringList{"G", "", ""};
        QTest::newRow("too many captions are cut")
            << "{'colFieldCaptionList':['a','b','c','d']}" << QStringList{"a", "b", "c"};
        QTest::newRow("null captions count as missing")
            << "{'startIndex':1,'indexStep':1,'colFieldCaptionList':null}"
            << QStringList{"1", "2", "3"};
    }

    void columnsAreNumberedFromTheStartIndex()
    {
        QFETCH(QString, keys);
        SPage p(Table(3, kLabel, keys));
        QTEST(Headers(p.table, Qt::Horizontal), "headers");
        QCOMPARE(p.table->columnWidth(0), 58);
        QCOMPARE(p.table->rowHeight(0), 22);
    }

    void rowsAreTheSupportedMembersInListOrder()
    {
        const QString label = "{'caption':'%1','defaultSupport':%2,'trait':{'dataType':'label',"
                              "'defaultValue':['of %1']}}";
        CTestDocument document;
        document.ColumnTable(kGroup, 1);
        document.Member("request.group2.z", label.arg("Z", "1"));
        document.Member("request.group2.gone", label.arg("Gone", "0"));
        document.Member("request.group2.two", label.arg("Two", "2"));
        document.Member(kTable, label.arg("A", "1"));
        SPage p(document);
        QCOMPARE(Headers(p.table, Qt::Vertical), (QStringList{"Z", "A"}));
        QCOMPARE(Cell<QLabel>(p.table, 1, 0)->text(), QString("of A"));
    }

    void tableWithoutASupportedMemberIsHidden()
    {
        LogCapture log(lcEngine());
        SPage p(Table(3, "{'defaultSupport':0,'trait':{'dataType':'label'}}"));
        QVERIFY(p.table->isHidden());
        QCOMPARE(p.table->rowCount(), 0);
        QVERIFY(log.Debug().contains("---> [Init][type3] Set visible to false, all member value "
                                     "are not support <---"));
        QCOMPARE(log.Critical(), QStringList());
    }

    void shortArrayRepeatsItsLastElement()
    {
        SPage p(Table(4, QString(kRange).arg("0", "99", "", "['7','8']")));
        QList<int> values;
        for (int c = 0; c < 4; ++c)
            values.append(Cell<QSpinBox>(p.table, 0, c)->value());
        QCOMPARE(values, (QList<int>{7, 8, 8, 8}));
    }

    void defaultThatIsNoArrayReadsAsAnEmptyOne_data()
    {
        QTest::addColumn<QString>("min");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<int>("value");
        QTest::newRow("0 is outside: the middle") << "1920000"
                                                  << "'1950000'" << 1950000;
        QTest::newRow("0 is within") << "0"
                                     << "'1950000'" << 0;
        QTest::newRow("missing") << "0"
                                 << "null" << 0;
        QTest::newRow("empty array") << "1920000"
                                     << "[]" << 1950000;
    }

    void defaultThatIsNoArrayReadsAsAnEmptyOne()
    {
        QFETCH(QString, min);
        QFETCH(QString, defaultValue);
        SPage p(Table(2, QString(kRange).arg(min, "1980000", "", defaultValue)));
        QTEST(Cell<QSpinBox>(p.table, 0, 0)->value(), "value");
        QTEST(Cell<QSpinBox>(p.table, 0, 1)->value(), "value");
    }

    void labelOfADefaultThatIsNoArrayStartsWithZero()
    {
        SPage p(Table(2, "{'trait':{'dataType':'label','defaultValue':'NA'}}"));
        QCOMPARE(Cell<QLabel>(p.table, 0, 0)->text(), QString("0"));
        QCOMPARE(Cell<QLabel>(p.table, 0, 1)->text(), QString("0"));
    }

    void labelCellsHaveAFrame()
    {
        SPage p(Table(1, kLabel));
        auto *label = Cell<QLabel>(p.table, 0, 0);
        QVERIFY(label->frameStyle() != QFrame::NoFrame);
        QCOMPARE(label->text(), QString("x"));
        QCOMPARE(label->font().family(), QString("Arial"));
    }

    void rangeCells()
    {
        SPage p(Table(3, QString(kRange).arg("-10", "-5", "", "['-6','-11','3']")));
        auto *box = Cell<QSpinBox>(p.table, 0, 0);
        QCOMPARE(box->minimum(), -10);
        QCOMPARE(box->maximum(), -5);
        QCOMPARE(box->toolTip(), QString("-10~-5"));
        QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QCOMPARE(box->font().family(), QString("Arial"));
        QCOMPARE(box->value(), -6);
        QCOMPARE(Cell<QSpinBox>(p.table, 0, 1)->value(), -7);
        QCOMPARE(Cell<QSpinBox>(p.table, 0, 2)->value(), -7);
    }

    void pointRangeCells()
    {
        const QString member =
            "{'trait':{'dataType':'pointRange','value':{'min':-1.5,'max':2.25%1},"
            "'defaultValue':['1.125','9']}}";
        CTestDocument document = Table(2, member.arg(",'decimals':3"));
        document.Member("request.group2.b", member.arg(""));
        SPage p(document);
        auto *box = Cell<QDoubleSpinBox>(p.table, 0, 0);
        QCOMPARE(box->text(), QString("1.125"));
        QCOMPARE(box->toolTip(), QString("-1.5~2.25"));
        QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QCOMPARE(Cell<QDoubleSpinBox>(p.table, 0, 1)->text(), QString("0.375"));
        QCOMPARE(Cell<QDoubleSpinBox>(p.table, 1, 0)->text(), QString("1.12500"));
    }

    void valueOfACheckedEntryFillsTheRow()
    {
        SPage p(Table(
            2, QString(kRange).arg("0", "99", ",'rangeCheck':'0,5~9','value':'5'", "['7','8']")));
        QCOMPARE(Cell<QSpinBox>(p.table, 0, 0)->value(), 5);
        QCOMPARE(Cell<QSpinBox>(p.table, 0, 1)->value(), 5);
        QCOMPARE(Cell<QSpinBox>(p.table, 0, 1)->toolTip(), QString("0,5~9"));
    }

    void valueOfAnUncheckedEntryIsNotUsed()
    {
        SPage p(Table(2, QString(kRange).arg("0", "99", ",'value':'5'", "['7','8']")));
        QCOMPARE(Cell<QSpinBox>(p.table, 0, 0)->value(), 7);
    }

    void unsignedCells()
    {
        const QString member = "{'defaultEnableStatus':0,'trait':{'dataType':'unsignedRange',"
                               "'value':{'min':'%1','max':'%2'%3},"
                               "'defaultValue':['4294967294','10']}}";
        CTestDocument document = Table(3, member.arg("4", "4294967295", ",'displayBase':16"));
        document.Member("request.group2.b", member.arg("0", "4294967295", ""));
        document.Member("request.group2.c", member.arg("20", "101", ",'displayBase':16"));
        SPage p(document);
        auto *box = Cell<CUnsignedSpinBox>(p.table, 0, 0);
        QVERIFY(box);
        QCOMPARE(box->text(), QString("FFFFFFFE"));
        QCOMPARE(box->m_base, 16);
        QCOMPARE(box->m_minimum, 4u);
        QCOMPARE(box->m_maximum, 4294967295u);
        QCOMPARE(box->toolTip(), QString("4~4294967295"));
        QVERIFY(box->isEnabled());  // no status applies
        QCOMPARE(Cell<CUnsignedSpinBox>(p.table, 0, 1)->text(), QString("A"));
        QCOMPARE(Cell<CUnsignedSpinBox>(p.table, 0, 2)->text(), QString("A"));
        QCOMPARE(Cell<CUnsignedSpinBox>(p.table, 1, 0)->text(), QString("4294967294"));
        QCOMPARE(Cell<CUnsignedSpinBox>(p.table, 2, 0)->text(), QString("3C"));  // the middle
        for (int c = 0; c < 3; ++c)
            QCOMPARE(p.table->columnWidth(c), 75);
    }

    void listCells()
    {
        SPage p(
            Table(3, "{'trait':{'dataType':'list','value':['a','b'],'defaultValue':['b','a']}}"));
        QStringList texts;
        for (int c = 0; c < 3; ++c) {
            QCOMPARE(Cell<QComboBox>(p.table, 0, c)->count(), 2);
            texts.append(Cell<QComboBox>(p.table, 0, c)->currentText());
        }
        QCOMPARE(texts, (QStringList{"b", "a", "a"}));
    }

    void listCellsDoNotFollowASubscription()
    {
        SPage p(Table(1, "{'subscribeValue':'request.group2.memberProperty.a','trait':{"
                         "'dataType':'list','valuePair':{'x':['a']},'defaultValue':['x']}}"));
        QCOMPARE(Cell<QComboBox>(p.table, 0, 0)->count(), 0);
    }

    void rangeCellsTakeTheEntryOfThePublishersDefault()
    {
        CTestDocument document =
            Table(1, "{'subscribeValue':'request.group1.memberProperty.band','trait':{"
                     "'dataType':'range','valuePair':{'n78':{'min':5,'max':7}},"
                     "'defaultValue':['6']}}");
        document.Member("request.group1.band", "{'trait':{'dataType':'list','value':['n78'],"
                                               "'defaultValue':'n78'}}");
        SPage p(document);
        QCOMPARE(Cell<QSpinBox>(p.table, 0, 0)->maximum(), 7);
        QCOMPARE(Cell<QSpinBox>(p.table, 0, 0)->value(), 6);
    }

    void enableStatusAppliesToTheWholeRow_data()
    {
        QTest::addColumn<QString>("status");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("0") << "0" << false;
        QTest::newRow("missing") << "null" << false;
        QTest::newRow("1") << "1" << true;
        QTest::newRow("2") << "2" << true;
    }

    void enableStatusAppliesToTheWholeRow()
    {
        QFETCH(QString, status);
        QFETCH(bool, enabled);
        const QString head = "{'defaultEnableStatus':" + status + ",'trait':{'dataType':";
        CTestDocument document = Table(2, head + "'range','value':{},'defaultValue':['0']}}");
        document.Member("request.group2.b", head + "'pointRange','value':{}}}");
        document.Member("request.group2.c", head + "'label'}}");
        document.Member("request.group2.d", head + "'list','value':['a']}}");
        SPage p(document);
        for (int r = 0; r < 3; ++r) {
            for (int c = 0; c < 2; ++c)
                QCOMPARE(p.table->cellWidget(r, c)->isEnabled(), enabled);
        }
        QVERIFY(p.table->cellWidget(3, 0)->isEnabled());  // lists have no status
    }

    void unsupportedDataTypeLeavesItsRowEmptyAndTheOthersFilled()
    {
        CTestDocument document = Table(2, "{'caption':'A','trait':{'dataType':'boolean'}}");
        document.Member("request.group2.b", kLabel);
        LogCapture log(lcEngine());
        SPage p(document);
        QCOMPARE(log.Critical(),
                 QStringList("---> [Fail][Init][type3] Cannot get the row info: dataType not "
                             "support yet <---  \"boolean\""));
        QVERIFY(!p.table->cellWidget(0, 0));
        QVERIFY(p.table->cellWidget(1, 0));
    }

    void sixteenColumnsAreNarrowAndMoreKeepTheScrollBar()
    {
        for (const int columns : {16, 17}) {
            SPage p(Table(columns, kLabel));
            const int header = p.table->horizontalHeader()->height();
            const bool narrow = columns == 16;
            QCOMPARE(p.table->maximumWidth(),
                     p.table->verticalHeader()->width() + (narrow ? 16 : 15) * 58);
            QCOMPARE(p.table->maximumHeight(), (narrow ? 1 : 2) * header + 22);
            QCOMPARE(p.table->minimumSize(), p.table->maximumSize());
            QCOMPARE(p.table->horizontalScrollBarPolicy(),
                     narrow ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
            QCOMPARE(p.table->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        }
    }

    void tooManyColumnsAreCut()
    {
        LogCapture log(lcEngine());
        SPage p(Table(1025, kLabel));
        QCOMPARE(p.table->columnCount(), 1024);
        QVERIFY(log.Critical().contains("dimentionCount is cut to 1024 from 1025"));
    }

    void noColumnsGiveATableOfHeaders()
    {
        for (const int columns : {0, -3}) {
            SPage p(Table(columns, kLabel));
            QCOMPARE(p.table->columnCount(), 0);
            QCOMPARE(p.table->rowCount(), 1);
        }
    }
};

QUORLIN_TEST_CLASS(CColumnTableInitTest)
#include "ColumnTableInitTest.moc"
