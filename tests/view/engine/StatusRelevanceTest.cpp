// Status relevance: who is enabled, and the cascade by class.
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

const char kPub[] = "request.group1.pub";
const char kSub[] = "request.group1.sub";
const char kEnd[] = "request.group1.end";
const char kOther[] = "request.group1.other";

QString Path(const char *name)
{
    return QString("'request.group1.memberProperty.%1'").arg(name);
}

// "pub" switches "sub" on for x and off for y; "sub" switches "end" and feeds "other".
CTestDocument Document(const QString &subTrait)
{
    CTestDocument document;
    document.Member(kPub, QString("{'publishEnableStatusList':[%1],'trait':{'dataType':'list',"
                                  "'value':['x','y','z'],'defaultValue':'x'}}")
                              .arg(Path("sub")));
    document.Member(kSub, QString("{'publishEnableStatusList':[%1],'publishValueList':[%2],"
                                  "'trait':%3}")
                              .arg(Path("end"), Path("other"), subTrait));
    document.Member(kEnd, "{'trait':{'dataType':'label','defaultValue':'NA','enableStatusPair':"
                          "{'a':0,'b':1,'true':1,'false':0,'1':0}}}");
    document.Member(kOther, "{'trait':{'dataType':'label','defaultValue':'NA','valuePair':"
                            "{'a':'of a','b':'of b','true':'on','false':'off'}}}");
    return document;
}

const char kList[] = "{'dataType':'list','value':['a','b'],'defaultValue':'a',"
                     "'enableStatusPair':{'x':1,'y':0}}";
const char kFlag[] = "{'dataType':'boolean','defaultValue':'true',"
                     "'enableStatusPair':{'x':1,'y':0}}";
const char kRange[] = "{'dataType':'range','value':{'min':0,'max':9},'defaultValue':'1',"
                      "'enableStatusPair':{'x':1,'y':0}}";

template <typename Widget>
struct SStatusPage
{
    explicit SStatusPage(const CTestDocument &document)
        : page(document), pub(page.Add<QComboBox>(kPub)), sub(page.Add<Widget>(kSub)),
          end(page.Add<QLabel>(kEnd)), other(page.Add<QLabel>(kOther))
    {
        page.Init();
    }

    CTestPage page;
    QComboBox *pub;
    Widget *sub;
    QLabel *end;
    QLabel *other;
};

}  // namespace

class CStatusRelevanceTest : public QObject
{
    Q_OBJECT

private slots:
    void publisherSwitchesItsTarget()
    {
        SStatusPage<QSpinBox> p{Document(kRange)};
        p.pub->setCurrentText("y");
        QVERIFY(!p.sub->isEnabled());
        p.pub->setCurrentText("x");
        QVERIFY(p.sub->isEnabled());
    }

    void missingKeyLeavesTheStatus()
    {
        SStatusPage<QSpinBox> p{Document(kRange)};
        p.pub->setCurrentText("y");
        LogCapture log(lcEngine());
        p.pub->setCurrentText("z");
        QVERIFY(!p.sub->isEnabled());
        QCOMPARE(log.Critical(),
                 QStringList("---> [Fail][Status Relevance][type1] Cannot get the mapping of key "
                             "and value in the ValuePair JSON Object"));
    }

    void disabledListStillPublishesItsStatusButNoValue()
    {
        SStatusPage<QComboBox> p{Document(kList)};
        p.sub->setCurrentText("b");
        QCOMPARE(p.other->text(), QString("of b"));
        p.end->setEnabled(false);
        p.other->setText("untouched");
        p.pub->setCurrentText("y");
        QVERIFY(!p.sub->isEnabled());
        QVERIFY(p.end->isEnabled());  // "b" enables it
        QCOMPARE(p.other->text(), QString("untouched"));
    }

    void enabledListPublishesItsTextAnewToBoth()
    {
        SStatusPage<QComboBox> p{Document(kList)};
        p.pub->setCurrentText("y");
        p.end->setEnabled(true);
        p.other->setText("untouched");
        LogCapture log(lcEngine());
        p.pub->setCurrentText("x");
        QVERIFY(p.sub->isEnabled());
        QVERIFY(!p.end->isEnabled());  // "a" disables it
        QCOMPARE(p.other->text(), QString("of a"));
        QVERIFY(log.Debug().contains(
            "---> [Status Relevance][type1] combox box publish current text change <---"));
    }

    void disabledCheckBoxIsForcedOffAndPublishesItsStatusOnly()
    {
        SStatusPage<QCheckBox> p{Document(kFlag)};
        QVERIFY(p.end->isEnabled());
        LogCapture log(lcEngine());
        p.pub->setCurrentText("y");
        QVERIFY(!p.sub->isEnabled());
        QVERIFY(!p.sub->isChecked());
        QVERIFY(!p.end->isEnabled());              // "false" disables it
        QCOMPARE(p.other->text(), QString("NA"));  // the value of a disabled box is dropped
        QVERIFY(log.Debug().contains(
            "---> [Status Relevance][type1] check box publish current check status <---"));
        QVERIFY(log.Has("============ [Status Relevance]Check Box  ===========  0"));
    }

    void checkBoxThatWasOffPublishesNothingWhenDisabled()
    {
        SStatusPage<QCheckBox> p{Document(kFlag)};
        p.sub->setChecked(false);
        p.end->setEnabled(true);
        p.pub->setCurrentText("y");
        QVERIFY(!p.sub->isEnabled());
        QVERIFY(p.end->isEnabled());
    }

    void enabledCheckBoxPublishesNothing()
    {
        SStatusPage<QCheckBox> p{Document(kFlag)};
        p.pub->setCurrentText("y");
        p.end->setEnabled(true);
        p.pub->setCurrentText("x");
        QVERIFY(p.sub->isEnabled());
        QVERIFY(!p.sub->isChecked());
        QVERIFY(p.end->isEnabled());
    }

    void spinBoxNeverPublishesAnew()
    {
        SStatusPage<QSpinBox> p{Document(kRange)};
        LogCapture log(lcEngine());
        p.pub->setCurrentText("y");
        p.pub->setCurrentText("x");
        QVERIFY(p.end->isEnabled());
        QVERIFY(!log.Has("---> [Status Relevance][type1] spin box publish"));
    }

    void spinBoxPublishesItsOwnChanges()
    {
        SStatusPage<QSpinBox> p{Document(kRange)};
        p.sub->setValue(2);
        QVERIFY(p.end->isEnabled());
        p.sub->setValue(1);
        QVERIFY(!p.end->isEnabled());
    }

    void disabledPublisherPublishesItsStatusAndAHiddenOneDoesNot()
    {
        SStatusPage<QSpinBox> p{Document(kRange)};
        p.pub->setEnabled(false);
        p.pub->setCurrentText("y");
        QVERIFY(!p.sub->isEnabled());
        p.pub->hide();
        p.pub->setCurrentText("x");
        QVERIFY(!p.sub->isEnabled());
    }

    void hiddenTargetKeepsItsStatus()
    {
        SStatusPage<QSpinBox> p{Document(kRange)};
        p.sub->hide();
        LogCapture log(lcEngine());
        p.pub->setCurrentText("y");
        QVERIFY(p.sub->isEnabled());
        QVERIFY(log.Debug().contains("---> Skip: invisible <--- "));
        QCOMPARE(log.Critical(), QStringList());
    }

    void valuesAndStatusActIndependently()
    {
        CTestDocument document;
        document.Member(kPub, QString("{'publishEnableStatusList':[%1],'publishValueList':[%1],"
                                      "'trait':{'dataType':'list','value':['x','y','z'],"
                                      "'defaultValue':'x'}}")
                                  .arg(Path("sub")));
        document.Member(kSub, "{'trait':{'dataType':'label','defaultValue':'NA',"
                              "'valuePair':{'z':'of z'},'enableStatusPair':{'y':0}}}");
        CTestPage page(document);
        auto *pub = page.Add<QComboBox>(kPub);
        auto *sub = page.Add<QLabel>(kSub);
        page.Init();
        pub->setCurrentText("y");  // known to the status alone
        QVERIFY(!sub->isEnabled());
        QCOMPARE(sub->text(), QString("NA"));
        pub->setCurrentText("z");  // known to the values alone
        QVERIFY(!sub->isEnabled());
        QCOMPARE(sub->text(), QString("of z"));
    }

    void joinedKeyComesFromTheTargetsOwnList()
    {
        CTestDocument document;
        document.Member(kPub, QString("{'publishEnableStatusList':[%1],'trait':{'dataType':'list',"
                                      "'value':['x','y'],'defaultValue':'x'}}")
                                  .arg(Path("sub")));
        document.Member(kOther, "{'trait':{'dataType':'boolean','defaultValue':'true'}}");
        document.Member(kSub, QString("{'subscribeEnableStatusList':[%1,%2],'subscribeValueList':"
                                      "[%2],'trait':{'dataType':'label','defaultValue':'NA',"
                                      "'enableStatusPair':{'true,y':0}}}")
                                  .arg(Path("other"), Path("pub")));
        CTestPage page(document);
        auto *pub = page.Add<QComboBox>(kPub);
        page.Add<QCheckBox>(kOther);
        auto *sub = page.Add<QLabel>(kSub);
        page.Init();
        LogCapture log(lcEngine());
        pub->setCurrentText("y");
        QVERIFY(!sub->isEnabled());
        QVERIFY(log.Debug().contains(
            "---> [Status Relevance][type1] Has the subscribeEnableStatusList <--- "));
        QVERIFY(log.Debug().contains("---> [Status Relevance][type1] Key <---  \"true,y\""));
    }

    void failureIsOneCriticalLineAndTheNextTargetHasItsTurn_data()
    {
        QTest::addColumn<QString>("member");
        QTest::addColumn<int>("groupType");
        QTest::addColumn<bool>("hasWidget");
        QTest::addColumn<QString>("line");
        const QString head = "---> [Fail][Status Relevance]";
        QTest::newRow("group type")
            << "{'trait':{}}" << 2 << true << head + " Not support this group type yet <--- ";
        QTest::newRow("no widget")
            << "{'trait':{}}" << 1 << false << head + "[type1] Cannot find widget pointer <--- ";
        QTest::newRow("no trait") << "{}" << 1 << true
                                  << head + "[type1] Cannot find the trait JSON object <--- ";
        QTest::newRow("no pairs")
            << "{'trait':{'dataType':'label'}}" << 1 << true
            << head + "[type1] Cannot find the EnableStatusPair JSON object <--- ";
        QTest::newRow("no entry") << "{'trait':{'dataType':'label','enableStatusPair':{}}}" << 1
                                  << true
                                  << head + "[type1] Cannot get the mapping of key and value in "
                                            "the ValuePair JSON Object";
    }

    void failureIsOneCriticalLineAndTheNextTargetHasItsTurn()
    {
        QFETCH(QString, member);
        QFETCH(int, groupType);
        QFETCH(bool, hasWidget);
        QFETCH(QString, line);
        CTestDocument document;
        document.Member(kPub, QString("{'publishEnableStatusList':["
                                      "'request.group2.memberProperty.bad',%1],'trait':{'dataType':"
                                      "'list','value':['x','y'],'defaultValue':'x'}}")
                                  .arg(Path("end")));
        document.Member(kEnd, "{'trait':{'dataType':'label','enableStatusPair':{'y':0}}}");
        document.Group("request.group2", groupType).Member("request.group2.bad", member);
        CTestPage page(document);
        auto *pub = page.Add<QComboBox>(kPub);
        auto *end = page.Add<QLabel>(kEnd);
        if (hasWidget)
            page.Add<QLabel>("request.group2.bad");
        page.Init();
        LogCapture log(lcEngine());
        pub->setCurrentText("y");
        QCOMPARE(log.Critical(), QStringList(line));
        QVERIFY(!end->isEnabled());
    }
};

QUORLIN_TEST_CLASS(CStatusRelevanceTest)
#include "StatusRelevanceTest.moc"
