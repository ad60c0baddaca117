// The tables of the RSRP pages as a whole: which one grows, what else stays, how they are emptied.
#include <gtest/gtest.h>

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "Model/ModelIntegrity.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/responses/RsrpReports.h"

namespace {

TEST(MixRxTable, FourAntennasFillTheSecondTableAlone)
{
    QJsonObject document = NormalDocument("4x4");
    const std::string first = TextAt(document, kGroup1);
    FetchNormal(document, Measured(2));
    FetchNormal(document, Report(), false);
    FetchNormal(document, Report());
    EXPECT_EQ(
        Rows(document, kGroup2, kTwelve),
        (Lines{"1: -80.00 -81.00 -50.00 -51.00 -82.00 -83.00 -52.00 -53.00 1 3 4 25.00",
               "2: -79.75 -80.75 -49.75 -50.75 -81.75 -82.75 -51.75 -52.75 1 3 4 25.00",
               "3: FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL",
               "4: NO DATA NO DATA NO DATA NO DATA NO DATA NO DATA NO DATA NO DATA NO DATA NO DATA "
               "NO DATA NO DATA"}));
    EXPECT_EQ(TextAt(document, kGroup1), first);
}

TEST(MixRxTable, TwoAntennasFillTheFirstTableAlone)
{
    for (const char *mimoType : {"2x2", "", "8x8"}) {
        QJsonObject document = NormalDocument(mimoType);
        const std::string second = TextAt(document, kGroup2);
        FetchNormal(document, Measured(1));
        EXPECT_EQ(Rows(document), Lines{"1: -80.00 -81.00 -50.00 -51.00 1 3 4 25.00"}) << mimoType;
        EXPECT_EQ(TextAt(document, kGroup2), second) << mimoType;
    }
}

TEST(MixRxTable, TablesCountTheirOwnRows)
{
    QJsonObject document = NormalDocument("2x2");
    FetchNormal(document, Measured(3));
    Put(document, "cmdIf.request.group1", {{"mimoType", "4x4"}});
    FetchNormal(document, Measured(1));
    EXPECT_EQ(TextAt(document, "cmdIf.response.group1.instanceList"), R"(["1","2","3"])");
    EXPECT_EQ(TextAt(document, "cmdIf.response.group2.instanceList"), R"(["1"])");
}

// What the two tables of a document hold after each write of a cell by its path.
TEST(MixRxTable, IsTheSameAsWritingEachCellByItsPath)
{
    QJsonObject document = NormalDocument("4x4");
    AddModelUpdateResult(document, false, "kept");
    QJsonObject expected = document;
    QJsonArray rows;
    for (int i = 0; i < 40; ++i) {
        const QString row = QString::number(i + 1);
        rows.append(row);
        for (const QString &member : kTwelve)
            EXPECT_TRUE(InsertJsonObject(expected, "cmdIf.response.group2.memberProperty." + member,
                                         row, "defaultValue", "FAIL"));
        FetchNormal(document, Report(), false);
    }
    EXPECT_TRUE(ModifyJsonValue(expected, "cmdIf.response.group2.instanceList", rows, 0));
    EXPECT_TRUE(document == expected);
    EXPECT_EQ(TextAt(document, kGroup2), TextAt(expected, kGroup2));
}

TEST(MixRxTable, RecordOfFailuresIsTheCallersAlone)
{
    QJsonObject document = PackagedPage(kForced);
    Fetch(document, Report(), false);
    EXPECT_FALSE(HasJsonValue(document, "modelIntegrity"));

    AddModelUpdateResult(document, false, "earlier");
    Fetch(document, Measured(1));
    EXPECT_EQ(TextAt(document, "modelIntegrity"),
              R"({"integrity":false,"messageList":["earlier"]})");
}

TEST(MixRxTable, CopyOfTheDocumentStaysAsItWas)
{
    QJsonObject document = PackagedPage(kForced);
    Fetch(document, Measured(2));
    const QJsonObject copy = document;
    const std::string before = TextAt(copy, "cmdIf");
    Fetch(document, Measured(2));
    Clean(document);
    EXPECT_EQ(TextAt(copy, "cmdIf"), before);
}

TEST(MixRxTable, DocumentWithoutTheTableStaysAsItWas)
{
    for (const QJsonObject &before :
         {QJsonObject(), QJsonObject{{"cmdIf", 1}},
          QJsonObject{{"cmdIf", QJsonObject{{"response", QJsonObject{{"group1", "no group"}}}}}},
          PackagedPage("NrSingleToneTxV7")}) {
        QJsonObject document = before;
        Fetch(document, Measured(1));
        FetchNormal(document, Measured(1), false);
        Clean(document);
        EXPECT_TRUE(document == before);
    }
}

TEST(MixRxTable, ColumnThatTheTableLacksLeavesTheOthersWhole)
{
    QJsonObject document = PackagedPage(kForced);
    ASSERT_TRUE(RemoveJsonValue(document, "cmdIf.response.group1.memberProperty", "RSSI0"));
    Fetch(document, Measured(1));
    EXPECT_EQ(Rows(document), Lines{"1: -80.00 -81.00 - -51.00 1 3 4 25.00"});
    EXPECT_FALSE(HasJsonValue(document, "cmdIf.response.group1.memberProperty.RSSI0"));
}

using Update = void (*)(QJsonObject &document, const Report &report, bool success);

struct SPage
{
    const char *name;
    Update update;
};

class MixRxClean : public ::testing::TestWithParam<SPage>
{
protected:
    void Update(QJsonObject &document, const Report &report)
    {
        GetParam().update(document, report, true);
    }
};

TEST_P(MixRxClean, LeavesTheDocumentAsBeforeTheFirstFetch)
{
    QJsonObject document = PackagedPage(GetParam().name);
    const QJsonObject before = document;
    for (int i = 0; i < 12; ++i)
        Update(document, Measured(10));
    EXPECT_FALSE(document == before);
    Clean(document);
    EXPECT_TRUE(document == before);
    Clean(document);
    EXPECT_TRUE(document == before);
}

TEST_P(MixRxClean, NextFetchStartsAgainAtRowOne)
{
    QJsonObject document = PackagedPage(GetParam().name);
    Update(document, Measured(3));
    Clean(document);
    Update(document, Measured(2));
    EXPECT_EQ(TextAt(document, "cmdIf.response.group1.instanceList"), R"(["1","2"])");
}

INSTANTIATE_TEST_SUITE_P(Pages, MixRxClean,
                         ::testing::Values(SPage{kForced, &Fetch}, SPage{kNormal, &FetchNormal}),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(MixRxCleanNormal, EmptiesBothTables)
{
    QJsonObject document = NormalDocument("4x4");
    const QJsonObject before = document;
    FetchNormal(document, Measured(5));
    Put(document, "cmdIf.request.group1", {{"mimoType", "2x2"}});
    FetchNormal(document, Measured(5));
    Put(document, "cmdIf.request.group1", {{"mimoType", "4x4"}});
    Clean(document);
    EXPECT_TRUE(document == before);
}

TEST(MixRxCleanNormal, SecondTableIsEmptiedOnAPageThatCallsItselfNormalAlone)
{
    QJsonObject document = NormalDocument("4x4");
    FetchNormal(document, Measured(1));
    document["modelName"] = "RSRP Forced Mode";
    Clean(document);
    EXPECT_EQ(Rows(document, kGroup2, kTwelve).size(), 1u);
}

TEST(MixRxCleanNormal, LogTellsTheNameAndTheGroups)
{
    const LogCapture log(lcCommand());
    QJsonObject normal = PackagedPage(kNormal);
    QJsonObject forced = PackagedPage(kForced);
    Clean(normal);
    Clean(forced);
    EXPECT_EQ(log.Lines(QtDebugMsg),
              (QStringList{R"(CleanMixRxReportV7:  "RSRP Normal Mode"  maxGroup: 2)",
                           R"(CleanMixRxReportV7:  "RSRP Forced Mode"  maxGroup: 1)"}));
}

}  // namespace
