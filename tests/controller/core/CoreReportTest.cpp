// The reads of the RSRP pages: fetch of a report, reset of the counters, clearing of the table.
#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/core/CoreFixture.h"
#include "tests/controller/core/StepPages.h"
#include "tests/controller/responses/RsrpReports.h"

namespace {

constexpr char kForcePage[] = "RSRP Force Mode";
constexpr char kNormalPage[] = "RSRP Normal Mode";

class CoreReportTest : public CCoreTest
{
protected:
    void SetUp() override
    {
        CCoreTest::SetUp();
        m_forced = StepPage(EPageId::RsrpForce).Document(m_core);
        m_normal = StepPage(EPageId::RsrpNormal).Document(m_core);
        VondSim_ClearJournal();
    }
    // The document after a fetch; the result goes to m_result.
    QJsonObject Fetch(const char *page, const QJsonObject &document)
    {
        m_result = {"stale", 99, "stale"};
        return ModelFromText(m_core.FetchMixRxReport(page, ModelToText(document), m_result));
    }
    void ExpectResult(const char *name, int status, const char *message) const
    {
        EXPECT_EQ(m_result.itemName.toStdString(), name);
        EXPECT_EQ(m_result.status, status);
        EXPECT_EQ(m_result.message.toStdString(), message);
    }
    // What the target will answer.
    static Report Answer(int count)
    {
        const Report report = Measured(count);
        AnswerBytes(kReport, 0, BytesOf(report).toHex().toStdString());
        return report;
    }
    void PlugOther(const char *generation)
    {
        PlugHandsetWith(std::string("\"generation\": ") + generation);
    }

    QJsonObject m_forced;
    QJsonObject m_normal;  // with 4x4 MIMO
    SEachItemOperationResult m_result;
};

TEST_F(CoreReportTest, ForcePageGetsItsRows)
{
    Answer(2);
    const QJsonObject document = Fetch(kForcePage, m_forced);
    ExpectResult(kForcePage, 0, "");
    EXPECT_EQ(Rows(document), (Lines{"1: -80.00 -81.00 -50.00 -51.00 1 3 4 25.00",
                                     "2: -79.75 -80.75 -49.75 -50.75 1 3 4 25.00"}));
    ExpectOneCall(kReport, QByteArray());
}

TEST_F(CoreReportTest, NormalPageGetsItsRowsInTheTableOfItsMimoType)
{
    Answer(1);
    QJsonObject document = Fetch(kNormalPage, m_normal);
    ExpectResult(kNormalPage, 0, "");
    EXPECT_EQ(Rows(document, kGroup2, kTwelve),
              Lines{"1: -80.00 -81.00 -50.00 -51.00 -82.00 -83.00 -52.00 -53.00 1 3 4 25.00"});
    EXPECT_TRUE(Rows(document).empty());
    Put(document, "cmdIf.request.group1", {{"mimoType", "2x2"}});
    document = Fetch(kNormalPage, document);
    EXPECT_EQ(Rows(document), Lines{"1: -80.00 -81.00 -50.00 -51.00 1 3 4 25.00"});
    EXPECT_EQ(Rows(document, kGroup2, kTwelve).size(), 1u);
}

TEST_F(CoreReportTest, CountOfTwelveShowsTenRows)
{
    Answer(12);
    EXPECT_EQ(Rows(Fetch(kForcePage, m_forced)).size(), 10u);
}

TEST_F(CoreReportTest, LogTellsTheCountThatTheTargetGave)
{
    const LogCapture log(lcCommand());
    for (const char *count : {"0c", "ff", "0a"}) {
        VondSim_ClearFaults();
        AnswerBytes(kReport, 0, count);
        Fetch(kForcePage, m_forced);
        Fetch(kNormalPage, m_normal);
    }
    const QString force = "CLteDataModelResponseBuilder::UpdateMixRxResultV7 report num =";
    const QString normal = "CNrDataModelResponseBuilder::UpdateMixRxNormalResultV7 report num =";
    EXPECT_EQ(log.Lines(QtDebugMsg).filter("report num ="),
              (QStringList{force + " 12", normal + " 12", force + " 255", normal + " 255",
                           force + " 10", normal + " 10"}));
}

TEST_F(CoreReportTest, RowsCountOnOverFetchesUntilTheTableIsCleared)
{
    Answer(3);
    QJsonObject document = Fetch(kForcePage, Fetch(kForcePage, m_forced));
    EXPECT_EQ(Rows(document).size(), 6u);
    document = ModelFromText(m_core.ClearMixRxReport(ModelToText(document)));
    EXPECT_TRUE(Rows(document).empty());
    document = Fetch(kForcePage, document);
    EXPECT_EQ(Rows(document).front(), "1: -80.00 -81.00 -50.00 -51.00 1 3 4 25.00");
    EXPECT_EQ(Rows(document).size(), 3u);
}

TEST_F(CoreReportTest, IdleTargetHasNoData)
{
    EXPECT_EQ(Rows(Fetch(kForcePage, m_forced)),
              Lines{"1: NO DATA NO DATA NO DATA NO DATA NO DATA NO DATA NO DATA NO DATA"});
    ExpectResult(kForcePage, 0, "");
}

TEST_F(CoreReportTest, FailedReadIsOneRowOfFailAndThreeWithItsWords)
{
    Fault(kReport);
    EXPECT_EQ(Rows(Fetch(kForcePage, m_forced)),
              Lines{"1: FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL"});
    ExpectResult(kForcePage, 3, "Target: failure on demand");
    EXPECT_EQ(Rows(Fetch(kNormalPage, m_normal), kGroup2, kTwelve),
              Lines{"1: FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL FAIL"});
    ExpectResult(kNormalPage, 3, "Target: failure on demand");
}

TEST_F(CoreReportTest, OtherPageAddsALineAndHasTheStatusOfTheRead)
{
    const auto line = [](const char *page) {
        return ReportsOf({QString("No support such page for fetch MixRX report --> ") + page});
    };
    Answer(2);
    for (const char *page : {"RSSI", "Continuous RX", "no such page"}) {
        EXPECT_EQ(ChangesBetween(m_forced, Fetch(page, m_forced)), line(page)) << page;
        ExpectResult(page, 0, "");
    }
    EXPECT_EQ(CountCalls(kReport), 3);
    Fault(kReport);
    EXPECT_EQ(ChangesBetween(m_forced, Fetch("RSSI", m_forced)), line("RSSI"));
    ExpectResult("RSSI", 3, "Target: failure on demand");
}

TEST_F(CoreReportTest, FetchOnAnotherGenerationIsTwoAndLeavesTheDocumentAsItWas)
{
    for (const char *generation : {"0", "2"}) {
        PlugOther(generation);
        for (const char *page : {kForcePage, kNormalPage, "RSSI"}) {
            EXPECT_EQ(ChangesBetween(m_normal, Fetch(page, m_normal)), Changes()) << page;
            ExpectResult("", 2, "");
        }
        EXPECT_EQ(CountCalls(kReport), 0);
    }
}

TEST_F(CoreReportTest, ResetReachesTheTargetOnce)
{
    m_result = m_core.ResetMixRxCounter();
    ExpectResult("", 0, "");
    ExpectOneCall(kResetReport, QByteArray());
}

TEST_F(CoreReportTest, ResetStartsTheBlocksOfARunningTestAnew)
{
    Run([&] { m_core.Test(kForcePage, ModelToText(m_forced)); });
    const auto total = [this](const QJsonObject &document) {
        return GetJsonValueConst(Fetch(kForcePage, document),
                                 QString(kGroup1) + ".memberProperty.TotalBLK.1.defaultValue")
            .toString()
            .toStdString();
    };
    const std::string first = total(m_forced);
    EXPECT_NE(total(m_forced), first);
    EXPECT_EQ(m_core.ResetMixRxCounter().status, 0);
    EXPECT_EQ(total(m_forced), first);
}

TEST_F(CoreReportTest, FailedResetIsThreeWithItsWords)
{
    Fault(kResetReport);
    m_result = m_core.ResetMixRxCounter();
    ExpectResult("", 3, "Target: failure on demand");
}

TEST_F(CoreReportTest, ResetOnAnotherGenerationIsTwoWithoutACall)
{
    for (const char *generation : {"0", "2"}) {
        PlugOther(generation);
        m_result = m_core.ResetMixRxCounter();
        ExpectResult("", 2, "");
        EXPECT_EQ(CountCalls(kResetReport), 0);
    }
}

TEST_F(CoreReportTest, ClearEmptiesBothTablesWithoutACall)
{
    Answer(2);
    QJsonObject document = Fetch(kNormalPage, m_normal);
    Put(document, "cmdIf.request.group1", {{"mimoType", "2x2"}});
    document = Fetch(kNormalPage, document);
    VondSim_ClearJournal();
    EXPECT_EQ(Rows(document).size(), 2u);
    EXPECT_EQ(Rows(document, kGroup2, kTwelve).size(), 2u);
    document = ModelFromText(m_core.ClearMixRxReport(ModelToText(document)));
    EXPECT_TRUE(Rows(document).empty());
    EXPECT_TRUE(Rows(document, kGroup2, kTwelve).empty());
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

TEST_F(CoreReportTest, ClearOnAnotherGenerationLeavesTheDocumentAsItWas)
{
    Answer(2);
    const QJsonObject document = Fetch(kForcePage, m_forced);
    PlugOther("0");
    EXPECT_EQ(m_core.ClearMixRxReport(ModelToText(document)), ModelToText(document));
}

}  // namespace
