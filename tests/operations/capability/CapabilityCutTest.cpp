// A target that reports more rows than its tables hold. Noise stands for such a target: the journal
// shows what it claimed.
#include <algorithm>

#include "Operations/capability/CapabilityCache.h"
#include "tests/operations/TargetFixture.h"

namespace {

using CapabilityCutTest = CTargetTest;

TEST_F(CapabilityCutTest, RouteCountsAreCutToTheirTables)
{
    Noise(kRouteConfig, 1);
    const SMMRfRouteTableV7 *table = m_target.GetRouteTableNr();
    ASSERT_NE(table, nullptr);
    const auto claimed = RecordOf<SMMRfRouteConfigV7>(JournalOf(kRouteConfig).value(0).answer);
    ASSERT_GT(claimed.bandCount, 25u);
    ASSERT_GT(claimed.routes.txRouteCount, 100);
    ASSERT_GT(claimed.routes.rxType1RouteCount, 100);
    ASSERT_GT(claimed.routes.rxType2RouteCount, 100);
    EXPECT_EQ(CapabilityCache::Get().nrRoutes.record.bandCount, 25u);
    EXPECT_EQ(table->txRouteCount, 100);
    EXPECT_EQ(table->rxType1RouteCount, 100);
    EXPECT_EQ(table->rxType2RouteCount, 100);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(table->txRoute[i].bwRegionCount,
                  std::min<uint16_t>(claimed.routes.txRoute[i].bwRegionCount, 4))
            << i;
        EXPECT_EQ(table->txRoute[i].route, claimed.routes.txRoute[i].route) << i;
    }
}

TEST_F(CapabilityCutTest, CountsWithinTheirTablesStay)
{
    Plug("largest");
    const SMMRfRouteTableV7 *table = m_target.GetRouteTableNr();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(CapabilityCache::Get().nrRoutes.record.bandCount, 25u);
    EXPECT_EQ(table->txRouteCount, 100);
    EXPECT_EQ(table->rxType1RouteCount, 100);
    EXPECT_EQ(table->rxType2RouteCount, 100);
    EXPECT_EQ(table->txRoute[99].bwRegionCount, 4);
}

TEST_F(CapabilityCutTest, PairingCountsAreCutToTheirTables)
{
    Noise(kRxRouteValues, 1);
    std::vector<SRxRouteInfoV7> routes;
    ASSERT_TRUE(m_target.GetRxCommonPathV7(routes, true));
    const auto claimed = RecordOf<SNRfRxRouteValues>(JournalOf(kRxRouteValues).value(0).answer);
    ASSERT_GT(claimed.count, 100);
    const SNRfRxRouteValues &kept = CapabilityCache::Get().nrDetail.record.rxRouteValues;
    EXPECT_EQ(kept.count, 100);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(kept.entry[i].valueCount, std::min<uint16_t>(claimed.entry[i].valueCount, 100));
}

TEST_F(CapabilityCutTest, BandInfoCountIsCutToItsTable)
{
    Noise(kBandRxInfo, 1);
    std::vector<SBandCapEntry> bands;
    ASSERT_TRUE(m_target.GetBandList(EBandDirection::Rx, bands));
    ASSERT_GT(RecordOf<SNRfBandRxInfo>(JournalOf(kBandRxInfo).value(0).answer).count, 25);
    EXPECT_EQ(CapabilityCache::Get().nrDetail.record.bandRxInfo.count, 25);
    EXPECT_EQ(bands.size(), 10u);
}

TEST_F(CapabilityCutTest, NoiseFromEveryReadIsWalkedWithoutHarm)
{
    for (int seed = 1; seed <= 20; ++seed) {
        VondSim_ClearFaults();
        for (const char *name : {kRouteConfig, kBandRxInfo, kRxRouteValues})
            Noise(name, seed);
        CTargetCapability::Reset();
        std::vector<SBandCapEntry> bands;
        std::vector<STxRouteInfoV7> tx;
        std::vector<SRxRouteInfoV7> rx;
        SRouteFreqRangeV7 range;
        m_target.GetBandList(EBandDirection::Tx, bands);
        EXPECT_LE(bands.size(), 25u);
        EXPECT_TRUE(m_target.GetTxCommonPathV7(tx, false));
        EXPECT_EQ(tx.size(), 100u);
        EXPECT_TRUE(m_target.GetRxCommonPathV7(rx, false));
        EXPECT_EQ(rx.size(), 200u);
        m_target.GetTxCommonPathV7(tx, true);
        m_target.GetRxCommonPathV7(rx, true);
        m_target.GetType2RouteGainFlag(101);
        EXPECT_TRUE(m_target.GetFreqRangeBlock(range));
    }
}

}  // namespace
