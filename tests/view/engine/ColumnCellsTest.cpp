// Column tables that have no editors yet.
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "Support/Log.h"
#include "View/editors/LateEditors.h"
#include "View/editors/TabOrder.h"
#include "View/editors/TableKeys.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/CellPairs.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kGroup[] = "response.group2";
const char kTable[] = "response.group2.number";

// A row of each type, and a publisher that two of them follow.
CTestDocument AllTypes()
{
    CTestDocument document;
    const QString targets = "['response.group2.memberProperty.number',"
                            "'response.group2.memberProperty.point']";
    document.Member("request.group1.pub",
                    QString("{'publishValueList':%1,'publishEnableStatusList':%1,'trait':"
                            "{'dataType':'list','value':['x','y','z'],'defaultValue':'x'}}")
                        .arg(targets));
    document.ColumnTable(kGroup, 5);
    const QString follows = "{'subscribeValue':'request.group1.memberProperty.pub','trait':"
                            "{'dataType':'%1','defaultValue':['3','77'],'enableStatusPair':"
                            "{'x':1,'y':0,'z':1},'valuePair':{'x':{'min':0,'max':9},"
                            "'y':{'min':-5,'max':50,'rangeCheck':'1~4','value':'2'}}}}";
    document.Member(kTable, follows.arg("range"));
    document.Member("response.group2.point", follows.arg("pointRange"));
    document.Member("response.group2.mask",
                    "{'trait':{'dataType':'unsignedRange','defaultValue':['255','9'],'value':"
                    "{'min':'16','max':'4096','displayBase':16}}}");
    document.Member("response.group2.text",
                    "{'trait':{'dataType':'label','defaultValue':['a','bc']}}");
    document.Member("response.group2.choice",
                    "{'trait':{'dataType':'list','value':['','a','b','a'],"
                    "'defaultValue':['b','none','a']}}");
    document.Member("response.group2.off",
                    "{'defaultEnableStatus':0,'trait':{'dataType':'pointRange','defaultValue':"
                    "['1.23456789'],'value':{'min':0.123456,'max':1.987654,'decimals':3}}}");
    return document;
}

class CPaintCounter : public QObject
{
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count[object];
        return false;
    }
    QHash<QObject *, int> count;
};

struct SLatePage
{
    explicit SLatePage(const CTestDocument &document, bool isLate = true)
        : page(document), pub(page.Add<QComboBox>("request.group1.pub")),
          table(page.AddTable(kTable))
    {
        page.m_hasEditorsAtOnce = !isLate;
        page.Init();
    }
    bool HasEditors() const { return table->cellWidget(0, 0) != nullptr; }

    CTestPage page;
    QComboBox *pub;
    QTableWidget *table;
};

}  // namespace

class CColumnCellsTest : public QObject
{
    Q_OBJECT

private slots:
    // A tool tip or a relation may make the late ones early, but not in all runs.
    void cleanupTestCase() { QVERIFY(m_lateToTheEnd == 0 || m_lateToTheEnd > 10); }

    void tableHasNoEditorsUntilItIsPainted()
    {
        SLatePage p(AllTypes());
        QVERIFY(!p.HasEditors());
        p.page.PackageMemberValue();
        p.page.UpdateWidget(AllTypes().Json());
        QVERIFY(!p.HasEditors());
        QVERIFY(QTest::qWaitForWindowExposed(&p.page));
        QCoreApplication::processEvents();
        for (int r = 0; r < p.table->rowCount(); ++r) {
            for (int c = 0; c < p.table->columnCount(); ++c)
                QVERIFY(p.table->cellWidget(r, c) && p.table->cellWidget(r, c)->isVisible());
        }
    }

    void whatNeedsAnEditorMakesIt_data()
    {
        QTest::addColumn<int>("need");
        for (const char *need : {"a request for them", "value and status relevance", "a picture",
                                 "the keys", "the focus"})
            QTest::newRow(need) << (m_needs.append(need), m_needs.size() - 1);
    }

    void whatNeedsAnEditorMakesIt()
    {
        QFETCH(int, need);
        SLatePage p(AllTypes());
        QVERIFY(!p.HasEditors());
        const QString name = m_needs[need];
        if (name == "a request for them")
            EnsureEditors(p.table);
        else if (name == "value and status relevance")
            p.pub->setCurrentText("y");
        else if (name == "a picture")
            p.page.grab();
        else if (name == "the keys")
            QVERIFY(CTableKeys::Of(p.table)->Entry());
        else if (QApplication::setActiveWindow(&p.page); true)
            p.table->setFocus(Qt::TabFocusReason);
        QVERIFY(p.HasEditors());
    }

    void lateEditorsAreWatched()
    {
        SLatePage p(AllTypes());
        EnsureEditors(p.table);
        auto *cell = qobject_cast<QSpinBox *>(p.table->cellWidget(0, 0));
        cell->setFocus();
        cell->selectAll();
        QTest::keyClick(cell, Qt::Key_Backspace);
        QCOMPARE(cell->text(), QString());
        p.page.PackageMemberValue();
        QCOMPARE(cell->text(), QString("3"));  // an emptied box gives way to the value before
    }

    void firstPaintPaintsEachCellOnce()
    {
        SLatePage p(AllTypes());
        CPaintCounter paints;
        WhenEditorsAreMade(p.table, &p.page, [&] {
            for (QWidget *cell : p.table->viewport()->findChildren<QWidget *>())
                cell->installEventFilter(&paints);
        });
        p.table->hide();
        QVERIFY(QTest::qWaitForWindowExposed(&p.page));
        QCoreApplication::processEvents();
        QVERIFY(!p.HasEditors());
        p.table->show();
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
        QWidget *cell = p.table->cellWidget(0, 0);
        QVERIFY(cell && cell->isVisible());
        QCOMPARE(paints.count[cell], 1);
        QCOMPARE(paints.count[cell->findChild<QLineEdit *>()], 1);
    }

    void callComesWhenTheEditorsAreMade()
    {
        SLatePage p(AllTypes());
        int calls = 0;
        WhenEditorsAreMade(p.table, &p.page, [&] { ++calls; });
        QCOMPARE(calls, 0);
        EnsureEditors(p.table);
        EnsureEditors(p.table);
        QCOMPARE(calls, 1);
        WhenEditorsAreMade(p.table, &p.page, [&] { ++calls; });
        QCOMPARE(calls, 2);
        QTableWidget other;  // one that has no late editors
        WhenEditorsAreMade(&other, &p.page, [&] { ++calls; });
        QCOMPARE(calls, 3);
    }

    void secondDocumentMakesTheCellsAnew()
    {
        SLatePage p(AllTypes());
        EnsureEditors(p.table);
        for (int i = 0; i < 3; ++i) {
            p.page.Deliver();
            p.page.PackageMemberValue();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!p.HasEditors());
        QCOMPARE(p.table->viewport()->findChildren<QAbstractSpinBox *>().size(), 3);  // scratches
        QCOMPARE(p.page.Package("response.group2.text"),
                 QJsonValue(QJsonArray({"a", "bc", "bc", "bc", "bc"})));
    }

    void lateTableLooksLikeOneMadeAtOnce()
    {
        SLatePage early(AllTypes(), false);
        SLatePage late(AllTypes());
        QVERIFY(early.HasEditors() && !late.HasEditors());
        QCOMPARE(late.table->size(), early.table->size());
        QCOMPARE(late.page.grab().toImage(), early.page.grab().toImage());
        QCOMPARE(DifferenceOfCells(early.page, late.page), QString());
    }

    // What comes in between, Update, Package and relevance, comes in a random order.
    void lateCellsPackageTheBytesOfEditors_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 60; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void lateCellsPackageTheBytesOfEditors()
    {
        QFETCH(quint32, seed);
        const LogCapture log(lcEngine());  // of types and keys that there are not
        QRandomGenerator random(seed);
        const CTestDocument document = RandomDocument(random);
        SLatePage early(document, false);
        SLatePage late(document);
        QCOMPARE(TablesWithoutEditors(late.page), 1);
        const bool relates = random.bounded(2) == 0;
        for (int step = 0; step < 12; ++step) {
            const int what = random.bounded(4);
            if (what < 2) {
                const QJsonObject update = RandomUpdate(document.Json(), random);
                early.page.UpdateWidget(update);
                late.page.UpdateWidget(update);
            } else if (what == 2) {
                QCOMPARE(late.page.PackageMemberValue(), early.page.PackageMemberValue());
            } else if (relates) {
                const int item = random.bounded(3);
                early.pub->setCurrentIndex(item);
                late.pub->setCurrentIndex(item);
            }
        }
        m_lateToTheEnd += TablesWithoutEditors(late.page);
        QCOMPARE(late.page.PackageMemberValue(), early.page.PackageMemberValue());
        QCOMPARE(DifferenceOfCells(early.page, late.page), QString());
        QCOMPARE(late.page.PackageMemberValue(), early.page.PackageMemberValue());
    }

private:
    static QJsonObject RandomEntry(QRandomGenerator &random)
    {
        QJsonObject entry{{"min", random.bounded(400) / 7.0 - 30},
                          {"max", random.bounded(400) / 7.0 - 5}};
        if (random.bounded(2) == 0)
            entry["decimals"] = random.bounded(8);
        if (random.bounded(3) == 0)
            entry["rangeCheck"] = "0,1~5";
        if (random.bounded(3) == 0)
            entry["value"] = RandomText(random);
        return entry;
    }
    static QJsonObject RandomUnsigned(QRandomGenerator &random)
    {
        QJsonObject entry{{"min", QString::number(random.bounded(40))},
                          {"max", QString::number(random.bounded(200))}};
        if (random.bounded(2) == 0)
            entry["displayBase"] = random.bounded(40);
        return entry;
    }
    // The table's shape and all its limits are random; its first row, the table's name, is there.
    static CTestDocument RandomDocument(QRandomGenerator &random)
    {
        CTestDocument document = AllTypes();
        document.ColumnTable(kGroup, 1 + random.bounded(20));
        const QStringList types = {"range", "pointRange", "unsignedRange",
                                   "label", "list",       "boolean"};
        const int rows = 1 + random.bounded(8);
        for (int r = 0; r < rows; ++r) {
            const QString type = types[random.bounded(types.size())];
            QJsonArray defaults;
            for (int i = random.bounded(25); i > 0; --i)
                defaults.append(RandomText(random));
            QJsonObject trait{{"dataType", type}, {"defaultValue", defaults}};
            QJsonObject member{{"defaultEnableStatus", random.bounded(2)}};
            const bool isUnsigned = type == "unsignedRange";
            trait["value"] = isUnsigned ? RandomUnsigned(random) : RandomEntry(random);
            if (type == "list")
                trait["value"] = QJsonArray{RandomText(random), RandomText(random), "", "a", "a"};
            trait["valuePair"] = QJsonObject{
                {"x", trait["value"]}, {"y", RandomEntry(random)}, {"z", RandomEntry(random)}};
            trait["enableStatusPair"] = QJsonObject{{"x", 1}, {"y", 0}};
            if (random.bounded(2) == 0)
                member["subscribeValue"] = "request.group1.memberProperty.pub";
            member["trait"] = trait;
            const char *keys[] = {"number", "point", "c", "d", "e", "f", "g", "h"};
            document.Member(QString("response.group2.") + keys[r], member);
        }
        return document;
    }

    QStringList m_needs;
    int m_lateToTheEnd = 0;
};

QUORLIN_TEST_CLASS(CColumnCellsTest)
#include "ColumnCellsTest.moc"
