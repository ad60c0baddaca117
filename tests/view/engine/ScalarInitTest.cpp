// Init of scalar members.
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>
#include <QtTest>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kValue[] = "request.group1.value";
const char kBand[] = "request.group1.band";
const char kType[] = "request.group1.type";
const char kBandPath[] = "request.group1.memberProperty.band";

QString List(const QString &items, const QString &defaultValue)
{
    return QString("{'trait':{'dataType':'list','value':%1,'defaultValue':%2}}")
        .arg(items, defaultValue);
}

QString Numbers(const QString &type, const QString &entry, const QString &defaultValue)
{
    return QString("{'trait':{'dataType':'%1','value':%2,'defaultValue':%3}}")
        .arg(type, entry, defaultValue);
}

QStringList Items(const QComboBox *box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items.append(box->itemText(i));
    return items;
}

}  // namespace

class CScalarInitTest : public QObject
{
    Q_OBJECT

private slots:
    void listShowsItsItemsAndDefault()
    {
        CTestPage page(CTestDocument().Member(kValue, List("['a','b','c']", "'b'")));
        auto *box = page.Add<QComboBox>(kValue);
        box->addItem("of the form");
        page.Init();
        QCOMPARE(Items(box), (QStringList{"a", "b", "c"}));
        QCOMPARE(box->currentText(), QString("b"));
        QCOMPARE(box->sizeAdjustPolicy(), QComboBox::AdjustToContents);
        QVERIFY(box->itemData(0).isNull());
    }

    void defaultThatIsNoItemLeavesTheFirstItem()
    {
        CTestPage page(CTestDocument().Member(kBand, List("['n1']", "'1'")));
        auto *box = page.Add<QComboBox>(kBand);
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(box->currentText(), QString("n1"));
        QCOMPARE(log.Critical(), QStringList());
        QCOMPARE(page.Package(kBand).toString(), QString("n1"));
    }

    void unsupportedMemberIsHiddenAndUnfilled()
    {
        QJsonObject member = JsonObject(List("['a']", "'a'"));
        member["defaultSupport"] = 0;
        member["publishValueList"] = QJsonArray{kBandPath};
        CTestPage page(CTestDocument().Member(kValue, member));
        auto *box = page.Add<QComboBox>(kValue);
        box->addItems({"held", "other"});
        page.Init();
        QVERIFY(box->isHidden());
        QCOMPARE(Items(box), (QStringList{"held", "other"}));
        LogCapture log(lcEngine());
        box->setCurrentText("other");
        QVERIFY(!log.Has("============ [Start]"));
        QCOMPARE(page.Package(kValue).toString(), QString("other"));
    }

    void missingSupportCountsAsUnsupported()
    {
        CTestDocument document;
        document.Group("request.group1", 2);  // the one way to a member without the key
        document.Member(kValue, List("['a']", "'a'"));
        CTestPage page(document);
        auto *box = page.Add<QComboBox>(kValue);
        page.m_text = QString::fromStdString(page.m_text)
                          .replace("\"groupType\":2", "\"groupType\":1")
                          .toStdString();
        page.Init();
        QVERIFY(box->isHidden());
    }

    void enableStatusAtInit_data()
    {
        QTest::addColumn<QJsonValue>("status");
        QTest::addColumn<bool>("enabledByForm");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("0 disables") << QJsonValue(0) << true << false;
        QTest::newRow("missing disables") << QJsonValue() << true << false;
        QTest::newRow("1 keeps enabled") << QJsonValue(1) << true << true;
        QTest::newRow("1 keeps disabled") << QJsonValue(1) << false << false;
    }

    void enableStatusAtInit()
    {
        QFETCH(QJsonValue, status);
        QFETCH(bool, enabledByForm);
        QJsonObject member = JsonObject(List("['a']", "'a'"));
        member["defaultEnableStatus"] = status;
        CTestPage page(CTestDocument().Member(kValue, member));
        auto *box = page.Add<QComboBox>(kValue);
        box->setEnabled(enabledByForm);
        page.Init();
        QTEST(box->isEnabled(), "enabled");
        QCOMPARE(box->currentText(), QString("a"));
    }

    void rangeStartsAtItsDefaultOrTheMiddle_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<int>("expected");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("default") << "{'min':-10,'max':10}"
                                 << "'7'" << 7 << "-10~10";
        QTest::newRow("low limit") << "{'min':-10,'max':10}"
                                   << "'-10'" << -10 << "-10~10";
        QTest::newRow("above") << "{'min':1,'max':10}"
                               << "'11'" << 5 << "1~10";
        QTest::newRow("below") << "{'min':1,'max':10}"
                               << "'0'" << 5 << "1~10";
        QTest::newRow("middle truncates toward zero") << "{'min':-10,'max':-5}"
                                                      << "'1'" << -7 << "-10~-5";
        QTest::newRow("widest limits") << "{'min':2147483645,'max':2147483647}"
                                       << "'0'" << 2147483646 << "2147483645~2147483647";
        QTest::newRow("JSON number reads as 0") << "{'min':-5,'max':10}"
                                                << "7" << 0 << "-5~10";
        QTest::newRow("JSON number outside") << "{'min':1,'max':10}"
                                             << "7" << 5 << "1~10";
        QTest::newRow("list to check") << "{'min':0,'max':10,'rangeCheck':'0,5~10'}"
                                       << "'6'" << 6 << "0,5~10";
        QTest::newRow("no entry") << "null"
                                  << "'6'" << 0 << "0~0";
    }

    void rangeStartsAtItsDefaultOrTheMiddle()
    {
        QFETCH(QString, entry);
        QFETCH(QString, defaultValue);
        CTestPage page(CTestDocument().Member(kValue, Numbers("range", entry, defaultValue)));
        auto *box = page.Add<QSpinBox>(kValue);
        page.Init();
        QTEST(box->value(), "expected");
        QTEST(box->toolTip(), "toolTip");
    }

    void rangeShowsItsDisplayBase()
    {
        CTestPage page(CTestDocument().Member(
            kValue, Numbers("range", "{'min':0,'max':255,'displayBase':16}", "'255'")));
        auto *box = page.Add<QSpinBox>(kValue);
        page.Init();
        QCOMPARE(box->displayIntegerBase(), 16);
        QCOMPARE(box->value(), 255);
        QCOMPARE(box->toolTip(), QString("0~255"));
    }

    void pointRangeStartsAtItsDefaultOrTheMiddle_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("default") << "{'min':-70.5,'max':30,'decimals':3}"
                                 << "'-1.125'"
                                 << "-1.125"
                                 << "-70.5~30";
        QTest::newRow("decimals of the form") << "{'min':0,'max':9}"
                                              << "'1.5'"
                                              << "1.50"
                                              << "0~9";
        QTest::newRow("above") << "{'min':1,'max':2.5,'decimals':2}"
                               << "'3'"
                               << "1.75"
                               << "1~2.5";
        QTest::newRow("below") << "{'min':1,'max':2.5,'decimals':2}"
                               << "'0'"
                               << "1.75"
                               << "1~2.5";
        QTest::newRow("six digits in the tip") << "{'min':0,'max':1234567.25,'decimals':2}"
                                               << "'1'"
                                               << "1.00"
                                               << "0~1.23457e+06";
        QTest::newRow("more decimals than the form")
            << "{'min':-0.12345,'max':0.12345,'decimals':5}"
            << "'-0.12345'"
            << "-0.12345"
            << "-0.12345~0.12345";
    }

    void pointRangeStartsAtItsDefaultOrTheMiddle()
    {
        QFETCH(QString, entry);
        QFETCH(QString, defaultValue);
        CTestPage page(CTestDocument().Member(kValue, Numbers("pointRange", entry, defaultValue)));
        auto *box = page.Add<QDoubleSpinBox>(kValue);
        page.Init();
        QTEST(box->text(), "text");
        QTEST(box->toolTip(), "toolTip");
    }

    void labelShowsItsDefaultEvenWhenItSubscribes()
    {
        CTestDocument document;
        document.Member(kBand, List("['n1']", "'n1'"));
        document.Member(kValue, "{'subscribeValue':'request.group1.memberProperty.band',"
                                "'trait':{'dataType':'label','valuePair':{'n1':'of n1'},"
                                "'defaultValue':'NA'}}");
        CTestPage page(document);
        page.Add<QComboBox>(kBand);
        auto *label = page.Add<QLabel>(kValue);
        page.Init();
        QCOMPARE(label->text(), QString("NA"));
    }

    void checkBoxIsCheckedByTheExactTextTrueAlone_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("checked");
        QTest::newRow("true") << "'true'" << true;
        QTest::newRow("True") << "'True'" << false;
        QTest::newRow("1") << "'1'" << false;
        QTest::newRow("blank") << "' true'" << false;
        QTest::newRow("false") << "'false'" << false;
        QTest::newRow("JSON true") << "true" << false;
    }

    void checkBoxIsCheckedByTheExactTextTrueAlone()
    {
        QFETCH(QString, text);
        CTestPage page(CTestDocument().Member(
            kValue, QString("{'caption':'Use it','trait':{'dataType':'boolean',"
                            "'value':['true','false'],'defaultValue':%1}}")
                        .arg(text)));
        auto *box = page.Add<QCheckBox>(kValue);
        box->setChecked(!QString(text).contains("'true'"));
        page.Init();
        QTEST(box->isChecked(), "checked");
        QCOMPARE(box->text(), QString("Use it"));
    }

    void subscriberTakesTheEntryOfThePublishersDefault()
    {
        CTestDocument document;
        document.Member(kValue, QString("{'subscribeValue':'%1','trait':{'dataType':'list',"
                                        "'valuePair':{'n1':['1','2'],'n78':['7','8']},"
                                        "'defaultValue':'8'}}")
                                    .arg(kBandPath));
        document.Member(kBand, List("['n1','n78']", "'n78'"));
        CTestPage page(document);
        auto *value = page.Add<QComboBox>(kValue);  // before its publisher on the page
        page.Add<QComboBox>(kBand);
        page.Init();
        QCOMPARE(Items(value), (QStringList{"7", "8"}));
        QCOMPARE(value->currentText(), QString("8"));
    }

    void subscriberLooksAtTheDocumentAndNotAtTheWidget()
    {
        CTestDocument document;
        document.Member(kBand, List("['n1']", "'1'"));  // shows "n1", default "1"
        document.Member(kValue, QString("{'subscribeValue':'%1','trait':{'dataType':'range',"
                                        "'valuePair':{'n1':{'min':1,'max':3}},'defaultValue':'2'}}")
                                    .arg(kBandPath));
        CTestPage page(document);
        page.Add<QComboBox>(kBand);
        auto *value = page.Add<QSpinBox>(kValue);
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(value->maximum(), 0);
        QCOMPARE(log.Critical(), QStringList());
    }

    void keyMissingFromThePairsIsNoError()
    {
        const QString pairs = "{'subscribeValue':'request.group1.memberProperty.band',"
                              "'trait':{'dataType':'%1','valuePair':{'n5':%2},'defaultValue':'2'}}";
        CTestDocument document;
        document.Member(kBand, List("['n1']", "'n1'"));
        document.Member("request.group1.list", pairs.arg("list", "['2']"));
        document.Member("request.group1.range", pairs.arg("range", "{'min':1,'max':3}"));
        document.Member("request.group1.point", pairs.arg("pointRange", "{'min':1,'max':3}"));
        CTestPage page(document);
        page.Add<QComboBox>(kBand);
        auto *list = page.Add<QComboBox>("request.group1.list");
        auto *range = page.Add<QSpinBox>("request.group1.range");
        auto *point = page.Add<QDoubleSpinBox>("request.group1.point");
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(log.Critical(), QStringList());
        QCOMPARE(list->count(), 0);
        QCOMPARE(page.Package("request.group1.list"), QJsonValue(QString()));
        QCOMPARE(range->minimum(), 0);
        QCOMPARE(range->maximum(), 0);
        QCOMPARE(range->value(), 0);
        QCOMPARE(range->toolTip(), QString("0~0"));
        QCOMPARE(point->maximum(), 0.0);
        QCOMPARE(point->value(), 0.0);
    }

    void joinedKeyIsMadeOfThePublishersDefaultsInListOrder()
    {
        CTestDocument document;
        document.Member(kBand, List("['n1','n78']", "'n78'"));
        document.Member(kType, List("['11 RB']", "'11 RB'"));
        document.Member("request.group1.flag",
                        "{'trait':{'dataType':'boolean','defaultValue':'true'}}");
        document.Member(kValue,
                        "{'subscribeValueList':['request.group1.memberProperty.type',"
                        "'request.group1.memberProperty.flag','request.group1.memberProperty.band'"
                        "],'trait':{'dataType':'list','valuePair':{'11 RB,true,n78':['found']},"
                        "'defaultValue':'found'}}");
        CTestPage page(document);
        page.Add<QComboBox>(kBand);
        page.Add<QComboBox>(kType);
        page.Add<QCheckBox>("request.group1.flag");
        auto *value = page.Add<QComboBox>(kValue);
        page.Init();
        QCOMPARE(value->currentText(), QString("found"));
    }

    void publisherWithoutAWidgetGivesNoPartAndNoComma()
    {
        CTestDocument document;
        document.Member(kBand, List("['n1']", "'n1'"));
        document.Member(kType, List("['Type1']", "'Type1'"));
        document.Member(kValue, "{'subscribeValueList':['request.group1.memberProperty.type',"
                                "'request.group1.memberProperty.band'],'trait':{'dataType':'list',"
                                "'valuePair':{'n1':['band alone'],'Type1,n1':['both']},"
                                "'defaultValue':''}}");
        CTestPage page(document);
        page.Add<QComboBox>(kBand);  // but no widget for the type
        auto *value = page.Add<QComboBox>(kValue);
        page.Init();
        QCOMPARE(value->currentText(), QString("band alone"));
    }

    void initPublishesNothing()
    {
        CTestDocument document;
        document.Member(kBand, QString("{'publishValueList':['request.group1.memberProperty.value'"
                                       "],'publishEnableStatusList':["
                                       "'request.group1.memberProperty.value'],"
                                       "'trait':{'dataType':'list','value':['n1','n78'],"
                                       "'defaultValue':'n78'}}"));
        document.Member(kValue, QString("{'subscribeValue':'%1','trait':{'dataType':'range',"
                                        "'valuePair':{'n78':{'min':0,'max':9}},'defaultValue':'3',"
                                        "'enableStatusPair':{'n78':0}}}")
                                    .arg(kBandPath));
        CTestPage page(document);
        auto *value = page.Add<QSpinBox>(kValue);
        page.Add<QComboBox>(kBand);
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(log.Count("============ [Start]["), 0);
        QCOMPARE(value->value(), 3);
        QVERIFY(value->isEnabled());
    }
};

QUORLIN_TEST_CLASS(CScalarInitTest)
#include "ScalarInitTest.moc"
