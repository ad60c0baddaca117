// Documents that are made before their pages ask.
#include "Controller/core/AwaitedDocuments.h"

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr uint64_t kDut = 1;
constexpr uint64_t kOtherDut = 2;

CAwaitedDocuments ThreePages()
{
    CAwaitedDocuments documents;
    documents.Expect({EPageId::Rssi, EPageId::RxPathLoss, EPageId::ContRx}, kDut);
    return documents;
}

TEST(AwaitedDocumentsTest, PagesAreNextInTheirOrder)
{
    CAwaitedDocuments documents = ThreePages();
    for (const EPageId page : {EPageId::Rssi, EPageId::RxPathLoss, EPageId::ContRx}) {
        EXPECT_EQ(documents.Next(kDut), page);
        documents.Keep(page, "text", kDut);
        EXPECT_EQ(documents.Next(kDut), std::nullopt);
        EXPECT_EQ(documents.Take(page, kDut), "text");
    }
    EXPECT_EQ(documents.Next(kDut), std::nullopt);
}

TEST(AwaitedDocumentsTest, PageThatAsksTooEarlyMakesItsOwn)
{
    CAwaitedDocuments documents = ThreePages();
    EXPECT_EQ(documents.Take(EPageId::Rssi, kDut), std::nullopt);
    EXPECT_EQ(documents.Next(kDut), EPageId::RxPathLoss);
    documents.Keep(EPageId::Rssi, "late", kDut);
    EXPECT_EQ(documents.Next(kDut), EPageId::RxPathLoss);
}

TEST(AwaitedDocumentsTest, DocumentOfAPageThatIsPassedOverIsDropped)
{
    CAwaitedDocuments documents = ThreePages();
    documents.Keep(EPageId::Rssi, "text", kDut);
    EXPECT_EQ(documents.Take(EPageId::RxPathLoss, kDut), std::nullopt);
    EXPECT_EQ(documents.Next(kDut), EPageId::ContRx);
}

TEST(AwaitedDocumentsTest, PageThatIsNotAwaitedChangesNothing)
{
    CAwaitedDocuments documents = ThreePages();
    documents.Keep(EPageId::Rssi, "text", kDut);
    EXPECT_EQ(documents.Take(EPageId::AptProfile, kDut), std::nullopt);
    EXPECT_EQ(documents.Take(EPageId::Rssi, kDut), "text");
}

TEST(AwaitedDocumentsTest, OtherDutGetsNothing)
{
    CAwaitedDocuments documents = ThreePages();
    documents.Keep(EPageId::Rssi, "text", kDut);
    EXPECT_EQ(documents.Next(kOtherDut), std::nullopt);
    EXPECT_EQ(documents.Take(EPageId::Rssi, kOtherDut), std::nullopt);
}

constexpr char kMade[] = "[CNrCore] GetDataModelV7()Done";

class AwaitedPagesTest : public CCoreTest
{
};

TEST_F(AwaitedPagesTest, DocumentMadeInAdvanceIsTheOneThatIsAskedFor)
{
    const std::string asked = m_core.GetDataModel("RSSI");
    m_core.AwaitPages();
    const LogCapture log(lcCore());
    m_core.PrepareNextDataModel();
    EXPECT_EQ(log.Count(kMade), 1);
    m_core.PrepareNextDataModel();
    EXPECT_EQ(log.Count(kMade), 1);
    EXPECT_EQ(m_core.GetDataModel("RSSI"), asked);
    EXPECT_EQ(log.Count(kMade), 1);
    EXPECT_EQ(m_core.GetDataModel("RSSI"), asked);
    EXPECT_EQ(log.Count(kMade), 2);
}

TEST_F(AwaitedPagesTest, NothingIsMadeBeforePagesAreAwaited)
{
    const LogCapture log(lcCore());
    m_core.PrepareNextDataModel();
    EXPECT_EQ(log.Count(kMade), 0);
}

TEST_F(AwaitedPagesTest, DocumentOfTheDutBeforeAResetIsNotShown)
{
    m_core.AwaitPages();
    m_core.PrepareNextDataModel();
    ASSERT_EQ(VondSim_SetProfileText(R"({"name": "one", "base": "handset", "txRoutes": [],
        "rxType1Routes": [], "rxType2Routes": [], "txLimits": [], "rxLimits": [],
        "bands": [{"band": 41}]})"),
              0);
    m_core.ResetTargetCache();
    const std::string text = m_core.GetDataModel("RSSI");
    EXPECT_NE(text.find("n41"), std::string::npos);
    EXPECT_EQ(text.find("n78"), std::string::npos);
}

}  // namespace
