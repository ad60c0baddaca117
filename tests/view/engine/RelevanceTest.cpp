// Relevance without a page: a document, an interface, and the index of some widgets.
#include "View/engine/Relevance.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest>

#include "Support/Log.h"
#include "View/engine/WidgetIndex.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestDocument.h"

namespace {

// Widgets of a document on a plain window, with the relevance between them.
class CWidgets
{
public:
    explicit CWidgets(const CTestDocument &document)
        : m_names(document), m_document(document.Json()), m_interface(document.ModelInterface()),
          m_layout(&m_window)
    {
    }

    template <typename Widget>
    Widget *Add(const QString &member)
    {
        auto *widget = new Widget(&m_window);
        widget->setObjectName(m_names.ObjectName(member));
        m_layout.addWidget(widget);
        return widget;
    }

    // Shows them; all later ones stay out of the index.
    void Show()
    {
        m_window.show();
        m_index = CWidgetIndex(&m_window);
    }

    // As a page's slot does; whether the change passed the gate.
    bool Change(ERelevance kind, const QWidget *publisher, const QString &text)
    {
        const bool isTaken = CRelevance::Takes(kind, publisher, text);
        if (isTaken)
            relevance.Publish(kind, publisher, text);
        return isTaken;
    }
    // Has a list's own changes followed, as Init does.
    void Follow(QComboBox *list)
    {
        QObject::connect(list, &QComboBox::currentTextChanged, list,
                         [this, list](QString text) { Change(ERelevance::Value, list, text); });
    }

    QString LiveKey(const QStringList &members) const
    {
        QJsonArray list;
        for (const QString &member : members)
            list.append("request.group1.memberProperty." + member);
        return relevance.BuildLiveKey(list);
    }

private:
    const CTestDocument m_names;
    const QJsonObject m_document;
    const int m_interface;
    CWidgetIndex m_index;
    QWidget m_window;
    QVBoxLayout m_layout;

public:
    CRelevance relevance{m_document, m_interface, m_index};
};

// A publisher "pub", and "sub" behind it with this trait.
CTestDocument Pair(const QString &trait, int modelInterface = eInterfaceCmdIf)
{
    CTestDocument document(modelInterface);
    const QString section = modelInterface == eInterfaceCmdIf ? "request" : "config";
    const QString sub = section + ".group1.memberProperty.sub";
    document.Member(section + ".group1.pub", "{'publishValueList':['" + sub +
                                                 "'],'publishEnableStatusList':['" + sub +
                                                 "'],'trait':{'dataType':'list'}}");
    document.Member(section + ".group1.sub", "{'trait':" + trait + "}");
    return document;
}

}  // namespace

class CRelevanceTest : public QObject
{
    Q_OBJECT

private slots:
    void subscriberTakesTheEntryOfTheChangedText()
    {
        CWidgets widgets(Pair("{'dataType':'list','valuePair':{'n78':['3','4'],'n1':['1']}}"));
        auto *pub = widgets.Add<QComboBox>("request.group1.pub");
        auto *sub = widgets.Add<QComboBox>("request.group1.sub");
        widgets.Show();
        QVERIFY(widgets.Change(ERelevance::Value, pub, "n78"));
        QCOMPARE(sub->count(), 2);
        QCOMPARE(sub->currentText(), QString("3"));
        // A key that the table lacks leaves it as it is.
        LogCapture log(lcEngine());
        QVERIFY(widgets.Change(ERelevance::Value, pub, "n2"));
        QCOMPARE(sub->currentText(), QString("3"));
    }

    void interfaceTellsWhereNumbersStart_data()
    {
        QTest::addColumn<int>("modelInterface");
        QTest::addColumn<int>("value");
        QTest::newRow("test page, in the middle") << int(eInterfaceCmdIf) << 15;
        QTest::newRow("calibration page, at its default") << int(eInterfaceCalDataIf) << 12;
    }
    void interfaceTellsWhereNumbersStart()
    {
        QFETCH(int, modelInterface);
        QFETCH(int, value);
        const QString group =
            modelInterface == eInterfaceCmdIf ? "request.group1." : "config.group1.";
        CWidgets widgets(Pair("{'dataType':'range','defaultValue':'12',"
                              "'valuePair':{'x':{'min':10,'max':20}}}",
                              modelInterface));
        auto *pub = widgets.Add<QComboBox>(group + "pub");
        auto *sub = widgets.Add<QSpinBox>(group + "sub");
        widgets.Show();
        QVERIFY(widgets.Change(ERelevance::Value, pub, "x"));
        QCOMPARE(sub->minimum(), 10);
        QCOMPARE(sub->maximum(), 20);
        QCOMPARE(sub->value(), value);
    }

    void statusEnablesAndDisables()
    {
        CWidgets widgets(Pair("{'dataType':'boolean','enableStatusPair':{'on':1,'off':0}}"));
        auto *pub = widgets.Add<QComboBox>("request.group1.pub");
        auto *sub = widgets.Add<QCheckBox>("request.group1.sub");
        sub->setChecked(true);
        widgets.Show();
        QVERIFY(widgets.Change(ERelevance::Status, pub, "off"));
        QVERIFY(!sub->isEnabled());
        QVERIFY2(!sub->isChecked(), "a check box that is turned off is unchecked");
        QVERIFY(widgets.Change(ERelevance::Status, pub, "on"));
        QVERIFY(sub->isEnabled());
    }

    void gateOfADisabledPublisherPassesItsStatusAlone()
    {
        CWidgets widgets(Pair("{'dataType':'label'}"));
        auto *pub = widgets.Add<QComboBox>("request.group1.pub");
        QVERIFY2(!CRelevance::Takes(ERelevance::Status, pub, "x"), "not shown");
        widgets.Show();
        QVERIFY(CRelevance::Takes(ERelevance::Value, pub, "x"));
        QVERIFY2(!CRelevance::Takes(ERelevance::Value, pub, ""), "being cleared");
        QVERIFY2(!CRelevance::Takes(ERelevance::Status, nullptr, "x"), "no widget");
        pub->setEnabled(false);
        QVERIFY(!CRelevance::Takes(ERelevance::Value, pub, "x"));
        QVERIFY(CRelevance::Takes(ERelevance::Status, pub, "x"));
    }

    void joinedKeyTakesListsNumbersAndFlagsInListOrder()
    {
        CTestDocument document;
        document.Member("request.group1.list", "{'trait':{'dataType':'list'}}");
        document.Member("request.group1.range", "{'trait':{'dataType':'range'}}");
        document.Member("request.group1.flag", "{'trait':{'dataType':'boolean'}}");
        document.Member("request.group1.label", "{'trait':{'dataType':'label'}}");
        document.Member("request.group1.untyped", "{'caption':'no trait'}");
        CWidgets widgets(document);
        widgets.Add<QComboBox>("request.group1.list")->addItem("11 RB");
        auto *range = widgets.Add<QSpinBox>("request.group1.range");
        range->setMaximum(255);
        range->setDisplayIntegerBase(16);
        range->setValue(254);
        widgets.Add<QCheckBox>("request.group1.flag")->setChecked(true);
        widgets.Add<QLabel>("request.group1.label")->setText("no part");
        widgets.Add<QComboBox>("request.group1.untyped")->addItem("no part");
        widgets.Show();
        const QString number = range->text();
        QCOMPARE(number.toInt(nullptr, 16), 254);
        QCOMPARE(widgets.LiveKey({"list", "range", "flag"}), "11 RB," + number + ",true");
        QCOMPARE(widgets.LiveKey({"flag", "list"}), QString("true,11 RB"));
        QCOMPARE(widgets.LiveKey({"list"}), QString("11 RB"));
        // What gives no part gives no comma; the part in front keeps its own.
        QCOMPARE(widgets.LiveKey({"label", "list"}), QString("11 RB"));
        QCOMPARE(widgets.LiveKey({"list", "label"}), QString("11 RB,"));
        QCOMPARE(widgets.LiveKey({"list", "gone", "untyped", "flag"}), QString("11 RB,true"));
        QCOMPARE(widgets.LiveKey({}), QString());
    }

    void chainIsUnderWayUntilItsLastTarget()
    {
        CWidgets widgets(Pair("{'dataType':'list','valuePair':{'x':['1']}}"));
        auto *pub = widgets.Add<QComboBox>("request.group1.pub");
        auto *sub = widgets.Add<QComboBox>("request.group1.sub");
        widgets.Show();
        bool wasUnderWay = false;
        connect(sub, &QComboBox::currentTextChanged, this,
                [&] { wasUnderWay = widgets.relevance.IsUnderWay(); });
        QVERIFY(widgets.Change(ERelevance::Value, pub, "x"));
        QVERIFY(wasUnderWay);
        QVERIFY(!widgets.relevance.IsUnderWay());
    }

    void loopEnds()
    {
        CTestDocument document;
        const QString trait =
            "'trait':{'dataType':'list','valuePair':{'a':['b','a'],'b':['a','b']}}";
        document.Member("request.group1.one",
                        "{'publishValueList':['request.group1.memberProperty.two']," + trait + "}");
        document.Member("request.group1.two",
                        "{'publishValueList':['request.group1.memberProperty.one']," + trait + "}");
        CWidgets widgets(document);
        auto *one = widgets.Add<QComboBox>("request.group1.one");
        auto *two = widgets.Add<QComboBox>("request.group1.two");
        widgets.Follow(one);
        widgets.Follow(two);
        widgets.Show();
        LogCapture log(lcEngine());
        QVERIFY(widgets.Change(ERelevance::Value, one, "a"));
        QVERIFY(!widgets.relevance.IsUnderWay());
        QCOMPARE(log.Count("publish lists form a loop"), 1);
    }

    void widgetThatIsGoneIsNoTarget()
    {
        CWidgets widgets(Pair("{'dataType':'label','valuePair':{'x':'new'}}"));
        auto *pub = widgets.Add<QComboBox>("request.group1.pub");
        auto *sub = widgets.Add<QLabel>("request.group1.sub");
        widgets.Show();
        delete sub;
        LogCapture log(lcEngine());
        QVERIFY(widgets.Change(ERelevance::Value, pub, "x"));
        QCOMPARE(log.Count("---> [Fail][Value Relevance][type1] Cannot find widget pointer"), 1);
    }
};

QUORLIN_TEST_CLASS(CRelevanceTest)
#include "RelevanceTest.moc"
