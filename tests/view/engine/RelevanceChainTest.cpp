// The order of the relevance chain, what it passes through, and how it ends.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QtTest>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kNoEntry[] = "---> [Fail][Value Relevance][type1] Cannot get the mapping of key and "
                        "value in the ValuePair JSON Object";
const char kLoop[] = "publish lists form a loop, the chain ends at";

QString Path(const QString &member)
{
    return "request.group1.memberProperty." + member;
}

QJsonArray Paths(const QStringList &members)
{
    QJsonArray paths;
    for (const QString &member : members)
        paths.append(Path(member));
    return paths;
}

// A list member; relations is its further keys.
QJsonObject List(const QString &relations, const QString &pairOrValue,
                 const QString &defaultValue = "")
{
    QJsonObject member = JsonObject(relations);
    QJsonObject trait = JsonObject(pairOrValue);
    trait["dataType"] = "list";
    trait["defaultValue"] = defaultValue;
    member["trait"] = trait;
    for (const char *key : {"publishValueList", "subscribeValueList", "publishEnableStatusList",
                            "subscribeEnableStatusList"}) {
        QStringList names;
        for (const QJsonValue &name : member[key].toArray())
            names.append(name.toString());
        if (!names.isEmpty())
            member[key] = Paths(names);
    }
    return member;
}

// The band publishes to route, bandwidth and route type; the route depends on band and route type.
CTestDocument BandDocument(const QString &routePairs)
{
    CTestDocument document;
    document.Member("request.group1.band",
                    List("{'publishValueList':['route','bandwidth','routeType']}",
                         "{'value':['n1','n78']}", "n1"));
    document.Member("request.group1.route", List("{'subscribeValueList':['band','routeType']}",
                                                 "{'valuePair':" + routePairs + "}", "0"));
    document.Member("request.group1.bandwidth",
                    List("{'subscribeValueList':['band']}",
                         "{'valuePair':{'n1':['5','10'],'n78':['20','40']}}", "10"));
    document.Member("request.group1.routeType",
                    List("{'subscribeValueList':['band'],'publishValueList':['route']}",
                         "{'valuePair':{'n1':['Type1'],'n78':['Type2','Type3']}}", "Type1"));
    return document;
}

}  // namespace

class CRelevanceChainTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_record.clear(); }

    // "n78,Type1" is met on the way, before the route type has followed the band.
    void transitionPassesThroughAMissingKey()
    {
        CTestPage page(BandDocument("{'n1,Type1':['0','1'],'n78,Type2':['4','5']}"));
        AddBoxes(page);
        page.Init();
        m_record.clear();
        LogCapture log(lcEngine());
        m_boxes["band"]->setCurrentText("n78");
        QCOMPARE(m_record, (QStringList{"band:n78", "bandwidth:", "bandwidth:20",
                                        "routeType:", "routeType:Type2", "route:", "route:4"}));
        QCOMPARE(log.Critical(), QStringList(kNoEntry));
    }

    void transitionThroughAPresentKeyRecomputesTheTargetTwice()
    {
        CTestPage page(
            BandDocument("{'n1,Type1':['0','1'],'n78,Type1':['9'],'n78,Type2':['4','5']}"));
        AddBoxes(page);
        page.Init();
        m_record.clear();
        LogCapture log(lcEngine());
        m_boxes["band"]->setCurrentText("n78");
        QCOMPARE(m_record,
                 (QStringList{"band:n78", "route:", "route:9", "bandwidth:", "bandwidth:20",
                              "routeType:", "routeType:Type2", "route:", "route:4"}));
        QCOMPARE(log.Critical(), QStringList());
        QCOMPARE(m_boxes["route"]->count(), 2);
    }

    void targetPublishesBeforeItsNewListIsComplete()
    {
        CTestPage page(BandDocument("{'n1,Type1':['0'],'n78,Type2':['4']}"));
        AddBoxes(page);
        page.Init();
        int typesAtPublication = -1;
        connect(m_boxes["route"], &QComboBox::currentTextChanged, this,
                [&] { typesAtPublication = m_boxes["routeType"]->count(); });
        m_boxes["band"]->setCurrentText("n78");
        QCOMPARE(typesAtPublication, 1);
        QCOMPARE(m_boxes["routeType"]->count(), 2);
        QCOMPARE(m_boxes["routeType"]->currentText(), QString("Type2"));
    }

    void targetWithoutPublishListEndsTheChain()
    {
        CTestPage page(BandDocument("{'n1,Type1':['0','1']}"));
        AddBoxes(page);
        page.Init();
        LogCapture log(lcEngine());
        m_boxes["bandwidth"]->setCurrentText("5");
        m_boxes["route"]->setCurrentText("1");
        QVERIFY(!log.Has("============ [Start][Value Relevance]"));
    }

    void selectingTheSameItemPublishesNothing()
    {
        CTestPage page(BandDocument("{'n1,Type1':['0','1']}"));
        AddBoxes(page);
        page.Init();
        LogCapture log(lcEngine());
        m_boxes["band"]->setCurrentText("n1");
        m_boxes["band"]->setCurrentIndex(0);
        QVERIFY(!log.Has("============ [Start][Value Relevance]"));
    }

    void chainLogsItsSteps()
    {
        CTestDocument document;
        document.Member("request.group1.a",
                        List("{'publishValueList':['b']}", "{'value':['x','y']}", "x"));
        document.Member("request.group1.b",
                        List("{'subscribeValueList':['a']}", "{'valuePair':{'y':['z']}}"));
        CTestPage page(document);
        auto *a = page.Add<QComboBox>("request.group1.a");
        page.Add<QComboBox>("request.group1.b");
        page.Init();
        LogCapture log(lcEngine());
        a->setCurrentText("y");
        QStringList lines;  // without those that print a part of the document
        for (const QString &line : log.Debug()) {
            if (!line.contains("QJson"))
                lines.append(line);
        }
        QCOMPARE(lines, (QStringList{
                            "============ [Start][Value Relevance] CurrentText  ===========  \"y\"",
                            "---> [Value Relevance] Key  <---  \"y\"",
                            "---> [Value Relevance] Publish Value List <---  count:  1",
                            "---> [Value Relevance] ====== Current Publish Value ====== <---  "
                            "\"cmdIf.request.group1.memberProperty.b\"",
                            "---> [Value Relevance] GroupType <---  1",
                            "---> subscribeValue <--- \"cmdIf.request.group1.memberProperty.a\"",
                            "---> [Value Relevance][type1] Has the subscribeValueList <--- ",
                            "---> [Value Relevance][type1] Key <---  \"y\"",
                            "---> [Value Relevance][type1] Find!!!!!!! <--- ",
                            "---> [Value Relevance][type1] Vair Pair JSON object <--- ",
                            "---> [Value Relevance][type1] Combobox List <---",
                            "============ [Done][Value Relevance] =========== "}));
    }

    void twoListsThatPublishToEachOtherComeToAnEnd()
    {
        CTestDocument document;
        document.Member("request.group1.a",
                        List("{'subscribeValueList':['b'],'publishValueList':['b']}",
                             "{'value':['a1','a2'],'valuePair':{'b1':['a1','a2'],'b2':['a2','a1'],"
                             "'b3':['a2']}}",
                             "a1"));
        document.Member("request.group1.b",
                        List("{'subscribeValueList':['a'],'publishValueList':['a']}",
                             "{'valuePair':{'a1':['b1','b2'],'a2':['b2','b3']}}", "b1"));
        CTestPage page(document);
        auto *a = page.Add<QComboBox>("request.group1.a");
        auto *b = page.Add<QComboBox>("request.group1.b");
        page.Init();
        // At Init the list of a is that of its publisher's default.
        QCOMPARE(a->count(), 2);
        LogCapture log(lcEngine());
        a->setCurrentText("a2");
        QVERIFY(
            log.Critical().contains(QString(kLoop) +
                                    " \"cmdIf_request_group1_memberProperty_a\"") ||
            log.Critical().contains(QString(kLoop) + " \"cmdIf_request_group1_memberProperty_b\""));
        QVERIFY(!a->currentText().isEmpty());
        QVERIFY(!b->currentText().isEmpty());
    }

    void listThatPublishesToItselfComesToAnEnd()
    {
        CTestDocument document;
        document.Member("request.group1.a",
                        List("{'subscribeValueList':['a'],'publishValueList':['a']}",
                             "{'valuePair':{'x':['x','y'],'y':['y','x']}}", "x"));
        CTestPage page(document);
        auto *a = page.Add<QComboBox>("request.group1.a");
        page.Init();
        QCOMPARE(a->count(), 2);
        LogCapture log(lcEngine());
        a->setCurrentText("y");
        QVERIFY(log.Has(kLoop));
        QVERIFY(!a->currentText().isEmpty());
    }

    void listsThatPublishTheirStatusToEachOtherComeToAnEnd()
    {
        const QString pair = "{'value':['x','y'],'enableStatusPair':{'x':1,'y':1}}";
        CTestDocument document;
        document.Member("request.group1.a", List("{'publishEnableStatusList':['b']}", pair, "x"));
        document.Member("request.group1.b", List("{'publishEnableStatusList':['a']}", pair, "x"));
        CTestPage page(document);
        auto *a = page.Add<QComboBox>("request.group1.a");
        auto *b = page.Add<QComboBox>("request.group1.b");
        page.Init();
        LogCapture log(lcEngine());
        a->setCurrentText("y");
        QVERIFY(log.Has(kLoop));
        QVERIFY(a->isEnabled() && b->isEnabled());
        QCOMPARE(a->currentText(), QString("y"));
        QCOMPARE(b->currentText(), QString("x"));
    }

    void aChainAfterALoopWorksAsBefore()
    {
        const QString pair = "{'value':['x','y'],'enableStatusPair':{'x':1,'y':1}}";
        CTestDocument document = BandDocument("{'n1,Type1':['0','1'],'n78,Type2':['4','5']}");
        document.Member("request.group1.self", List("{'publishEnableStatusList':['self']}", pair));
        CTestPage page(document);
        AddBoxes(page);
        auto *self = page.Add<QComboBox>("request.group1.self");
        page.Init();
        LogCapture log(lcEngine());
        self->setCurrentText("y");
        QVERIFY(log.Has(kLoop));
        log.Clear();
        m_boxes["band"]->setCurrentText("n78");
        QVERIFY(!log.Has(kLoop));
        QCOMPARE(m_boxes["route"]->currentText(), QString("4"));
    }

    void deepChainWithoutALoopIsNotCut()
    {
        constexpr int kLength = 40;
        CTestDocument document;
        for (int i = 0; i < kLength; ++i) {
            const QString next = QString::number(i + 1);
            const QString before = QString::number(i - 1);
            document.Member(
                QString("request.group1.m%1").arg(i),
                List(QString(i == 0 ? "{'publishValueList':['m%1']}"
                                    : "{'publishValueList':['m%1'],'subscribeValueList':['m%2']}")
                         .arg(next)
                         .arg(before),
                     "{'value':['x','y'],'valuePair':{'x':['x'],'y':['y']}}", "x"));
        }
        document.Member(QString("request.group1.m%1").arg(kLength),
                        List(QString("{'subscribeValueList':['m%1']}").arg(kLength - 1),
                             "{'valuePair':{'x':['x'],'y':['y']}}", "x"));
        CTestPage page(document);
        QVector<QComboBox *> boxes;
        for (int i = 0; i <= kLength; ++i)
            boxes.append(page.Add<QComboBox>(QString("request.group1.m%1").arg(i)));
        page.Init();
        LogCapture log(lcEngine());
        boxes.first()->setCurrentText("y");
        QCOMPARE(boxes.last()->currentText(), QString("y"));
        QCOMPARE(log.Critical(), QStringList());
    }

private:
    // The boxes of the band document; each change is recorded before the engine acts on it.
    void AddBoxes(CTestPage &page)
    {
        for (const QString name : {"band", "route", "bandwidth", "routeType"}) {
            auto *box = page.Add<QComboBox>("request.group1." + name);
            m_boxes[name] = box;
            connect(box, &QComboBox::currentTextChanged, this,
                    [this, name](const QString &text) { m_record.append(name + ':' + text); });
        }
    }

    QStringList m_record;
    QMap<QString, QComboBox *> m_boxes;
};

QUORLIN_TEST_CLASS(CRelevanceChainTest)
#include "RelevanceChainTest.moc"
