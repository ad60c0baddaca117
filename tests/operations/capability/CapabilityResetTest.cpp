// Forgetting what was read, also while a read is under way.
#include <future>
#include <thread>

#include "Operations/capability/CapabilityCache.h"
#include "tests/operations/TargetFixture.h"

namespace {

constexpr uint32_t kLongMs = 20000;  // ends a broken test; never waited for in a good one

using CapabilityResetTest = CTargetTest;

TEST_F(CapabilityResetTest, ResetLetsEveryReadBeMadeAgain)
{
    std::vector<SBandCapEntry> bands;
    for (int round = 1; round <= 2; ++round) {
        m_target.GetRfChipIdLte();
        m_target.GetRouteTableLte();
        m_target.GetBandList(EBandDirection::Rx, bands);
        for (const char *name : {kLteCapability, kMmCapability, kNrCapability, kBandRxInfo,
                                 kRxRouteValues, kRouteDetail})
            EXPECT_EQ(CountCalls(name), round) << name;
        EXPECT_EQ(CountCalls(kRouteConfig), 2 * round);
        CTargetCapability::Reset();
    }
}

TEST_F(CapabilityResetTest, ResetAloneMakesNoCall)
{
    m_target.GetNrGeneration();
    VondSim_ClearJournal();
    CTargetCapability::Reset();
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

TEST_F(CapabilityResetTest, FailedReadIsTriedAgainAfterAReset)
{
    Fault(kNrCapability);
    EXPECT_EQ(m_target.GetNrGeneration(), 0);
    VondSim_ClearFaults();
    EXPECT_EQ(m_target.GetNrGeneration(), 0);
    CTargetCapability::Reset();
    EXPECT_EQ(m_target.GetNrGeneration(), 1);
}

TEST_F(CapabilityResetTest, AnotherTargetIsSeenOnlyAfterAReset)
{
    EXPECT_EQ(m_target.GetRfChipIdNr(), 40u);
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    EXPECT_EQ(m_target.GetRfChipIdNr(), 40u);
    CTargetCapability::Reset();
    EXPECT_EQ(m_target.GetRfChipIdNr(), 41u);
}

TEST_F(CapabilityResetTest, ResetDuringAHeldReadReturnsAtOnceAndTheNextReadObeysIt)
{
    VondSim_Hold(kNrCapability);
    auto reader =
        std::async(std::launch::async, [] { return CTargetCapability().GetRfChipIdNr(); });
    ASSERT_EQ(VondSim_WaitUntilHeld(kNrCapability, kLongMs), 1);
    std::thread([] { CTargetCapability::Reset(); }).join();  // comes back while the read is held
    EXPECT_EQ(CountCalls(kNrCapability), 0);
    VondSim_Release(kNrCapability);
    EXPECT_EQ(reader.get(), 40u);

    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    EXPECT_EQ(m_target.GetRfChipIdNr(), 41u);
    EXPECT_EQ(CountCalls(kNrCapability), 2);
    EXPECT_EQ(CountCalls(kMmCapability), 2);
}

TEST_F(CapabilityResetTest, ResetDuringAHeldRouteReadLeavesTheBandListWhole)
{
    VondSim_Hold(kRouteConfig);
    std::vector<SBandCapEntry> bands;
    auto reader = std::async(std::launch::async, [&bands] {
        return CTargetCapability().GetBandList(EBandDirection::Rx, bands);
    });
    ASSERT_EQ(VondSim_WaitUntilHeld(kRouteConfig, kLongMs), 1);
    CTargetCapability::Reset();
    VondSim_Release(kRouteConfig);
    EXPECT_TRUE(reader.get());
    EXPECT_EQ(bands.size(), 10u);
    EXPECT_EQ(m_target.GetNrGeneration(), 1);
}

TEST_F(CapabilityResetTest, ManyResetsCountAsOne)
{
    m_target.GetNrGeneration();
    for (int i = 0; i < 10; ++i)
        CTargetCapability::Reset();
    m_target.GetNrGeneration();
    m_target.GetNrGeneration();
    EXPECT_EQ(CountCalls(kNrCapability), 2);
}

}  // namespace
