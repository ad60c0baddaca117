// Value relevance on members with a widget of their own.
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

const char kFailHead[] = "---> [Fail][Value Relevance]";

// A publisher "pub" with the items x, y, z and one subscriber "sub" of the trait given.
CTestDocument Document(const QString &trait, int modelInterface = eInterfaceCmdIf,
                       const QString &relation = "'subscribeValue':")
{
    const QString section = modelInterface == eInterfaceCmdIf ? "request" : "config";
    const QString publisher = "'" + section + ".group1.memberProperty.pub'";
    CTestDocument document(modelInterface);
    document.Member(section + ".group1.pub",
                    QString("{'publishValueList':['%1.group1.memberProperty.sub'],"
                            "'trait':{'dataType':'list','value':['x','y','z'],"
                            "'defaultValue':'x'}}")
                        .arg(section));
    document.Member(section + ".group1.sub",
                    QString("{%1%2,'trait':%3}").arg(relation, publisher, trait));
    return document;
}

template <typename Widget>
struct SPair
{
    explicit SPair(const CTestDocument &document)
        : page(document), pub(page.Add<QComboBox>(Section(document) + ".group1.pub")),
          sub(page.Add<Widget>(Section(document) + ".group1.sub"))
    {
        page.Init();
    }
    static QString Section(const CTestDocument &document)
    {
        return document.ModelInterface() == eInterfaceCmdIf ? "request" : "config";
    }

    CTestPage page;
    QComboBox *pub;
    Widget *sub;
};

}  // namespace

class CValueRelevanceTest : public QObject
{
    Q_OBJECT

private slots:
    void newListStartsAtItsFirstItem()
    {
        SPair<QComboBox> p(Document("{'dataType':'list','defaultValue':'keep',"
                                    "'valuePair':{'x':['first','keep'],'y':['new','keep']}}"));
        QCOMPARE(p.sub->currentText(), QString("keep"));
        p.pub->setCurrentText("y");
        QCOMPARE(p.sub->currentText(), QString("new"));
        QCOMPARE(p.sub->count(), 2);
    }

    void rangeFollowsItsPublisher_data()
    {
        QTest::addColumn<int>("modelInterface");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("toolTip");
        const int test = eInterfaceCmdIf;
        const int calibration = eInterfaceCalDataIf;
        const QString plain = "{'min':11,'max':20}";
        const QString valued = "{'min':11,'max':20,'rangeCheck':'0,11~20','value':'12'}";
        QTest::newRow("test page goes to the middle") << test << plain << "14" << 15 << "11~20";
        QTest::newRow("middle truncates toward zero") << test << "{'min':-10,'max':-5}"
                                                      << "0" << -7 << "-10~-5";
        QTest::newRow("test page goes to the value") << test << valued << "14" << 12 << "0,11~20";
        QTest::newRow("value without a list") << test << "{'min':11,'max':20,'value':'13'}"
                                              << "14" << 13 << "11~20";
        QTest::newRow("calibration page keeps its default")
            << calibration << plain << "14" << 14 << "11~20";
        QTest::newRow("calibration page without a fitting default")
            << calibration << plain << "21" << 15 << "11~20";
        QTest::newRow("calibration page does not take the value")
            << calibration << valued << "14" << 14 << "0,11~20";
    }

    void rangeFollowsItsPublisher()
    {
        QFETCH(int, modelInterface);
        QFETCH(QString, entry);
        QFETCH(QString, defaultValue);
        SPair<QSpinBox> p(Document(QString("{'dataType':'range','defaultValue':'%1','valuePair':"
                                           "{'x':{'min':0,'max':100},'y':%2}}")
                                       .arg(defaultValue, entry),
                                   modelInterface));
        p.sub->setValue(99);
        p.pub->setCurrentText("y");
        QTEST(p.sub->value(), "value");
        QTEST(p.sub->toolTip(), "toolTip");
    }

    void pointRangeFollowsItsPublisher_data()
    {
        QTest::addColumn<int>("modelInterface");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<double>("value");
        QTest::newRow("test page") << int(eInterfaceCmdIf) << "1.25" << 1.75;
        QTest::newRow("calibration page") << int(eInterfaceCalDataIf) << "1.25" << 1.25;
        QTest::newRow("calibration page, no fit") << int(eInterfaceCalDataIf) << "9" << 1.75;
    }

    // Neither the list to check nor the value of the entry reaches a double spin box.
    void pointRangeFollowsItsPublisher()
    {
        QFETCH(int, modelInterface);
        QFETCH(QString, defaultValue);
        SPair<QDoubleSpinBox> p(
            Document(QString("{'dataType':'pointRange','defaultValue':'%1','valuePair':"
                             "{'x':{'min':0,'max':100,'decimals':3},"
                             "'y':{'min':1,'max':2.5,'rangeCheck':'0,1~2','value':'2'}}}")
                         .arg(defaultValue),
                     modelInterface));
        p.pub->setCurrentText("y");
        QTEST(p.sub->value(), "value");
        QCOMPARE(p.sub->toolTip(), QString("1~2.5"));
        QCOMPARE(p.sub->decimals(), 3);
    }

    void labelFollowsItsPublisher()
    {
        SPair<QLabel> p(Document("{'dataType':'label','defaultValue':'NA','valuePair':"
                                 "{'x':'of x','y':'of y'}}"));
        p.pub->setCurrentText("y");
        QCOMPARE(p.sub->text(), QString("of y"));
    }

    void checkBoxFollowsItsPublisher()
    {
        SPair<QCheckBox> p(Document("{'dataType':'boolean','defaultValue':'false','valuePair':"
                                    "{'x':'false','y':'true','z':'True'}}"));
        p.pub->setCurrentText("y");
        QVERIFY(p.sub->isChecked());
        p.pub->setCurrentText("z");
        QVERIFY(!p.sub->isChecked());
    }

    void missingKeyLeavesTheTargetAsItWas()
    {
        SPair<QSpinBox> p(Document("{'dataType':'range','defaultValue':'5','valuePair':"
                                   "{'x':{'min':0,'max':10}}}"));
        LogCapture log(lcEngine());
        p.pub->setCurrentText("y");
        QCOMPARE(p.sub->value(), 5);
        QCOMPARE(p.sub->toolTip(), QString("0~10"));
        QCOMPARE(log.Critical(),
                 QStringList("---> [Fail][Value Relevance][type1] Cannot get the mapping of key "
                             "and value in the ValuePair JSON Object"));
    }

    void listThatAppearsAfterInitIsShownButNotChecked()
    {
        SPair<QSpinBox> p(Document("{'dataType':'range','defaultValue':'5','valuePair':"
                                   "{'x':{'min':0,'max':10},"
                                   "'y':{'min':0,'max':100,'rangeCheck':'0,50~60'}}}"));
        p.pub->setCurrentText("y");
        QCOMPARE(p.sub->toolTip(), QString("0,50~60"));
        p.sub->setValue(5);
        emit p.sub->editingFinished();
        QCOMPARE(p.sub->value(), 5);
    }

    void hiddenTargetKeepsStaleLimitsAlsoWhenItShowsAgain()
    {
        SPair<QSpinBox> p(Document("{'dataType':'range','defaultValue':'5','valuePair':"
                                   "{'x':{'min':0,'max':10},'y':{'min':20,'max':30}}}"));
        p.sub->hide();
        LogCapture log(lcEngine());
        p.pub->setCurrentText("y");
        QVERIFY(log.Debug().contains("---> Skip - invisible <--- "));
        QCOMPARE(log.Critical(), QStringList());
        QCOMPARE(p.sub->maximum(), 10);
        p.sub->show();
        QCOMPARE(p.sub->maximum(), 10);
        QCOMPARE(p.sub->value(), 5);
    }

    void disabledTargetFollowsAllTheSame()
    {
        SPair<QLabel> p(Document("{'dataType':'label','defaultValue':'NA','valuePair':{'y':'Y'}}"));
        p.sub->setEnabled(false);
        p.pub->setCurrentText("y");
        QCOMPARE(p.sub->text(), QString("Y"));
    }

    void hiddenOrDisabledPublisherPublishesNoValue()
    {
        SPair<QLabel> p(Document("{'dataType':'label','defaultValue':'NA','valuePair':"
                                 "{'y':'Y','z':'Z'}}"));
        p.pub->setEnabled(false);
        p.pub->setCurrentText("y");
        QCOMPARE(p.sub->text(), QString("NA"));
        p.pub->setEnabled(true);
        p.pub->hide();
        p.pub->setCurrentText("z");
        QCOMPARE(p.sub->text(), QString("NA"));
    }

    void clearedPublisherPublishesNothing()
    {
        SPair<QLabel> p(Document("{'dataType':'label','defaultValue':'NA','valuePair':{'y':'Y'}}"));
        LogCapture log(lcEngine());
        p.pub->setCurrentIndex(-1);
        QCOMPARE(log.Debug(), QStringList("============ [Start][Value Relevance] CurrentText  "
                                          "===========  \"\""));
    }

    void checkBoxPublishesTrueAndFalse()
    {
        CTestDocument document;
        document.Member("request.group1.flag",
                        "{'publishValueList':['request.group1.memberProperty.sub'],"
                        "'trait':{'dataType':'boolean','defaultValue':'false'}}");
        document.Member("request.group1.sub",
                        "{'subscribeValue':'request.group1.memberProperty.flag','trait':"
                        "{'dataType':'label','defaultValue':'NA','valuePair':"
                        "{'true':'on','false':'off'}}}");
        CTestPage page(document);
        auto *flag = page.Add<QCheckBox>("request.group1.flag");
        auto *sub = page.Add<QLabel>("request.group1.sub");
        page.Init();
        LogCapture log(lcEngine());
        flag->setChecked(true);
        QCOMPARE(sub->text(), QString("on"));
        QVERIFY(log.Has("============ [Value Relevance]Check Box  ===========  2"));
        flag->setTristate(true);
        flag->setCheckState(Qt::PartiallyChecked);
        QCOMPARE(sub->text(), QString("off"));
    }

    void spinBoxPublishesNoValue()
    {
        CTestDocument document;
        document.Member("request.group1.range",
                        "{'publishValueList':['request.group1.memberProperty.sub'],'trait':"
                        "{'dataType':'range','value':{'min':0,'max':9},'defaultValue':'1'}}");
        document.Member("request.group1.sub",
                        "{'subscribeValue':'request.group1.memberProperty.range','trait':"
                        "{'dataType':'label','defaultValue':'NA','valuePair':{'2':'two'}}}");
        CTestPage page(document);
        auto *range = page.Add<QSpinBox>("request.group1.range");
        auto *sub = page.Add<QLabel>("request.group1.sub");
        page.Init();
        range->setValue(2);
        QCOMPARE(sub->text(), QString("NA"));
    }

    void plainAndJoinedKeysServeTheTargetsOfOnePublisher()
    {
        CTestDocument document =
            Document("{'dataType':'label','defaultValue':'NA','valuePair':{'y':'plain'}}");
        document.Member("request.group1.pub",
                        "{'publishValueList':['request.group1.memberProperty.joined',"
                        "'request.group1.memberProperty.sub'],'trait':{'dataType':'list',"
                        "'value':['x','y'],'defaultValue':'x'}}");
        document.Member("request.group1.joined",
                        "{'subscribeValueList':['request.group1.memberProperty.pub',"
                        "'request.group1.memberProperty.pub'],'trait':{'dataType':'label',"
                        "'defaultValue':'NA','valuePair':{'y,y':'joined'}}}");
        CTestPage page(document);
        auto *pub = page.Add<QComboBox>("request.group1.pub");
        auto *sub = page.Add<QLabel>("request.group1.sub");
        auto *joined = page.Add<QLabel>("request.group1.joined");
        page.Init();
        pub->setCurrentText("y");
        QCOMPARE(sub->text(), QString("plain"));
        QCOMPARE(joined->text(), QString("joined"));
    }

    void failureIsOneCriticalLineAndTheNextTargetHasItsTurn_data()
    {
        QTest::addColumn<QString>("member");
        QTest::addColumn<int>("groupType");
        QTest::addColumn<bool>("hasWidget");
        QTest::addColumn<QString>("line");
        const QString head = kFailHead;
        QTest::newRow("group type")
            << "{'trait':{}}" << 2 << true << head + " Not support this group type yet <--- ";
        QTest::newRow("no widget")
            << "{'trait':{}}" << 1 << false << head + "[type1] Cannot find widget pointer <--- ";
        QTest::newRow("no trait") << "{}" << 1 << true
                                  << head + "[type1] Cannot get the Trait JSON object <--- ";
        QTest::newRow("no pairs") << "{'trait':{'dataType':'label'}}" << 1 << true
                                  << head + "[type1] Cannot get the valuePair JSON object <--- ";
        QTest::newRow("no entry") << "{'trait':{'dataType':'label','valuePair':{}}}" << 1 << true
                                  << head + "[type1] Cannot get the mapping of key and value in "
                                            "the ValuePair JSON Object";
        QTest::newRow("widget class")
            << "{'trait':{'dataType':'range','valuePair':{'y':{}}}}" << 1 << true
            << head + "[type1] Cannot get the mapping of dataType and widget <--- ";
    }

    void failureIsOneCriticalLineAndTheNextTargetHasItsTurn()
    {
        QFETCH(QString, member);
        QFETCH(int, groupType);
        QFETCH(bool, hasWidget);
        QFETCH(QString, line);
        CTestDocument document =
            Document("{'dataType':'label','defaultValue':'NA','valuePair':{'y':'reached'}}");
        document.Member("request.group1.pub",
                        "{'publishValueList':['request.group2.memberProperty.bad',"
                        "'request.group1.memberProperty.sub'],'trait':{'dataType':'list',"
                        "'value':['x','y'],'defaultValue':'x'}}");
        document.Group("request.group2", groupType).Member("request.group2.bad", member);
        CTestPage page(document);
        auto *pub = page.Add<QComboBox>("request.group1.pub");
        auto *sub = page.Add<QLabel>("request.group1.sub");
        if (hasWidget)
            page.Add<QLabel>("request.group2.bad");
        page.Init();
        LogCapture log(lcEngine());
        pub->setCurrentText("y");
        QCOMPARE(log.Critical(), QStringList(line));
        QCOMPARE(sub->text(), QString("reached"));
    }
};

QUORLIN_TEST_CLASS(CValueRelevanceTest)
#include "ValueRelevanceTest.moc"
