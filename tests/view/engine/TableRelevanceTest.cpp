// Relevance on rows of column tables.
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

// Publisher "group1.pub" with the items x, y, z; table "group2" whose second row is the target.
CTestDocument Document(const QString &trait, int modelInterface = eInterfaceCmdIf)
{
    const QString section = modelInterface == eInterfaceCmdIf ? "request" : "config";
    const QString target = "['" + section + ".group2.memberProperty.target']";
    CTestDocument document(modelInterface);
    document.Member(section + ".group1.pub",
                    QString("{'publishValueList':%1,'publishEnableStatusList':%1,'trait':"
                            "{'dataType':'list','value':['x','y','z'],'defaultValue':'x'}}")
                        .arg(target));
    document.ColumnTable(section + ".group2", 3);
    document.Member(section + ".group2.gone", "{'defaultSupport':0}");
    document.Member(section + ".group2.first",
                    "{'trait':{'dataType':'range','value':{'min':0,'max':9},"
                    "'defaultValue':['1']}}");
    document.Member(section + ".group2.target",
                    QString("{'subscribeValue':'%1.group1.memberProperty.pub','trait':%2}")
                        .arg(section, trait));
    return document;
}

QString Trait(const QString &dataType, const QString &entry, const QString &defaults)
{
    return QString("{'dataType':'%1','defaultValue':%2,'enableStatusPair':{'y':1,'z':0},"
                   "'valuePair':{'x':{'min':0,'max':100},'z':{'min':0,'max':100},'y':%3}}")
        .arg(dataType, defaults, entry);
}

struct STablePage
{
    explicit STablePage(const CTestDocument &document) : page(document)
    {
        const QString section = document.ModelInterface() == eInterfaceCmdIf ? "request" : "config";
        pub = page.Add<QComboBox>(section + ".group1.pub");
        table = page.Add<QTableWidget>(section + ".group2.first");
        page.Init();
    }
    template <typename Widget>
    Widget *Cell(int column, int row = 1)
    {
        return qobject_cast<Widget *>(table->cellWidget(row, column));
    }
    QList<double> Values()
    {
        QList<double> values;
        for (int c = 0; c < 3; ++c) {
            if (auto *box = Cell<QSpinBox>(c))
                values.append(box->value());
            else
                values.append(Cell<QDoubleSpinBox>(c)->value());
        }
        return values;
    }

    CTestPage page;
    QComboBox *pub;
    QTableWidget *table;
};

const char kHead[] = "---> [Fail][Value Relevance][type3] ";

}  // namespace

class CTableRelevanceTest : public QObject
{
    Q_OBJECT

private slots:
    void rowFollowsItsPublisher_data()
    {
        QTest::addColumn<int>("modelInterface");
        QTest::addColumn<QString>("dataType");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<QString>("toolTip");
        const int test = eInterfaceCmdIf;
        const int calibration = eInterfaceCalDataIf;
        const QString plain = "{'min':11,'max':20}";
        const QString full = "{'min':11,'max':20,'rangeCheck':'0,11~20','value':'12'}";
        const QString valueAlone = "{'min':11,'max':20,'value':'12'}";
        const QString checkAlone = "{'min':11,'max':20,'rangeCheck':'0,11~20'}";
        using List = QList<double>;
        QTest::newRow("test page") << test << "range" << plain << List{15, 15, 15} << "11~20";
        QTest::newRow("test page, checked value")
            << test << "range" << full << List{12, 12, 12} << "0,11~20";
        QTest::newRow("value without a check is not taken")
            << test << "range" << valueAlone << List{15, 15, 15} << "11~20";
        QTest::newRow("check without a value")
            << test << "range" << checkAlone << List{15, 15, 15} << "0,11~20";
        QTest::newRow("calibration page keeps defaults that fit, the last repeats")
            << calibration << "range" << plain << List{13, 15, 15} << "11~20";
        QTest::newRow("calibration page takes the check and not the value")
            << calibration << "range" << full << List{13, 15, 15} << "0,11~20";
        QTest::newRow("points, test page")
            << test << "pointRange" << plain << List{15.5, 15.5, 15.5} << "11~20";
        QTest::newRow("points, test page, checked value")
            << test << "pointRange" << full << List{12, 12, 12} << "0,11~20";
        QTest::newRow("points, calibration page")
            << calibration << "pointRange" << plain << List{13, 15.5, 15.5} << "11~20";
    }

    // Defaults 13 and 99: the second fits no new limits.
    void rowFollowsItsPublisher()
    {
        QFETCH(int, modelInterface);
        QFETCH(QString, dataType);
        QFETCH(QString, entry);
        STablePage p(Document(Trait(dataType, entry, "['13','99']"), modelInterface));
        QCOMPARE(p.Values(), (QList<double>{13, 99, 99}));
        p.pub->setCurrentText("y");
        QTEST(p.Values(), "values");
        QTEST(p.table->cellWidget(1, 2)->toolTip(), "toolTip");
        QCOMPARE(p.Cell<QSpinBox>(0, 0)->value(), 1);  // the other row
        QCOMPARE(p.Cell<QSpinBox>(0, 0)->toolTip(), QString("0~9"));
    }

    void hiddenTableFollowsAllTheSame()
    {
        STablePage p(Document(Trait("range", "{'min':11,'max':20}", "['13']")));
        p.table->hide();
        p.pub->setCurrentText("y");
        QCOMPARE(p.Values(), (QList<double>{15, 15, 15}));
    }

    void rowThatGetsItsCheckAfterInitIsNotChecked()
    {
        STablePage p(
            Document(Trait("range", "{'min':0,'max':100,'rangeCheck':'0,50~60'}", "['13']")));
        p.pub->setCurrentText("y");
        p.Cell<QSpinBox>(0)->setValue(5);
        emit p.Cell<QSpinBox>(0)->editingFinished();
        QCOMPARE(p.Cell<QSpinBox>(0)->value(), 5);
        QCOMPARE(p.Cell<QSpinBox>(0)->toolTip(), QString("0,50~60"));
    }

    void statusSwitchesTheWholeRow()
    {
        STablePage p(Document(Trait("range", "{'min':0,'max':9}", "['1']")));
        p.pub->setCurrentText("z");
        for (int c = 0; c < 3; ++c) {
            QVERIFY(!p.Cell<QSpinBox>(c)->isEnabled());
            QVERIFY(p.Cell<QSpinBox>(c, 0)->isEnabled());
        }
        p.pub->setCurrentText("y");
        for (int c = 0; c < 3; ++c)
            QVERIFY(p.Cell<QSpinBox>(c)->isEnabled());
        LogCapture log(lcEngine());
        p.pub->setCurrentText("x");  // no status for x
        QVERIFY(p.Cell<QSpinBox>(0)->isEnabled());
        QCOMPARE(log.Critical(),
                 QStringList("---> [Fail][Status Relevance][type3] Cannot get the mapping of key "
                             "and value in the ValuePair JSON Object"));
    }

    void statusSwitchesRowsThatNeverTakeAValue()
    {
        STablePage p(Document("{'dataType':'label','defaultValue':['NA'],'valuePair':{'z':'Z'},"
                              "'enableStatusPair':{'z':0}}"));
        p.pub->setCurrentText("z");
        QVERIFY(!p.Cell<QLabel>(2)->isEnabled());
        QCOMPARE(p.Cell<QLabel>(2)->text(), QString("NA"));
    }

    void valueFailureIsOneCriticalLine_data()
    {
        QTest::addColumn<QString>("trait");
        QTest::addColumn<QString>("line");
        const QString head = kHead;
        QTest::newRow("no trait") << "null" << head + "Cannot fine the Trait JSON Object";
        QTest::newRow("no pairs") << "{'dataType':'range'}"
                                  << head + "Cannot get the ValuePair JSON Object";
        QTest::newRow("no entry") << "{'dataType':'range','valuePair':{}}"
                                  << head + "Cannot get the mapping of key and value in the "
                                            "ValuePair JSON Object";
        for (const char *type : {"list", "label", "unsignedRange"})
            QTest::newRow(type) << QString("{'dataType':'%1','valuePair':{'y':{}}}").arg(type)
                                << head + "Not support this data type yet";
    }

    void valueFailureIsOneCriticalLine()
    {
        QFETCH(QString, trait);
        CheckFailure(Document(trait), "first", true);
    }

    void statusFailureIsOneCriticalLine_data()
    {
        QTest::addColumn<QString>("trait");
        QTest::addColumn<QString>("line");
        const QString head = "---> [Fail][Status Relevance][type3] ";
        QTest::newRow("no trait") << "null" << head + "Cannot fine the Trait JSON Object";
        QTest::newRow("no pairs") << "{'dataType':'range'}"
                                  << head + "Cannot fine the EnableStatusPair JSON Object";
        QTest::newRow("no entry") << "{'dataType':'range','enableStatusPair':{}}"
                                  << head + "Cannot get the mapping of key and value in the "
                                            "ValuePair JSON Object";
    }

    void statusFailureIsOneCriticalLine()
    {
        QFETCH(QString, trait);
        CheckFailure(Document(trait), "first", false);
    }

    void targetWithoutATableIsALoggedFailure()
    {
        const CTestDocument document = Document(Trait("range", "{}", "['1']"));
        CheckLines(document, {},
                   {"---> [Fail][Value Relevance][type3] Cannot fine widget pointer",
                    "---> [Fail][Status Relevance][type3] Cannot fine widget pointer"});
    }

    void targetWhoseWidgetIsNoTableIsALoggedFailure()
    {
        const CTestDocument document = Document(Trait("range", "{}", "['1']"));
        CheckLines(document, [](CTestPage &page) { page.Add<QLabel>("request.group2.target"); },
                   {"---> [Fail][Package][type3] Find the mapping name but it is not table widget "
                    "type <--- ",
                    "---> [Fail][Package][type3]Find the mapping name but It is not table widget "
                    "type <--- "});
    }

    void unsupportedTargetFailsForValuesAndIsSilentForTheStatus()
    {
        CTestDocument document = Document(Trait("range", "{}", "['1']"));
        document.Member("request.group2.target", "{'defaultSupport':0,'trait':{}}");
        CheckLines(document,
                   [](CTestPage &page) { page.Add<QTableWidget>("request.group2.first"); },
                   {"---> [Fail][Value Relevance][type3] Cannot fine row index"});
    }

private:
    void CheckFailure(const CTestDocument &document, const QString &tableMember, bool ofValues)
    {
        QFETCH(QString, line);
        CTestPage page(document);
        auto *pub = page.Add<QComboBox>("request.group1.pub");
        page.Add<QTableWidget>("request.group2." + tableMember);
        page.Init();
        LogCapture log(lcEngine());
        pub->setCurrentText("y");
        QStringList lines =
            log.Critical().filter(ofValues ? "[Value Relevance]" : "[Status Relevance]");
        QCOMPARE(lines, QStringList(line));
    }

    void CheckLines(const CTestDocument &document, std::function<void(CTestPage &)> addTable,
                    const QStringList &lines)
    {
        CTestPage page(document);
        auto *pub = page.Add<QComboBox>("request.group1.pub");
        if (addTable)
            addTable(page);
        page.Init();
        LogCapture log(lcEngine());
        pub->setCurrentText("y");
        QCOMPARE(log.Critical(), lines);
    }
};

QUORLIN_TEST_CLASS(CTableRelevanceTest)
#include "TableRelevanceTest.moc"
