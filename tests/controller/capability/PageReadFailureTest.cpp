// Reads of the DUT that fail, seen from a page: each page with each read.
//
// A read is made once; what it gave stands until the next reset. So a page whose tables cannot be
// read ends at its first step.
#include "Controller/core/NrCore.h"
#include "Model/ModelText.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

// In the order in which they are made.
constexpr const char *kCalls[] = {kQuery,      kMmCapability,  kNrCapability, kRouteConfig,
                                  kBandRxInfo, kRxRouteValues, kRouteDetail};

std::vector<std::string> CallsUpTo(const char *function)
{
    std::vector<std::string> calls;
    for (const char *call : kCalls) {
        calls.push_back(call);
        if (qstrcmp(call, function) == 0)
            break;
    }
    return calls;
}

class PageReadFailureTest : public CUpdaterTest,
                            public ::testing::WithParamInterface<std::tuple<EPageId, const char *>>
{
protected:
    void SetUp() override
    {
        CUpdaterTest::SetUp();
        GetCore().ResetTargetCache();
        VondSim_ClearJournal();
        m_template = TemplateOf(std::get<0>(GetParam()));
        Fault(std::get<1>(GetParam()));
    }
    void TearDown() override
    {
        CUpdaterTest::TearDown();
        GetCore().ResetTargetCache();
    }
    static std::string Ask() { return GetCore().GetDataModel(PageName(std::get<0>(GetParam()))); }
    void ExpectNoFurtherCall(const std::string &first)
    {
        VondSim_ClearJournal();
        EXPECT_EQ(Ask(), first);
        EXPECT_EQ(VondSim_CallCount(), 0u);
    }

    QJsonObject m_template;
};

std::string CaseName(const ::testing::TestParamInfo<std::tuple<EPageId, const char *>> &info)
{
    return PageLabel(std::get<0>(info.param)) + "_" + CallLabel(std::get<1>(info.param));
}

using PageWithoutTablesTest = PageReadFailureTest;

TEST_P(PageWithoutTablesTest, PageIsTheTemplateWithOneMessageAndTheDutIsNotAskedAgain)
{
    const LogCapture log(lcUpdate());
    const std::string text = Ask();
    QJsonObject expected = m_template;
    expected.insert("modelIntegrity", Failed({"Get band info failed"}));
    EXPECT_EQ(Differences(ModelFromText(text), expected), "");
    EXPECT_EQ(log.Lines(QtCriticalMsg),
              QStringList(m_template.value("modelName").toString() + " Get band info failed"));
    EXPECT_EQ(CalledFunctions(), CallsUpTo(std::get<1>(GetParam())));
    ExpectNoFurtherCall(text);
}

INSTANTIATE_TEST_SUITE_P(Pages, PageWithoutTablesTest,
                         ::testing::Combine(::testing::ValuesIn(kPatchedPages),
                                            ::testing::Values(kRouteConfig, kBandRxInfo,
                                                              kRxRouteValues, kRouteDetail)),
                         CaseName);

// Without the generation there is no page at all; the driver alone sees a DUT without bands.
using PageWithoutGenerationTest = PageReadFailureTest;

TEST_P(PageWithoutGenerationTest, PageIsAnEmptyTextAndTheDutIsNotAskedAgain)
{
    const LogCapture log(lcUpdate());
    EXPECT_EQ(Ask(), "");
    EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList());
    EXPECT_EQ(CalledFunctions(), CallsUpTo(std::get<1>(GetParam())));
    ExpectNoFurtherCall("");
}

TEST_P(PageWithoutGenerationTest, DriverFindsNoBandsAndPagesByRouteLogTheLimits)
{
    const EPageId id = std::get<0>(GetParam());
    const bool isByBand = id == EPageId::PuschTxNormal || id == EPageId::RsrpNormal;
    const QString message = "Get frequency value relation failed";
    QStringList lines(m_template.value("modelName").toString() + " " + message);
    if (!isByBand)
        lines.prepend("Get route frequency range from L1 failed");
    const LogCapture log(lcUpdate());
    const QJsonObject document = Patched(id);
    EXPECT_FALSE(m_isDone);
    EXPECT_EQ(Messages(document), QStringList(message));
    EXPECT_EQ(log.Lines(QtCriticalMsg), lines);
}

INSTANTIATE_TEST_SUITE_P(Pages, PageWithoutGenerationTest,
                         ::testing::Combine(::testing::ValuesIn(kPatchedPages),
                                            ::testing::Values(kQuery, kMmCapability,
                                                              kNrCapability)),
                         CaseName);

}  // namespace
