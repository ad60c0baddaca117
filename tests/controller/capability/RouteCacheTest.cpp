// Which routes a band has, and where a route stands in its table.
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

class RouteCacheTest : public CUpdaterTest
{
protected:
    QStringList Tx(int band)
    {
        QStringList routes{"old"};
        EXPECT_TRUE(m_updater.GetTxRoutesByBand(routes, band));
        return routes;
    }
    QStringList Rx(int routeType, int band)
    {
        QStringList routes{"old"};
        EXPECT_TRUE(m_updater.GetRxRoutesByBand(routes, routeType, band));
        return routes;
    }
};

TEST_F(RouteCacheTest, RoutesOfABandStandInTableOrderAsTexts)
{
    EXPECT_EQ(Tx(41), QStringList({"9", "10", "11"}));
    EXPECT_EQ(Tx(78), QStringList({"12", "14", "15"}));
    EXPECT_EQ(Rx(1, 78), QStringList({"12", "13", "14"}));
    EXPECT_EQ(Rx(2, 78), QStringList({"105", "106", "107"}));
}

TEST_F(RouteCacheTest, UnknownBandHasNoRoutes)
{
    EXPECT_EQ(Tx(2), QStringList());
    EXPECT_EQ(Rx(1, 2), QStringList());
    EXPECT_EQ(Rx(2, 3), QStringList());
}

TEST_F(RouteCacheTest, RouteTypeOtherThanOneAndTwoHasNoRoutes)
{
    for (const int routeType : {0, 3, -1})
        EXPECT_EQ(Rx(routeType, 78), QStringList()) << routeType;
}

TEST_F(RouteCacheTest, RouteOnTwoBandsIsTheRowOfItsFirstBand)
{
    EXPECT_EQ(m_updater.GetTxRouteIndex(1), 0);
    EXPECT_EQ(m_updater.GetTxRouteIndex(12), 11);  // n77; n78's row is the 14th
    EXPECT_EQ(m_updater.GetTxRouteIndex(14), 14);
    EXPECT_EQ(m_updater.GetRxRouteIndex(12), 11);
    EXPECT_EQ(m_updater.GetRxRouteIndex(13), 13);
}

TEST_F(RouteCacheTest, Type2RowsCountOnBehindType1Rows)
{
    EXPECT_EQ(m_updater.GetRxRouteIndex(17), 17);
    EXPECT_EQ(m_updater.GetRxRouteIndex(101), 18);
    EXPECT_EQ(m_updater.GetRxRouteIndex(108), 25);
}

TEST_F(RouteCacheTest, UnknownRouteHasNoRow)
{
    EXPECT_EQ(m_updater.GetTxRouteIndex(99), -1);
    EXPECT_EQ(m_updater.GetRxRouteIndex(99), -1);
    EXPECT_EQ(m_updater.GetTxRouteIndex(-1), -1);
}

TEST_F(RouteCacheTest, TableThatCannotBeReadGivesFalseAndNoRows)
{
    Fault(kRouteConfig);
    QStringList routes;
    EXPECT_FALSE(m_updater.GetTxRoutesByBand(routes, 78));
    EXPECT_FALSE(m_updater.GetRxRoutesByBand(routes, 1, 78));
    EXPECT_FALSE(m_updater.GetRxRoutesByBand(routes, 2, 78));
    EXPECT_EQ(m_updater.GetTxRouteIndex(1), -1);
    EXPECT_EQ(m_updater.GetRxRouteIndex(1), -1);
    EXPECT_EQ(CountCalls(kRouteConfig), 1);
}

TEST_F(RouteCacheTest, RoutesNeedNoHardware)
{
    Tx(78);
    Rx(1, 78);
    m_updater.GetTxRouteIndex(1);
    m_updater.GetRxRouteIndex(1);
    EXPECT_EQ(CalledFunctions(), std::vector<std::string>{kRouteConfig});
}

TEST_F(RouteCacheTest, CachesStayUntilTheResetOfTheUpdater)
{
    EXPECT_EQ(Tx(1), QStringList({"1", "2"}));
    EXPECT_EQ(Rx(1, 5), QStringList("5"));
    EXPECT_EQ(m_updater.GetTxRouteIndex(5), 4);
    EXPECT_EQ(m_updater.GetRxRouteIndex(101), 18);
    PlugHandsetWith(R"("txRoutes": [{"band": 1, "route": 5, "regions": []}], "txLimits": [],
        "rxType1Routes": [], "rxType2Routes": [], "rxLimits": [])");
    EXPECT_EQ(Tx(1), QStringList({"1", "2"}));
    EXPECT_EQ(Rx(1, 5), QStringList("5"));
    EXPECT_EQ(m_updater.GetTxRouteIndex(5), 4);
    EXPECT_EQ(m_updater.GetRxRouteIndex(101), 18);
    EXPECT_EQ(VondSim_CallCount(), 0u);
    m_updater.ResetCapabilityCache();
    EXPECT_EQ(Tx(1), QStringList("5"));
    EXPECT_EQ(Rx(1, 5), QStringList());
    EXPECT_EQ(m_updater.GetTxRouteIndex(5), 0);
    EXPECT_EQ(m_updater.GetRxRouteIndex(101), -1);
}

}  // namespace
