// TX routes with and without their hardware.
#include "Operations/capability/CapabilityCache.h"
#include "tests/operations/TargetFixture.h"

namespace {

class TxCommonPathTest : public CTargetTest
{
protected:
    std::vector<STxRouteInfoV7> Routes(bool withHardware) const
    {
        std::vector<STxRouteInfoV7> routes(1);
        EXPECT_TRUE(m_target.GetTxCommonPathV7(routes, withHardware));
        return routes;
    }
};

TEST_F(TxCommonPathTest, RoutesStandInTableOrderWithTheirRegions)
{
    const auto routes = Routes(false);
    ASSERT_EQ(routes.size(), 19u);
    EXPECT_EQ(routes[8].band, 41);
    EXPECT_EQ(routes[8].route, 9);
    ASSERT_EQ(routes[8].bwRegionCount, 4);
    const uint32_t regions[] = {20000, 40000, 60000, 100000};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(routes[8].bwRegionLimitKhz[i], regions[i]);
    EXPECT_EQ(routes[4].bwRegionCount, 1);
    EXPECT_EQ(routes[4].bwRegionLimitKhz[1], 0u);
    EXPECT_EQ(routes[18].band, 80);
}

TEST_F(TxCommonPathTest, WithoutHardwareNoDetailIsRead)
{
    for (const STxRouteInfoV7 &route : Routes(false)) {
        EXPECT_EQ(route.hwValid, 0);
        EXPECT_EQ(route.bwRegion[0].feRouteNum, 0);
    }
    EXPECT_EQ(CalledFunctions(), std::vector<std::string>{kRouteConfig});
}

TEST_F(TxCommonPathTest, EveryRegionGetsItsOwnHardware)
{
    const auto routes = Routes(true);
    ASSERT_EQ(routes.size(), 19u);
    for (const STxRouteInfoV7 &route : routes)
        EXPECT_EQ(route.hwValid, 1) << route.route;
    for (int region = 0; region < 4; ++region) {
        EXPECT_EQ(routes[8].bwRegion[region].feRouteNum, 236 + region);
        EXPECT_EQ(routes[8].bwRegion[region].stx, 1);
        EXPECT_EQ(routes[8].bwRegion[region].mimoPairCount, 2);
        EXPECT_EQ(routes[8].bwRegion[region].mimoPair[1], 11);
    }
    EXPECT_STREQ(routes[8].bwRegion[2].port, "TX_HB_2");
    EXPECT_EQ(routes[4].bwRegion[0].feRouteNum, 220);
    EXPECT_EQ(routes[4].bwRegion[1].feRouteNum, 0);
    EXPECT_EQ(routes[18].bwRegion[0].feRouteNum, 272);
}

TEST_F(TxCommonPathTest, HardwareIsReadOnce)
{
    Routes(true);
    Routes(true);
    EXPECT_EQ(CountCalls(kRouteDetail), 1);
}

TEST_F(TxCommonPathTest, RoutesBeyondTheDetailRequestKeepNoHardware)
{
    Plug("largest");
    const auto routes = Routes(true);
    ASSERT_EQ(routes.size(), 100u);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(routes[i].hwValid, i < 63 ? 1 : 0) << i;  // 63 routes of four regions fit
        EXPECT_EQ(routes[i].bwRegionCount, 4) << i;
        EXPECT_EQ(routes[i].bwRegionLimitKhz[3], 100000u) << i;
        for (const STxBwRegionHw &hardware : routes[i].bwRegion)
            EXPECT_EQ(hardware.feRouteNum, i < 63 ? 1001 + i : 0) << i;
    }
}

TEST_F(TxCommonPathTest, FailedRouteReadGivesFalseAndNoRoutes)
{
    Fault(kRouteConfig);
    for (const bool withHardware : {false, true}) {
        std::vector<STxRouteInfoV7> routes(2);
        EXPECT_FALSE(m_target.GetTxCommonPathV7(routes, withHardware));
        EXPECT_TRUE(routes.empty());
    }
    EXPECT_EQ(CountCalls(kRouteConfig), 1);
    EXPECT_EQ(CountCalls(kBandRxInfo), 0);
}

TEST_F(TxCommonPathTest, FailedDetailReadGivesFalseOnlyToThoseWhoAskForHardware)
{
    Fault(kRouteDetail);
    std::vector<STxRouteInfoV7> routes;
    EXPECT_FALSE(m_target.GetTxCommonPathV7(routes, true));
    EXPECT_FALSE(m_target.GetTxCommonPathV7(routes, true));
    EXPECT_EQ(CountCalls(kRouteDetail), 1);
    EXPECT_TRUE(m_target.GetTxCommonPathV7(routes, false));
    EXPECT_EQ(routes.size(), 19u);
}

}  // namespace
