// Update and Package of scalar members.
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QtTest>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kValue[] = "response.group1.value";

CTestDocument Document(const QString &trait, const QString &caption = "")
{
    return CTestDocument().Member(kValue,
                                  QString("{'caption':'%1','trait':%2}").arg(caption, trait));
}

const char kList[] = "{'dataType':'list','value':['a','b','B'],'defaultValue':'a'}";

}  // namespace

class CScalarUpdatePackageTest : public QObject
{
    Q_OBJECT

private slots:
    void updateSelectsTheItem()
    {
        CTestPage page(Document(kList));
        auto *box = page.Add<QComboBox>(kValue);
        page.Init();
        page.UpdateWidget(Document("{'dataType':'list','value':['x'],'defaultValue':'B'}").Json());
        QCOMPARE(box->currentText(), QString("B"));
        QCOMPARE(box->count(), 3);  // the list is not filled anew
    }

    void updateToATextThatIsNoItemShowsNothing()
    {
        CTestPage page(Document(kList));
        auto *box = page.Add<QComboBox>(kValue);
        page.Init();
        page.UpdateWidget(Document("{'dataType':'list','defaultValue':'A'}").Json());
        QCOMPARE(box->currentIndex(), -1);
        QCOMPARE(page.Package(kValue), QJsonValue(QString()));
    }

    void updateOfARangeIsClippedToItsLimits()
    {
        const QString trait = "{'dataType':'range','value':{'min':0,'max':10},'defaultValue':'%1'}";
        CTestPage page(Document(trait.arg(1)));
        auto *box = page.Add<QSpinBox>(kValue);
        page.Init();
        page.UpdateWidget(Document(trait.arg(7)).Json());
        QCOMPARE(box->value(), 7);
        page.UpdateWidget(Document(trait.arg(70)).Json());
        QCOMPARE(box->value(), 10);
    }

    void updateOfAPointRange()
    {
        const QString trait = "{'dataType':'pointRange','value':{'min':-99,'max':99,'decimals':3},"
                              "'defaultValue':'%1'}";
        CTestPage page(Document(trait.arg(1)));
        auto *box = page.Add<QDoubleSpinBox>(kValue);
        page.Init();
        page.UpdateWidget(Document(trait.arg("-10.125")).Json());
        QCOMPARE(box->text(), QString("-10.125"));
    }

    void updateOfALabel()
    {
        CTestPage page(Document("{'dataType':'label','defaultValue':'NA'}"));
        auto *label = page.Add<QLabel>(kValue);
        page.Init();
        page.UpdateWidget(Document("{'dataType':'label','defaultValue':'-80.5'}").Json());
        QCOMPARE(label->text(), QString("-80.5"));
    }

    void updateOfACheckBoxRenamesAndChecksIt()
    {
        CTestPage page(Document("{'dataType':'boolean','defaultValue':'false'}", "old"));
        auto *box = page.Add<QCheckBox>(kValue);
        page.Init();
        page.UpdateWidget(Document("{'dataType':'boolean','defaultValue':'true'}", "new").Json());
        QVERIFY(box->isChecked());
        QCOMPARE(box->text(), QString("new"));
        page.UpdateWidget(Document("{'dataType':'boolean','defaultValue':'TRUE'}", "new").Json());
        QVERIFY(!box->isChecked());
    }

    void updateWithoutAValueLeavesTheWidgetWithoutAWord()
    {
        CTestPage page(Document("{'dataType':'label','defaultValue':'NA'}"));
        auto *label = page.Add<QLabel>(kValue);
        page.Init();
        LogCapture log(lcEngine());
        page.UpdateWidget(Document("{'dataType':'label'}").Json());
        page.UpdateWidget(Document("{'dataType':'label','defaultValue':null}").Json());
        QCOMPARE(label->text(), QString("NA"));
        QCOMPARE(log.Critical(), QStringList());
    }

    void changeByAnUpdateRunsRelevance()
    {
        CTestDocument document;
        document.Member(kValue,
                        "{'publishValueList':['response.group1.memberProperty.other'],"
                        "'trait':{'dataType':'list','value':['a','b'],'defaultValue':'a'}}");
        document.Member("response.group1.other",
                        "{'subscribeValue':'response.group1.memberProperty.value',"
                        "'trait':{'dataType':'label','valuePair':{'b':'of b'},"
                        "'defaultValue':'NA'}}");
        CTestPage page(document);
        page.Add<QComboBox>(kValue);
        auto *other = page.Add<QLabel>("response.group1.other");
        page.Init();
        page.UpdateWidget(Document("{'dataType':'list','defaultValue':'b'}").Json());
        QCOMPARE(other->text(), QString("of b"));
        // Nothing selected publishes nothing.
        LogCapture log(lcEngine());
        page.Model() = document.Json();
        page.UpdateWidget(Document("{'dataType':'list','defaultValue':'gone'}").Json());
        QCOMPARE(other->text(), QString("of b"));
        QVERIFY(!log.Has("---> [Value Relevance] Key"));
    }

    void packagedValueIsAString_data()
    {
        QTest::addColumn<QString>("trait");
        QTest::addColumn<QString>("widget");
        QTest::addColumn<QString>("expected");
        QTest::newRow("list") << kList << "QComboBox"
                              << "a";
        QTest::newRow("range") << "{'dataType':'range','value':{'min':-9,'max':9},"
                                  "'defaultValue':'-7'}"
                               << "QSpinBox"
                               << "-7";
        QTest::newRow("hexadecimal range is decimal")
            << "{'dataType':'range','value':{'min':0,'max':255,'displayBase':16},"
               "'defaultValue':'255'}"
            << "QSpinBox"
            << "255";
        QTest::newRow("hexadecimal digits that read as decimal")
            << "{'dataType':'range','value':{'min':0,'max':255,'displayBase':16},"
               "'defaultValue':'16'}"
            << "QSpinBox"
            << "16";
        QTest::newRow("pointRange as shown")
            << "{'dataType':'pointRange','value':{'min':0,'max':99,'decimals':2},"
               "'defaultValue':'60.1'}"
            << "QDoubleSpinBox"
            << "60.10";
        QTest::newRow("checked") << "{'dataType':'boolean','defaultValue':'true'}"
                                 << "QCheckBox"
                                 << "true";
        QTest::newRow("unchecked") << "{'dataType':'boolean','defaultValue':'no'}"
                                   << "QCheckBox"
                                   << "false";
        QTest::newRow("label") << "{'dataType':'label','defaultValue':'NA'}"
                               << "QLabel"
                               << "NA";
    }

    void packagedValueIsAString()
    {
        QFETCH(QString, trait);
        QFETCH(QString, widget);
        CTestPage page(Document(trait));
        if (widget == "QComboBox")
            page.Add<QComboBox>(kValue);
        else if (widget == "QSpinBox")
            page.Add<QSpinBox>(kValue);
        else if (widget == "QDoubleSpinBox")
            page.Add<QDoubleSpinBox>(kValue);
        else if (widget == "QCheckBox")
            page.Add<QCheckBox>(kValue);
        else
            page.Add<QLabel>(kValue);
        page.Init();
        const QJsonValue value = page.Package(kValue);
        QVERIFY(value.isString());
        QTEST(value.toString(), "expected");
    }

    void hexadecimalTextFFPackages255()
    {
        CTestPage page(Document("{'dataType':'range','value':{'min':0,'max':255,'displayBase':16},"
                                "'defaultValue':'0'}"));
        auto *box = page.Add<QSpinBox>(kValue);
        page.Init();
        box->selectAll();
        QTest::keyClicks(box, "FF");
        QCOMPARE(page.Package(kValue).toString(), QString("255"));
    }

    void boxWithASuffixPackagesItsValue()
    {
        CTestPage page(Document("{'dataType':'range','value':{'min':0,'max':255},"
                                "'defaultValue':'17'}"));
        page.Add<QSpinBox>(kValue)->setSuffix(" dB");
        page.Init();
        QCOMPARE(page.Package(kValue).toString(), QString("17"));
    }

    void memberThatInitRejectedIsPackagedAllTheSame()
    {
        CTestPage page(Document(kList));
        auto *box = page.Add<QSpinBox>(kValue);  // of the wrong class
        page.Init();
        box->setValue(42);
        QCOMPARE(page.Package(kValue).toString(), QString("42"));
    }

    void widgetOfAnotherClassIsNotPackaged()
    {
        CTestPage page(Document(kList));
        page.Add<QLineEdit>(kValue);
        page.Init();
        LogCapture log(lcEngine());
        QVERIFY(page.Package(kValue).isUndefined());
        QCOMPARE(log.Critical(),
                 QStringList("QLineEdit ---> [Fail][Package][type1] : Not support this type yet "
                             "<--- "));
    }

    void membersOfAGroupArePackagedSideBySide()
    {
        CTestDocument document;
        for (const char *member : {"request.group1.a", "request.group1.b", "request.group2.c"})
            document.Member(member, QString("{'trait':%1}").arg(kList));
        CTestPage page(document);
        for (const char *member : {"request.group1.a", "request.group1.b", "request.group2.c"})
            page.Add<QComboBox>(member);
        page.Init();
        page.PackageMemberValue();
        auto *b = page.findChild<QComboBox *>(document.ObjectName("request.group1.b"));
        b->setCurrentText("b");
        QCOMPARE(page.Package("request.group1.b").toString(), QString("b"));
        const QJsonObject request = page.Model()["cmdIf"].toObject()["request"].toObject();
        QCOMPARE(request["group1"].toObject()["memberValue"].toObject(),
                 JsonObject("{'a':'a','b':'b'}"));
        QCOMPARE(request["group2"].toObject()["memberValue"].toObject(), JsonObject("{'c':'a'}"));
    }
};

QUORLIN_TEST_CLASS(CScalarUpdatePackageTest)
#include "ScalarUpdatePackageTest.moc"
