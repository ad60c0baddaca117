// What is read out of the route configuration besides the routes: gain information, gain mode
// flags, frequency limits of single routes.
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/operations/TargetFixture.h"

namespace {

using RouteConfigTest = CTargetTest;

TEST_F(RouteConfigTest, GainInformationIsByPowerMode)
{
    const SMMRfRxGainInfoV7 *hpm = m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 0);
    const SMMRfRxGainInfoV7 *lpm = m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 1);
    ASSERT_NE(hpm, nullptr);
    ASSERT_NE(lpm, nullptr);
    EXPECT_EQ(hpm->t1[0][1], 1);
    EXPECT_EQ(lpm->t1[0][1], 0);
    EXPECT_EQ(CountCalls(kRouteConfig), 1);
}

TEST_F(RouteConfigTest, GainInformationOfTheLteSideIsItsOwn)
{
    const SMMRfRxGainInfoV7 *lte = m_target.GetSupportRxGainInfoV7(ERadioKind::Lte, 0);
    ASSERT_NE(lte, nullptr);
    EXPECT_NE(lte, m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 0));
    EXPECT_EQ(CountCalls(kRouteConfig), 2);
}

TEST_F(RouteConfigTest, PowerModeOutOfRangeIsLoggedAndHasNoGainInformation)
{
    const LogCapture log(lcTarget());
    EXPECT_EQ(m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 2), nullptr);
    EXPECT_EQ(m_target.GetSupportRxGainInfoV7(ERadioKind::Lte, 17), nullptr);
    EXPECT_EQ(log.Lines(QtDebugMsg),
              QStringList({"GetSupportRxGainInfoV7: pwrMode(2) >= MMTST_RX_PWR_MODE_NUM(2)",
                           "GetSupportRxGainInfoV7: pwrMode(17) >= MMTST_RX_PWR_MODE_NUM(2)"}));
}

TEST_F(RouteConfigTest, FailedReadHasNoGainInformation)
{
    Fault(kRouteConfig);
    EXPECT_EQ(m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 0), nullptr);
    EXPECT_EQ(m_target.GetSupportRxGainInfoV7(ERadioKind::Lte, 1), nullptr);
}

TEST_F(RouteConfigTest, GainFlagIsThatOfTheType2RouteWithTheNumber)
{
    EXPECT_EQ(m_target.GetType2RouteGainFlag(101), 1);
    EXPECT_EQ(m_target.GetType2RouteGainFlag(107), 0);
    EXPECT_EQ(CountCalls(kRouteConfig), 1);
}

TEST_F(RouteConfigTest, GainFlagOfAnyOtherRouteIsZero)
{
    EXPECT_EQ(m_target.GetType2RouteGainFlag(1), 0);  // a type 1 route
    EXPECT_EQ(m_target.GetType2RouteGainFlag(0), 0);
    EXPECT_EQ(m_target.GetType2RouteGainFlag(65535), 0);
}

TEST_F(RouteConfigTest, GainFlagOfTheLastRouteIsFoundAndRowsBeyondAreNot)
{
    Plug("largest");
    EXPECT_EQ(m_target.GetType2RouteGainFlag(200), 1);
    EXPECT_EQ(m_target.GetType2RouteGainFlag(201), 0);
}

TEST_F(RouteConfigTest, FrequencyLimitsAreCopied)
{
    PlugHandsetWith(R"("txLimits": [{"band": 78, "route": 15, "kHz": [3400000, 3600000]}],
        "rxLimits": [{"band": 28, "route": 8, "kHz": [758000, 788000]},
                     {"band": 41, "route": 10, "kHz": [2515000, 2675000]}])");
    SRouteFreqRangeV7 range = {};
    EXPECT_TRUE(m_target.GetFreqRangeBlock(range));
    EXPECT_EQ(range.tx.count, 1);
    EXPECT_EQ(range.tx.band[0], 78);
    EXPECT_EQ(range.tx.route[0], 15);
    EXPECT_EQ(range.tx.low[0], 3400000);
    EXPECT_EQ(range.tx.high[0], 3600000);
    EXPECT_EQ(range.rx.count, 2);
    EXPECT_EQ(range.rx.band[1], 41);
    EXPECT_EQ(range.rx.high[1], 2675000);
}

TEST_F(RouteConfigTest, FrequencyLimitsAreLeftAsTheyWereWhenTheRoutesCouldNotBeRead)
{
    Fault(kRouteConfig);
    SRouteFreqRangeV7 range = {};
    range.tx.count = 9;
    EXPECT_TRUE(m_target.GetFreqRangeBlock(range));
    EXPECT_EQ(range.tx.count, 9);
}

TEST_F(RouteConfigTest, FrequencyLimitsNeedAReadableGeneration)
{
    Fault(kNrCapability);
    SRouteFreqRangeV7 range = {};
    range.tx.count = 9;
    EXPECT_FALSE(m_target.GetFreqRangeBlock(range));
    EXPECT_EQ(range.tx.count, 9);
}

}  // namespace
