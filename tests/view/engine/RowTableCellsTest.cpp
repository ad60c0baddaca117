// Row tables: a document that lets go of the cells which its table shows.
#include <QJsonDocument>
#include <QtTest>

#include "View/engine/TableGroup.h"
#include "tests/common/TestClass.h"

namespace {

QJsonObject Parsed(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

constexpr char kMember[] = "cmdIf.response.group1.memberProperty.RSRP0";

}  // namespace

class CRowTableCellsTest : public QObject
{
    Q_OBJECT

private slots:
    void cellsGoAndNumbersStay()
    {
        QJsonObject document = Parsed(R"({"cmdIf": {"request": {"a": "1"}, "response": {
            "group1": {"groupType": 2, "instanceList": ["1", "2"], "memberList": ["RSRP0", "BLER"],
                "memberProperty": {
                    "BLER": {"1": {"defaultValue": "x"}, "2": {"defaultValue": "y"},
                             "caption": "Errors"},
                    "RSRP0":
    {
        "1" : {"defaultValue" : "-90"}, "2" : {"defaultValue" : "-91"}, "dataType" : "label"
    }
}
}
, "group2":
{
    "instanceList" : ["1"], "memberList" : ["RSRP0"], "memberProperty":
    {
        "RSRP0":
        {
            "1":
            {
                "defaultValue" : "-92"
            }
        }
    }
}
}
}
})");
        DropRowCells(document, kMember);
        QCOMPARE(document, Parsed(R"({"cmdIf": {"request": {"a": "1"}, "response": {
            "group1": {"groupType": 2, "instanceList": ["1", "2"], "memberList": ["RSRP0", "BLER"],
                "memberProperty": {
                    "BLER": {"caption": "Errors"
        }
        , "RSRP0":
        {
            "dataType" : "label"
        }
        }
        }
        , "group2":
        {
            "instanceList" : ["1"], "memberList" : ["RSRP0"], "memberProperty":
            {
                "RSRP0":
                {
                    "1":
                    {
                        "defaultValue" : "-92"
                    }
                }
            }
        }
        }
        }
        })"));
    }

    void whatIsNotListedIsNoRow()
    {
        QJsonObject document = Parsed(R"({"cmdIf": {"response": {
            "group1": {"instanceList": ["1", "02"], "memberList": ["RSRP0", "gone", "text"],
                "memberProperty": {
                    "RSRP0": {"0": {}, "1": {}, "2": {}, "02": {}, "3": {}, "-1": {}},
                    "text": "1", "unlisted": {"1": {}}}}}}})");
        DropRowCells(document, kMember);
        const QJsonObject properties = STableGroup(document, kMember).properties;
        QCOMPARE(properties.value("RSRP0").toObject().keys(), (QStringList{"-1", "0", "2", "3"}));
        QCOMPARE(properties.value("text").toString(), QString("1"));
        QCOMPARE(properties.value("unlisted").toObject().keys(), QStringList{"1"});
        QVERIFY(!properties.contains("gone"));
    }

    void documentWithoutTheTableStaysAsItIs_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("empty") << QByteArray("{}");
        QTest::newRow("no group") << QByteArray(R"({"cmdIf": {"response": {}}})");
        QTest::newRow("no rows") << QByteArray(
            R"({"cmdIf": {"response": {"group1": {"instanceList": [], "memberList": ["RSRP0"],
                "memberProperty": {"RSRP0": {"1": {}}}}}}})");
        QTest::newRow("no members") << QByteArray(
            R"({"cmdIf": {"response": {"group1": {"instanceList": ["1"], "memberList": ["RSRP0"]}}}})");
    }

    void documentWithoutTheTableStaysAsItIs()
    {
        QFETCH(QByteArray, json);
        QJsonObject document = Parsed(json);
        DropRowCells(document, kMember);
        QCOMPARE(document, Parsed(json));
    }
};

QUORLIN_TEST_CLASS(CRowTableCellsTest)
#include "RowTableCellsTest.moc"
