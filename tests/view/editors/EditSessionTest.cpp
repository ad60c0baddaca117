// The edit under way: what becomes of text that the user is still typing.
#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolTip>
#include <QtTest>

#include "View/editors/UnsignedSpinBox.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kLoss[] = "request.group1.loss";
const char kFrequency[] = "request.group1.frequency";
const char kTable[] = "request.group2.mask";

// A loss of 0.93750 dB, a frequency of 1950000 kHz in a band, and an unsigned cell of FF.
CTestDocument Document()
{
    return CTestDocument()
        .Member(kLoss, "{'trait':{'dataType':'pointRange','value':{'min':-30,'max':30,"
                       "'decimals':5},'defaultValue':'0.93750'}}")
        .Member(kFrequency, "{'trait':{'dataType':'range','value':{'min':0,'max':1980000,"
                            "'rangeCheck':'0,1920000~1980000'},'defaultValue':'1950000'}}")
        .ColumnTable("request.group2", 1)
        .Member(kTable, "{'trait':{'dataType':'unsignedRange','value':{'min':'0','max':'4095',"
                        "'displayBase':16},'defaultValue':['255']}}");
}

struct SPage : CTestPage
{
    SPage() : CTestPage(Document())
    {
        loss = Add<QDoubleSpinBox>(kLoss);
        frequency = Add<QSpinBox>(kFrequency);
        table = AddTable(kTable);
        Init();
        mask = qobject_cast<CUnsignedSpinBox *>(table->cellWidget(0, 0));
        QApplication::setActiveWindow(this);
    }
    QString Packaged(const char *member) { return Package(member).toString(); }

    QDoubleSpinBox *loss;
    QSpinBox *frequency;
    QTableWidget *table;
    CUnsignedSpinBox *mask;
};

void Empty(QWidget *editor)
{
    QTest::keyClick(editor, Qt::Key_End);
    for (int i = 0; i < 12; ++i)
        QTest::keyClick(editor, Qt::Key_Backspace);
}

void Replace(QWidget *editor, const QString &text)
{
    Empty(editor);
    QTest::keyClicks(editor, text);
}

enum class EEnd
{
    Package,
    Leave,
    Enter,
    Hide,
};

void End(SPage &page, QWidget *editor, EEnd how)
{
    switch (how) {
    case EEnd::Package:
        page.PackageMemberValue();
        break;
    case EEnd::Leave:
        (editor == page.loss ? page.frequency : static_cast<QWidget *>(page.loss))->setFocus();
        break;
    case EEnd::Enter:
        QTest::keyClick(editor, Qt::Key_Return);
        break;
    case EEnd::Hide:
        page.hide();
        break;
    }
}

}  // namespace

Q_DECLARE_METATYPE(EEnd)

class CEditSessionTest : public QObject
{
    Q_OBJECT

private slots:
    void textIsMadeAValueWhenTheEditEnds_data()
    {
        QTest::addColumn<bool>("isLoss");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<EEnd>("end");
        QTest::addColumn<QString>("expected");
        const std::pair<const char *, EEnd> ends[] = {
            {"a request", EEnd::Package},
            {"loss of focus", EEnd::Leave},
            {"Enter", EEnd::Enter},
            {"hiding", EEnd::Hide},
        };
        struct SRow
        {
            bool isLoss;
            const char *typed;
            const char *expected;
        };
        const SRow rows[] = {
            {true, "", "0.93750"},          {true, "-", "0.93750"},
            {true, "-.", "0.93750"},        {true, "99.5", "9.50000"},  // the second 9 is refused
            {true, "1.40000", "1.40625"},   {true, "-1.01", "-1.00000"},
            {true, "2.", "2.00000"},        {true, "29.99999", "30.00000"},
            {false, "", "1950000"},         {false, "5", "0"},
            {false, "1930000", "1930000"},  {false, "1919999", "0"},
            {false, "19300005", "1930000"},
        };
        for (const SRow &row : rows) {
            for (const auto &end : ends)
                QTest::addRow("\"%s\" and %s", row.typed, end.first)
                    << row.isLoss << QString(row.typed) << end.second << QString(row.expected);
        }
    }

    void textIsMadeAValueWhenTheEditEnds()
    {
        QFETCH(bool, isLoss);
        QFETCH(QString, typed);
        QFETCH(EEnd, end);
        SPage page;
        auto *editor = isLoss ? static_cast<QAbstractSpinBox *>(page.loss) : page.frequency;
        editor->setFocus();
        QVERIFY(editor->hasFocus());
        Replace(editor, typed);
        End(page, editor, end);
        QTEST(editor->text(), "expected");
        QTEST(page.Packaged(isLoss ? kLoss : kFrequency), "expected");
        if (end == EEnd::Package)
            QVERIFY(editor->hasFocus());
    }

    void unfinishedTextReturnsToTheValueBeforeTheFirstKey()
    {
        SPage page;
        page.loss->setFocus();
        page.loss->setValue(1.4);  // as a document brought it: no step of the wire
        QList<double> shown;
        connect(page.loss, QOverload<double>::of(&QDoubleSpinBox::valueChanged), &page,
                [&shown](double value) { shown.append(value); });
        Empty(page.loss);
        QCOMPARE(shown.last(), 1.0);  // what the user types is followed on the way
        QCOMPARE(page.Packaged(kLoss), QString("1.40000"));
        QCOMPARE(shown.last(), 1.4);
    }

    void eachEditHasItsOwnBeginning()
    {
        SPage page;
        page.loss->setFocus();
        Replace(page.loss, "2");
        page.PackageMemberValue();
        Empty(page.loss);
        QCOMPARE(page.Packaged(kLoss), QString("2.00000"));
    }

    void editorThatIsLeftWithoutAnEditKeepsItsValue()
    {
        SPage page;
        page.loss->setValue(1.4);
        page.frequency->setValue(5);
        page.loss->setFocus();
        QTest::keyClick(page.loss, Qt::Key_End);
        QTest::keyClick(page.loss, Qt::Key_Return);
        page.frequency->setFocus();
        QTest::keyClick(page.frequency, Qt::Key_Left);
        page.loss->setFocus();
        QCOMPARE(page.Packaged(kLoss), QString("1.40000"));
        QCOMPARE(page.Packaged(kFrequency), QString("5"));
    }

    void steppedValueIsHeldToItsListWhenTheEditorIsLeft()
    {
        SPage page;
        page.frequency->setFocus();
        page.frequency->setValue(1920000);
        QTest::keyClick(page.frequency, Qt::Key_Down);
        QCOMPARE(page.frequency->value(), 1919999);
        page.loss->setFocus();
        QCOMPARE(page.frequency->value(), 0);
    }

    void editorOfFiveDecimalsStepsAsTheWireDoes()
    {
        SPage page;
        page.loss->setFocus();
        QTest::keyClick(page.loss, Qt::Key_Up);
        QCOMPARE(page.loss->text(), QString("0.96875"));
    }

    void emptiedUnsignedEditorReturnsToItsNumber()
    {
        SPage page;
        page.mask->setFocus();
        Empty(page.mask);
        QCOMPARE(page.mask->text(), QString());
        page.PackageMemberValue();
        QCOMPARE(page.mask->text(), QString("FF"));
        Replace(page.mask, "1a");
        QCOMPARE(page.Package(kTable).toArray(), QJsonArray({"1A"}));
    }

    void pasteAndCutAreEditsToo()
    {
        SPage page;
        page.loss->setFocus();
        page.loss->selectAll();
        page.loss->findChild<QLineEdit *>()->cut();
        QCOMPARE(page.Packaged(kLoss), QString("0.93750"));
    }

    void editEndsBeforeAnotherWidgetPublishes()
    {
        const char band[] = "request.group1.band";
        CTestDocument document;
        document
            .Member(band, "{'publishValueList':['request.group1.memberProperty.frequency'],'trait':"
                          "{'dataType':"
                          "'list','value':['n1','n3'],'defaultValue':'n1'}}")
            .Member(kFrequency, "{'subscribeValue':'request.group1.memberProperty.band','trait':{'"
                                "dataType':'range',"
                                "'valuePair':{'n1':{'min':10,'max':20},'n3':{'min':30,'max':40}},"
                                "'defaultValue':'15'}}");
        CTestPage page(document);
        auto *bands = page.Add<QComboBox>(band);
        auto *frequency = page.Add<QSpinBox>(kFrequency);
        page.Init();
        QApplication::setActiveWindow(&page);
        frequency->setFocus();
        Empty(frequency);
        bands->setCurrentText("n3");
        QCOMPARE(frequency->text(), QString("35"));
        Empty(frequency);
        QCOMPARE(page.Package(kFrequency).toString(), QString("35"));
    }

    void refusedKeyShowsTheLimits()
    {
        SPage page;
        page.loss->setFocus();
        page.loss->selectAll();
        QToolTip::hideText();
        QTest::keyClicks(page.loss, "9");
        QVERIFY(!QToolTip::text().startsWith("Range should be"));
        QTest::keyClicks(page.loss, "9");
        QCOMPARE(page.loss->text(), QString("9"));
        QCOMPARE(QToolTip::text(), QString("Range should be:-30~30"));
    }

    void gainAboveTheWireGoesToTheLastStep()
    {
        CTestDocument document;
        document.Member(kLoss, "{'trait':{'dataType':'pointRange','value':{'min':0,'max':2047,"
                               "'decimals':5},'defaultValue':'1999.5'}}");
        CTestPage page(document);
        auto *gain = page.Add<QDoubleSpinBox>(kLoss);
        page.Init();
        QCOMPARE(page.Package(kLoss).toString(), QString("1999.50000"));  // as the document has it
        Replace(gain, "1500");
        QCOMPARE(page.Package(kLoss).toString(), QString("1023.96875"));
    }

    void editGoesWithItsEditor()
    {
        SPage page;
        page.mask->setFocus();
        Empty(page.mask);
        page.table->removeCellWidget(0, 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        page.PackageMemberValue();
    }
};

QUORLIN_TEST_CLASS(CEditSessionTest)
#include "EditSessionTest.moc"
