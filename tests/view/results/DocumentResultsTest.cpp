// How documents of the pages become rows of results and settings.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>

#include "View/engine/MemberSettings.h"
#include "View/results/ResultSettings.h"
#include "View/results/ResultSource.h"

namespace {

QJsonObject Parsed(const char *text)
{
    return QJsonDocument::fromJson(text).object();
}

QJsonObject Reports()
{
    return Parsed(R"json({"cmdIf": {"response": {"group1": {
        "memberList": ["RSRP0", "BLER"], "instanceList": ["1", "2", "3"],
        "memberProperty": {
            "RSRP0": {"caption": "RSRP0", "2": {"defaultValue": "-80.00"},
                      "3": {"defaultValue": "FAIL"}},
            "BLER": {"caption": "BLER(%)", "2": {"defaultValue": "NAN"},
                     "3": {"defaultValue": "FAIL"}}}}}}})json");
}

QJsonObject Request(const char *band, const char *power)
{
    return {{"group1", QJsonObject{{"band", band}, {"power", power}, {"freq", QJsonArray{"1"}}}}};
}

}  // namespace

TEST(RowTableSource, givesTheRowsBeyondTheKnownOnes)
{
    EXPECT_EQ(RowTableHeaders(Reports(), "group1"), QStringList({"RSRP0 (dBm)", "BLER (%)"}));
    const QVector<QStringList> rows = RowTableRows(Reports(), "group1", 1);
    EXPECT_EQ(rows, QVector<QStringList>({{"-80.00", "NAN"}, {"FAIL", "FAIL"}}));
    EXPECT_TRUE(RowTableRows(Reports(), "group1", 3).isEmpty());
    EXPECT_TRUE(RowTableRows(Reports(), "group1", 9).isEmpty());
    EXPECT_TRUE(RowTableRows(Reports(), "group2", 0).isEmpty());
}

TEST(ResultSettings, columnsAreThoseAskedForAndThoseThatDiffer)
{
    const QVector<SSettingMember> members{
        {"group1", "power", "Power"}, {"group1", "band", "Band"}, {"group1", "freq", "Freq"}};
    const QVector<QJsonObject> same{Request("n1", "10"), Request("n1", "10")};
    EXPECT_TRUE(SettingColumns(same, {}, members).headers.isEmpty());
    EXPECT_EQ(SettingColumns(same, {"group1.band"}, members).headers, QStringList("Band"));
    const QVector<QJsonObject> other{Request("n1", "10"), Request("n1", "20")};
    const SSettingColumns columns = SettingColumns(other, {"group1.band"}, members);
    EXPECT_EQ(columns.headers, QStringList({"Power", "Band"}));
    EXPECT_EQ(columns.values, QVector<QStringList>({{"10", "n1"}, {"20", "n1"}}));
}

TEST(ResultSettings, areThePackagedValuesOfTheRequest)
{
    const QJsonObject document = Parsed(R"({"cmdIf": {"request": {
        "group1": {"memberList": ["band"], "memberValue": {"band": "n78"}},
        "group2": {"memberList": []}}}})");
    EXPECT_EQ(PackagedValues(document, "cmdIf.request"),
              QJsonObject({{"group1", QJsonObject{{"band", "n78"}}}}));
}
