// Reads of the DUT that fail, seen from a step that runs alone: behind a page's first step a read
// that is made once cannot fail any more.
#include <algorithm>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/capability/UpdateSteps.h"
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

struct SStepFailure
{
    const char *step;
    bool needsHardware;  // a failed detail read is a failure of the step, too
    const char *message;
};

const SStepFailure kStepFailures[] = {
    {"BandAndFrequency", true, "Get band info failed"},
    {"CwTxCommon", false, "Get route info from L1 capbiliy failed "},
    {"TxHwByScsRb", true, "Get HW setting from L1 capbiliy failed "},
    {"TxHwByBwRegion", true, "Get HW setting from L1 capbiliy failed "},
    {"RxHwAndTxRoute", true, "Get HW setting from L1 capbiliy failed "},
    {"RssiGain", false, "Get RX gain Hpm info failed"},
    {"LnaCaptions", false, "Get RX gain Hpm info failed"},
};

const SUpdateStep &FindStep(const std::string &name)
{
    return *std::find_if(std::begin(kUpdateSteps), std::end(kUpdateSteps),
                         [&name](const SUpdateStep &step) { return step.name == name; });
}

class StepReadFailureTest
    : public CUpdaterTest,
      public ::testing::WithParamInterface<std::tuple<SStepFailure, const char *>>
{
};

TEST_P(StepReadFailureTest, StepSaysSoOnceARunAndAsksOnce)
{
    const auto &[failure, function] = GetParam();
    const SUpdateStep &step = FindStep(failure.step);
    const bool isDetail = qstrcmp(function, kRouteConfig) != 0;
    const QJsonObject page = TemplateOf(step.page);
    QJsonObject document = page;
    Fault(function);
    const LogCapture log(lcUpdate());
    const bool isDone = step.run(m_updater, document, {"n1", "n78"});
    if (isDetail && !failure.needsHardware) {
        EXPECT_TRUE(isDone);
        EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList());
        EXPECT_FALSE(document.contains("modelIntegrity"));
        EXPECT_EQ(CountCalls(function), 0);
        return;
    }
    EXPECT_FALSE(isDone);
    QJsonObject expected = page;
    expected.insert("modelIntegrity", Failed({failure.message}));
    EXPECT_EQ(Differences(document, expected), "");
    EXPECT_EQ(log.Lines(QtCriticalMsg),
              QStringList(page.value("modelName").toString() + " " + failure.message));
    EXPECT_EQ(CountCalls(function), 1);

    VondSim_ClearJournal();
    EXPECT_FALSE(step.run(m_updater, document, {"n1", "n78"}));
    EXPECT_EQ(Messages(document), QStringList({failure.message, failure.message}));
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Steps, StepReadFailureTest,
                         ::testing::Combine(::testing::ValuesIn(kStepFailures),
                                            ::testing::Values(kRouteConfig, kBandRxInfo,
                                                              kRxRouteValues, kRouteDetail)),
                         [](const auto &info) {
                             return std::string(std::get<0>(info.param).step) + "_" +
                                    CallLabel(std::get<1>(info.param));
                         });

// Reads whose failure a step keeps to itself.
class SilentFailureTest : public CUpdaterTest
{
protected:
    QJsonObject RunStep(const char *name)
    {
        const SUpdateStep &step = FindStep(name);
        QJsonObject document = TemplateOf(step.page);
        const LogCapture log(lcUpdate());
        EXPECT_TRUE(step.run(m_updater, document, {"n41", "n1"}));
        EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList());
        EXPECT_FALSE(document.contains("modelIntegrity"));
        return document;
    }
};

const QString kGroup1 = QStringLiteral("cmdIf.request.group1.memberProperty.");

TEST_F(SilentFailureTest, TxBandsWithoutReadableRoutesHaveNoRouteEntries)
{
    const QJsonObject whole = RunStep("ModulationTxCommon");
    Plug("handset");
    m_updater.ResetCapabilityCache();
    Fault(kRouteConfig);
    const QJsonObject document = RunStep("ModulationTxCommon");
    QJsonObject expected = whole;
    Set(expected, kGroup1 + "txRoute.trait.valuePair", QJsonObject());
    Set(expected, kGroup1 + "txRoute.trait.defaultValue", "");
    EXPECT_EQ(Differences(document, expected), "");
}

TEST_F(SilentFailureTest, RxBandsWithoutReadableRoutesHaveNoRoutesAndNoTypes)
{
    const QJsonObject whole = RunStep("RxCommon");
    Plug("handset");
    m_updater.ResetCapabilityCache();
    Fault(kRouteConfig);
    const QJsonObject document = RunStep("RxCommon");
    QJsonObject expected = whole;
    Set(expected, kGroup1 + "rxRoute.trait.valuePair", QJsonObject());
    Set(expected, kGroup1 + "rxRoute.trait.defaultValue", "");
    Set(expected, kGroup1 + "routeType.trait.valuePair",
        QJsonObject{{"n41", QJsonArray()}, {"n1", QJsonArray()}});
    EXPECT_EQ(Differences(document, expected), "");
}

TEST_F(SilentFailureTest, BandWhoseListCannotBeReadHasNoMimo)
{
    EXPECT_TRUE(m_updater.IsBandMimoSupported(EBandDirection::Tx, 41));
    for (const char *function : {kRouteConfig, kBandRxInfo, kRxRouteValues, kRouteDetail}) {
        Plug("handset");
        Fault(function);
        EXPECT_FALSE(m_updater.IsBandMimoSupported(EBandDirection::Tx, 41)) << function;
    }
}

class FrequencyReadFailureTest : public CUpdaterTest,
                                 public ::testing::WithParamInterface<EBandDirection>
{
protected:
    QJsonObject ByRoute()
    {
        return m_updater.GetFrequencyJsonObjectPair(GetParam(), {"n1", "n78"}, true, false);
    }
};

TEST_P(FrequencyReadFailureTest, LimitsOfRoutesThatCannotBeReadAreLoggedAlone)
{
    for (const char *function : {kQuery, kMmCapability, kNrCapability}) {
        Plug("handset");
        Fault(function);
        const LogCapture log(lcUpdate());
        EXPECT_TRUE(ByRoute().isEmpty());
        EXPECT_EQ(log.Lines(QtCriticalMsg),
                  QStringList("Get route frequency range from L1 failed"));
        VondSim_ClearJournal();
        EXPECT_TRUE(ByRoute().isEmpty());
        EXPECT_EQ(VondSim_CallCount(), 0u);
    }
}

TEST_P(FrequencyReadFailureTest, RoutesThatCannotBeReadAreLoggedAlone)
{
    Fault(kRouteConfig);
    const LogCapture log(lcUpdate());
    EXPECT_TRUE(ByRoute().isEmpty());
    EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList("Get route by band failed"));
}

TEST_P(FrequencyReadFailureTest, LimitsOfBandsReadNothing)
{
    EXPECT_EQ(m_updater.GetFrequencyJsonObjectPair(GetParam(), {"n1", "n78"}, false, false).size(),
              2);
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Directions, FrequencyReadFailureTest,
                         ::testing::Values(EBandDirection::Tx, EBandDirection::Rx));

}  // namespace
