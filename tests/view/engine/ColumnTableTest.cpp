// Column tables: Update and Package.
#include <QComboBox>
#include <QDoubleSpinBox>
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

const char kGroup[] = "data.group4";
const char kTable[] = "data.group4.point";
constexpr int kColumns = 3;

QString Array(const QStringList &texts)
{
    return "['" + texts.join("','") + "']";
}

// One row a data type, on a calibration page. lists: an Update of this row is refused.
CTestDocument AllTypes(const QStringList &point, const QStringList &hex, const QStringList &range,
                       const QStringList &label, const QStringList &list)
{
    const QString member = "{'caption':'%1','trait':{'dataType':'%2','value':%3,"
                           "'defaultValue':%4}}";
    CTestDocument document(eInterfaceCalDataIf);
    document.ColumnTable(kGroup, kColumns);
    document.Member(kTable, member.arg("Point", "pointRange", "{'min':-99,'max':99,'decimals':2}",
                                       Array(point)));
    document.Member("data.group4.hex",
                    member.arg("Hex", "unsignedRange",
                               "{'min':'0','max':'4294967295','displayBase':16}", Array(hex)));
    document.Member("data.group4.range",
                    member.arg("Range", "range", "{'min':-50,'max':50}", Array(range)));
    document.Member("data.group4.label", member.arg("Label", "label", "''", Array(label)));
    document.Member("data.group4.list", member.arg("List", "list", "['a','b']", Array(list)));
    return document;
}

struct SPage
{
    explicit SPage(const CTestDocument &document) : page(document), table(page.AddTable(kTable))
    {
        page.Init();
    }
    QJsonObject Packaged()
    {
        page.PackageMemberValue();
        return page.Model()["calDataIf"]
            .toObject()["data"]
            .toObject()["group4"]
            .toObject()["memberValue"]
            .toObject();
    }
    CTestPage page;
    QTableWidget *table;
};

}  // namespace

class CColumnTableTest : public QObject
{
    Q_OBJECT

private slots:
    void baseSixteenCellPackagesItsTextInThatBase()
    {
        SPage p(AllTypes({"0"}, {"255"}, {"0"}, {"x"}, {"a"}));
        QCOMPARE(p.Packaged()["hex"], JsonObject("{'hex':['FF','FF','FF']}")["hex"]);
    }

    void packageGivesTheTextsAsShown()
    {
        SPage p(AllTypes({"60.1", "-1", "0"}, {"255", "10", "0"}, {"-7", "8", "50"}, {"x", "y", ""},
                         {"b", "a", "b"}));
        QCOMPARE(p.Packaged(),
                 JsonObject("{'point':['60.10','-1.00','0.00'],'hex':['FF','A','0'],"
                            "'range':['-7','8','50'],'label':['x','y',''],'list':['b','a','b']}"));
    }

    void editsArePackaged()
    {
        SPage p(AllTypes({"0"}, {"0"}, {"0"}, {"x"}, {"a"}));
        qobject_cast<QDoubleSpinBox *>(p.table->cellWidget(0, 1))->setValue(-2.5);
        auto *hex = qobject_cast<CUnsignedSpinBox *>(p.table->cellWidget(1, 2));
        hex->selectAll();
        QTest::keyClicks(hex, "fe");
        qobject_cast<QSpinBox *>(p.table->cellWidget(2, 0))->setValue(9);
        qobject_cast<QComboBox *>(p.table->cellWidget(4, 2))->setCurrentText("b");
        QCOMPARE(p.Packaged(),
                 JsonObject("{'point':['0.00','-2.50','0.00'],'hex':['0','0','FE'],"
                            "'range':['9','0','0'],'label':['x','x','x'],'list':['a','a','b']}"));
    }

    void updateWritesAllRowsButLists()
    {
        SPage p(AllTypes({"0"}, {"0"}, {"0"}, {"x"}, {"a"}));
        LogCapture log(lcEngine());
        p.page.UpdateWidget(
            AllTypes({"1.5", "2.5"}, {"3735928559", "16"}, {"-3", "99"}, {"u"}, {"b"}).Json());
        QCOMPARE(p.Packaged(),
                 JsonObject("{'point':['1.50','2.50','2.50'],'hex':['DEADBEEF','10','10'],"
                            "'range':['-3','50','50'],'label':['u','u','u'],"
                            "'list':['a','a','a']}"));
        QStringList lines = log.Critical();
        lines.removeDuplicates();
        QCOMPARE(lines,
                 QStringList("---> [Fail][Update][type3] Not support this data type yet <---"));
    }

    // What a page packages is what the next Update shows, the radix of unsigned values apart.
    void packagedArraysComeBackThroughAnUpdate()
    {
        const QStringList point{"60.10", "-1.25", "99.00"};
        const QStringList range{"-50", "0", "50"};
        const QStringList label{"a b", "", "NA"};
        SPage p(AllTypes(point, {"1"}, range, label, {"a"}));
        const QJsonObject first = p.Packaged();
        SPage q(AllTypes({"0"}, {"1"}, {"0"}, {"-"}, {"a"}));
        q.page.UpdateWidget(AllTypes(point, {"1"}, range, label, {"a"}).Json());
        QCOMPARE(q.Packaged(), first);
    }

    void updateRenamesRowsAndNotColumns()
    {
        SPage p(AllTypes({"0"}, {"0"}, {"0"}, {"x"}, {"a"}));
        CTestDocument update(eInterfaceCalDataIf);
        update.ColumnTable(kGroup, kColumns, "{'colFieldCaptionList':['new','new','new']}");
        update.Member(kTable, "{'caption':'Renamed','trait':{'dataType':'pointRange',"
                              "'defaultValue':['7']}}");
        p.page.UpdateWidget(update.Json());
        QCOMPARE(p.table->verticalHeaderItem(0)->text(), QString("Renamed"));
        QCOMPARE(p.table->horizontalHeaderItem(0)->text(), QString("0"));
        QCOMPARE(qobject_cast<QDoubleSpinBox *>(p.table->cellWidget(0, 2))->value(), 7.0);
    }

    void updateOfMoreRowsOrColumnsThanTheTableWritesWhatThereIs()
    {
        CTestDocument small(eInterfaceCalDataIf);
        small.ColumnTable(kGroup, 1).Member(kTable,
                                            "{'trait':{'dataType':'label','defaultValue':['x']}}");
        SPage p(small);
        CTestDocument update(eInterfaceCalDataIf);
        update.ColumnTable(kGroup, 5)
            .Member(kTable, "{'trait':{'dataType':'label','defaultValue':['u','v']}}")
            .Member("data.group4.more", "{'trait':{'dataType':'label','defaultValue':['w']}}");
        p.page.UpdateWidget(update.Json());
        QCOMPARE(p.table->rowCount(), 1);
        QCOMPARE(p.table->columnCount(), 1);
        QCOMPARE(qobject_cast<QLabel *>(p.table->cellWidget(0, 0))->text(), QString("u"));
    }

    void updateOfAnotherDataTypeLeavesTheCells()
    {
        SPage p(AllTypes({"1"}, {"0"}, {"0"}, {"x"}, {"a"}));
        CTestDocument update(eInterfaceCalDataIf);
        update.ColumnTable(kGroup, kColumns)
            .Member(kTable, "{'trait':{'dataType':'label','defaultValue':['u']}}");
        p.page.UpdateWidget(update.Json());
        QCOMPARE(qobject_cast<QDoubleSpinBox *>(p.table->cellWidget(0, 0))->value(), 1.0);
    }

    void updateOfAnEmptyArrayReadsAsZero()
    {
        SPage p(AllTypes({"1"}, {"5"}, {"2"}, {"x"}, {"a"}));
        CTestDocument update(eInterfaceCalDataIf);
        update.ColumnTable(kGroup, kColumns);
        update.Member(kTable, "{'trait':{'dataType':'pointRange','defaultValue':'NA'}}");
        update.Member("data.group4.hex", "{'trait':{'dataType':'unsignedRange'}}");
        update.Member("data.group4.range", "{'trait':{'dataType':'range','defaultValue':[]}}");
        update.Member("data.group4.label", "{'trait':{'dataType':'label'}}");
        p.page.UpdateWidget(update.Json());
        QCOMPARE(qobject_cast<QDoubleSpinBox *>(p.table->cellWidget(0, 0))->value(), 0.0);
        QCOMPARE(qobject_cast<CUnsignedSpinBox *>(p.table->cellWidget(1, 0))->text(), QString("0"));
        QCOMPARE(qobject_cast<QSpinBox *>(p.table->cellWidget(2, 0))->value(), 0);
        QCOMPARE(qobject_cast<QLabel *>(p.table->cellWidget(3, 0))->text(), QString());
    }

    void unsupportedMemberIsNoRowAndNoValueAndMovesTheRowsBelow()
    {
        const QString label = "{'defaultSupport':%1,'trait':{'dataType':'label',"
                              "'defaultValue':['%2']}}";
        CTestDocument document(eInterfaceCalDataIf);
        document.ColumnTable(kGroup, 1);
        document.Member(kTable, label.arg("1", "first"));
        document.Member("data.group4.gone", label.arg("0", "gone"));
        document.Member("data.group4.below", label.arg("1", "below"));
        SPage p(document);
        QCOMPARE(p.table->rowCount(), 2);
        QCOMPARE(qobject_cast<QLabel *>(p.table->cellWidget(1, 0))->text(), QString("below"));
        QCOMPARE(p.Packaged(), JsonObject("{'point':['first'],'below':['below']}"));
        document.Member("data.group4.below", label.arg("1", "updated"));
        p.page.UpdateWidget(document.Json());
        QCOMPARE(qobject_cast<QLabel *>(p.table->cellWidget(1, 0))->text(), QString("updated"));
    }

    void rowOfAnUnsupportedTypeIsNotPackagedAndTheNextIs()
    {
        CTestDocument document(eInterfaceCalDataIf);
        document.ColumnTable(kGroup, 1);
        document.Member(kTable, "{'trait':{'dataType':'boolean'}}");
        document.Member("data.group4.label", "{'trait':{'dataType':'label','defaultValue':['x']}}");
        SPage p(document);
        LogCapture log(lcEngine());
        QCOMPARE(p.Packaged(), JsonObject("{'label':['x']}"));
        QCOMPARE(log.Critical(),
                 QStringList("---> [Fail][Package][type3] Not support this data type yet <---"));
    }

    void tableIsNamedAfterAnyMemberOfItsGroup()
    {
        CTestDocument document = AllTypes({"0"}, {"0"}, {"0"}, {"x"}, {"a"});
        CTestPage page(document);
        auto *table = page.AddTable("data.group4.label");
        page.Init();
        QCOMPARE(table->rowCount(), 5);
        QCOMPARE(page.Package(kTable).toArray(), (QJsonArray{"0.00", "0.00", "0.00"}));
    }
};

QUORLIN_TEST_CLASS(CColumnTableTest)
#include "ColumnTableTest.moc"
