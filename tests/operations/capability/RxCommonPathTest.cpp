// RX routes with and without their hardware, and the TX routes that pair with them.
#include "Operations/capability/CapabilityCache.h"
#include "tests/operations/TargetFixture.h"

namespace {

class RxCommonPathTest : public CTargetTest
{
protected:
    std::vector<SRxRouteInfoV7> Routes(bool withHardware) const
    {
        std::vector<SRxRouteInfoV7> routes(1);
        EXPECT_TRUE(m_target.GetRxCommonPathV7(routes, withHardware));
        return routes;
    }
};

TEST_F(RxCommonPathTest, Type1RoutesStandBeforeType2Routes)
{
    const auto routes = Routes(false);
    ASSERT_EQ(routes.size(), 26u);
    for (std::size_t i = 0; i < routes.size(); ++i)
        EXPECT_EQ(routes[i].routeType, i < 18 ? 1u : 2u) << i;
    EXPECT_EQ(routes[0].band, 1);
    EXPECT_EQ(routes[0].route, 1);
    EXPECT_EQ(routes[17].band, 75);
    EXPECT_EQ(routes[18].band, 1);
    EXPECT_EQ(routes[18].route, 101);
    EXPECT_EQ(routes[25].route, 108);
}

TEST_F(RxCommonPathTest, WithoutHardwareNoDetailIsRead)
{
    for (const SRxRouteInfoV7 &route : Routes(false)) {
        EXPECT_EQ(route.hwValid, 0);
        EXPECT_EQ(route.hw.feRouteNum, 0);
        EXPECT_TRUE(route.txRoutes.isEmpty());
    }
    EXPECT_EQ(CalledFunctions(), std::vector<std::string>{kRouteConfig});
}

TEST_F(RxCommonPathTest, EveryRouteGetsTheHardwareOfItsType)
{
    const auto routes = Routes(true);
    ASSERT_EQ(routes.size(), 26u);
    for (const SRxRouteInfoV7 &route : routes)
        EXPECT_EQ(route.hwValid, 1) << route.route;
    EXPECT_EQ(routes[0].hw.feRouteNum, 301);
    EXPECT_EQ(routes[0].hw.antMask, 6u);
    EXPECT_STREQ(routes[0].hw.port[1], "RX_MB_1D");
    EXPECT_EQ(routes[0].hw.type1.srx, 1);
    EXPECT_EQ(routes[0].hw.type1.mimoPair[0], 2);
    EXPECT_EQ(routes[18].hw.feRouteNum, 601);
    EXPECT_EQ(routes[18].hw.type2.srx[0], 5);
    EXPECT_EQ(routes[18].hw.type2.srx[1], 6);
    EXPECT_EQ(routes[22].hw.type2.mimoPair[1], 107);
}

TEST_F(RxCommonPathTest, PairedTransmitRoutesAreDecimalTexts)
{
    const auto routes = Routes(true);
    EXPECT_EQ(routes[0].txRoutes, QStringList({"1", "2"}));
    EXPECT_EQ(routes[8].txRoutes, QStringList({"9", "10", "11"}));
    EXPECT_EQ(routes[17].txRoutes, QStringList());
}

TEST_F(RxCommonPathTest, TwoPairingRowsOfOneRouteBothAddTheirTransmitRoutes)
{
    const auto routes = Routes(true);
    ASSERT_EQ(routes[11].route, 12);
    ASSERT_EQ(routes[12].route, 12);
    const QStringList both{"12", "13", "12", "14", "15"};
    EXPECT_EQ(routes[11].txRoutes, both);
    EXPECT_EQ(routes[12].txRoutes, both);
}

TEST_F(RxCommonPathTest, Type2RoutesNeverGetTransmitRoutes)
{
    PlugHandsetWith(R"("rxType2Routes": [{"band": 1, "route": 101, "antMask": 6, "feRoute": 601,
        "ports": ["A", "B"], "srx": [5, 6], "mimoPairs": [], "txRoutes": [1, 2]}],
        "rxLimits": [])");
    const auto routes = Routes(true);
    ASSERT_EQ(routes.size(), 19u);
    EXPECT_EQ(routes[18].routeType, 2u);
    EXPECT_TRUE(routes[18].txRoutes.isEmpty());
}

TEST_F(RxCommonPathTest, PairingRowWithoutValuesAddsNothing)
{
    Routes(true);
    SNRfRxRouteValues &values = CapabilityCache::Get().nrDetail.record.rxRouteValues;
    ASSERT_EQ(values.entry[0].route, 1);
    values.entry[0].valueCount = 0;
    EXPECT_TRUE(Routes(true)[0].txRoutes.isEmpty());
}

TEST_F(RxCommonPathTest, LargestTargetKeepsTheHardwareOfAllItsRoutes)
{
    Plug("largest");
    const auto routes = Routes(true);
    ASSERT_EQ(routes.size(), 200u);
    for (int i = 0; i < 200; ++i) {
        EXPECT_EQ(routes[i].hwValid, 1) << i;
        EXPECT_EQ(routes[i].hw.feRouteNum, 1001 + i) << i;
        EXPECT_EQ(routes[i].txRoutes.size(), i < 100 ? 100 : 0) << i;
    }
    EXPECT_EQ(routes[99].txRoutes.last(), QString("100"));
}

TEST_F(RxCommonPathTest, FailedRouteReadGivesFalseAndNoRoutes)
{
    Fault(kRouteConfig);
    std::vector<SRxRouteInfoV7> routes(2);
    EXPECT_FALSE(m_target.GetRxCommonPathV7(routes, true));
    EXPECT_TRUE(routes.empty());
    EXPECT_EQ(CountCalls(kBandRxInfo), 0);
}

TEST_F(RxCommonPathTest, FailedDetailReadGivesFalseOnlyToThoseWhoAskForHardware)
{
    Fault(kRxRouteValues);
    std::vector<SRxRouteInfoV7> routes;
    EXPECT_FALSE(m_target.GetRxCommonPathV7(routes, true));
    EXPECT_TRUE(m_target.GetRxCommonPathV7(routes, false));
    EXPECT_EQ(routes.size(), 26u);
    EXPECT_EQ(CountCalls(kRxRouteValues), 1);
    EXPECT_EQ(CountCalls(kRouteDetail), 0);
}

}  // namespace
