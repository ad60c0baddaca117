// Rows of a report: their texts, and what fills them.
#include <gtest/gtest.h>

#include "Model/JsonPath.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/responses/RsrpReports.h"

namespace {

QString Cell(const QJsonObject &document, const char *member)
{
    return GetJsonValueConst(document,
                             QString("%1.memberProperty.%2.1.defaultValue").arg(kGroup1, member))
        .toString();
}

TEST(MixRxReport, RowsHoldEachMeasurementAndTheTotalsOfTheReport)
{
    QJsonObject document = PackagedPage(kForced);
    Fetch(document, Measured(3));
    EXPECT_EQ(Rows(document), (Lines{"1: -80.00 -81.00 -50.00 -51.00 1 3 4 25.00",
                                     "2: -79.75 -80.75 -49.75 -50.75 1 3 4 25.00",
                                     "3: -79.50 -80.50 -49.50 -50.50 1 3 4 25.00"}));
}

TEST(MixRxReport, CellsLieBesideWhatTheMemberHolds)
{
    QJsonObject document = PackagedPage(kForced);
    Fetch(document, Measured(2));
    EXPECT_EQ(TextAt(document, "cmdIf.response.group1.instanceList"), R"(["1","2"])");
    EXPECT_EQ(TextAt(document, "cmdIf.response.group1.memberProperty.RSSI1"),
              R"({"1":{"defaultValue":"-51.00"},"2":{"defaultValue":"-50.75"},"caption":"RSSI1",)"
              R"("trait":{"dataType":"label","defaultValue":""}})");
}

TEST(MixRxReport, CountAboveTenShowsTenRows)
{
    for (int count : {10, 12, 255}) {
        QJsonObject document = PackagedPage(kForced);
        Fetch(document, Measured(count));
        EXPECT_EQ(Rows(document).size(), 10u) << count;
        EXPECT_EQ(Rows(document).back(), "10: -77.75 -78.75 -47.75 -48.75 1 3 4 25.00") << count;
    }
}

TEST(MixRxReport, NoBlocksShowNanInBler)
{
    QJsonObject document = PackagedPage(kForced);
    Report report = Measured(1);
    report.BadBLK = report.GoodBLK = 0;
    Fetch(document, report);
    EXPECT_EQ(Rows(document), Lines{"1: -80.00 -81.00 -50.00 -51.00 0 0 0 NAN"});
}

TEST(MixRxReport, BlerIsBadOverTotalInPercent)
{
    struct SCase
    {
        uint32_t bad;
        uint32_t good;
        const char *total;
        const char *bler;
    };
    for (const SCase &c :
         {SCase{1, 3, "4", "25.00"}, SCase{0, 7, "7", "0.00"}, SCase{7, 0, "7", "100.00"},
          SCase{1, 2, "3", "33.33"}, SCase{1, 4294967294, "4294967295", "0.00"},
          SCase{1, 4294967295, "0", "NAN"}}) {
        QJsonObject document = PackagedPage(kForced);
        Report report = Measured(1);
        report.BadBLK = c.bad;
        report.GoodBLK = c.good;
        Fetch(document, report);
        EXPECT_EQ(Cell(document, "TotalBLK"), c.total);
        EXPECT_EQ(Cell(document, "BLER"), c.bler);
    }
}

TEST(MixRxReport, PowersAreInParts128WithTwoDigits)
{
    struct SCase
    {
        int16_t raw;
        const char *text;
    };
    for (const SCase &c :
         {SCase{0, "0.00"}, SCase{1, "0.01"}, SCase{-1, "-0.01"}, SCase{64, "0.50"},
          SCase{-10880, "-85.00"}, SCase{32767, "255.99"}, SCase{-32768, "-256.00"}}) {
        QJsonObject document = PackagedPage(kForced);
        Report report = Measured(1);
        report.RSRP0[0] = c.raw;
        Fetch(document, report);
        EXPECT_EQ(Cell(document, "RSRP0"), c.text);
    }
}

TEST(MixRxReport, RowsCountOnFromFetchToFetch)
{
    QJsonObject document = PackagedPage(kForced);
    Fetch(document, Measured(3));
    Fetch(document, Measured(3));
    EXPECT_EQ(TextAt(document, "cmdIf.response.group1.instanceList"),
              R"(["1","2","3","4","5","6"])");
    EXPECT_EQ(Rows(document)[0], "1: -80.00 -81.00 -50.00 -51.00 1 3 4 25.00");
    EXPECT_EQ(Rows(document)[5], "6: -79.50 -80.50 -49.50 -50.50 1 3 4 25.00");
}

TEST(MixRxReport, FailedReadIsOneRowOfFail)
{
    QJsonObject document = PackagedPage(kForced);
    Fetch(document, Report(), false);
    EXPECT_EQ(Rows(document), Lines{"1: FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL"});
}

TEST(MixRxReport, EmptyGoodReadIsOneRowOfNoData)
{
    QJsonObject document = PackagedPage(kForced);
    Fetch(document, Measured(0));
    EXPECT_EQ(TextAt(document, "cmdIf.response.group1.instanceList"), R"(["1"])");
    for (const QString &member : kEight)
        EXPECT_EQ(Cell(document, qPrintable(member)), "NO DATA");
}

TEST(MixRxReport, FailedReadThatFilledRowsEndsThemWithFail)
{
    QJsonObject document = PackagedPage(kForced);
    Fetch(document, Measured(1), false);
    EXPECT_EQ(Rows(document), (Lines{"1: -80.00 -81.00 -50.00 -51.00 1 3 4 25.00",
                                     "2: FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL"}));
}

TEST(MixRxReport, LogTellsTheCountAsTheTargetGaveIt)
{
    const LogCapture log(lcCommand());
    QJsonObject document = PackagedPage(kNormal);
    Fetch(document, Measured(12));
    FetchNormal(document, Measured(3));
    EXPECT_EQ(
        log.Lines(QtDebugMsg),
        (QStringList{"CLteDataModelResponseBuilder::UpdateMixRxResultV7 report num = 12",
                     "CNrDataModelResponseBuilder::UpdateMixRxNormalResultV7 report num = 3"}));
}

}  // namespace
