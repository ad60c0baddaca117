// The request of the hardware detail read.
#include "Operations/capability/CapabilityCache.h"
#include "tests/operations/TargetFixture.h"

namespace {

class DetailRequestTest : public CTargetTest
{
protected:
    SMMRfRouteDetailReqV7 Sent() const
    {
        std::vector<STxRouteInfoV7> routes;
        EXPECT_TRUE(m_target.GetTxCommonPathV7(routes, true));
        EXPECT_EQ(CountCalls(kRouteDetail), 1);
        return RecordOf<SMMRfRouteDetailReqV7>(JournalOf(kRouteDetail).value(0).request);
    }
};

TEST_F(DetailRequestTest, TransmitPairsStandRouteByRouteAndRegionByRegion)
{
    const SMMRfRouteDetailReqV7 request = Sent();
    const SMMRfRouteTableV7 &table = *m_target.GetRouteTableNr();
    int pair = 0;
    for (int i = 0; i < table.txRouteCount; ++i) {
        for (int region = 0; region < table.txRoute[i].bwRegionCount; ++region, ++pair) {
            EXPECT_EQ(request.txPair[pair].route, table.txRoute[i].route) << pair;
            EXPECT_EQ(request.txPair[pair].bwRegionKhz, table.txRoute[i].bwRegionKhz[region]);
        }
    }
    EXPECT_EQ(request.txPairCount, pair);
    EXPECT_EQ(request.txPair[0].route, 1);
    EXPECT_EQ(request.txPair[0].bwRegionKhz, 20000u);
    EXPECT_EQ(request.txPair[1].route, 1);
    EXPECT_EQ(request.txPair[1].bwRegionKhz, 50000u);
    EXPECT_EQ(request.txPair[2].route, 2);
}

TEST_F(DetailRequestTest, ReceiveRoutesStandInTableOrder)
{
    const SMMRfRouteDetailReqV7 request = Sent();
    EXPECT_EQ(request.radioKind, 1u);
    ASSERT_EQ(request.rxType1Count, 18);
    ASSERT_EQ(request.rxType2Count, 8);
    EXPECT_EQ(request.rxType1Route[0], 1);
    EXPECT_EQ(request.rxType1Route[11], 12);  // on n77
    EXPECT_EQ(request.rxType1Route[12], 12);  // on n78
    EXPECT_EQ(request.rxType1Route[17], 17);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(request.rxType2Route[i], 101 + i);
}

TEST_F(DetailRequestTest, RowsBeyondTheCountsAreZero)
{
    const SMMRfRouteDetailReqV7 request = Sent();
    EXPECT_EQ(request.rxType1Route[18], 0);
    EXPECT_EQ(request.rxType2Route[8], 0);
    EXPECT_EQ(request.txPair[request.txPairCount].route, 0);
    EXPECT_EQ(request.txPair[request.txPairCount].bwRegionKhz, 0u);
}

TEST_F(DetailRequestTest, PairsBeyondTheByteCounterAreLeftOut)
{
    Plug("largest");
    const SMMRfRouteDetailReqV7 request = Sent();
    EXPECT_EQ(request.txPairCount, 255);
    EXPECT_EQ(request.rxType1Count, 100);
    EXPECT_EQ(request.rxType2Count, 100);
    EXPECT_EQ(request.txPair[254].route, 64);
    EXPECT_EQ(request.txPair[254].bwRegionKhz, 60000u);
    EXPECT_EQ(request.txPair[255].route, 0);
}

TEST(DetailRequest, EmptyTableAsksForNothing)
{
    const SMMRfRouteDetailReqV7 request = BuildRouteDetailRequest({});
    EXPECT_EQ(request.radioKind, 1u);
    EXPECT_EQ(request.txPairCount, 0);
    EXPECT_EQ(request.rxType1Count, 0);
    EXPECT_EQ(request.rxType2Count, 0);
}

TEST(DetailRequest, RouteWithoutRegionsHasNoPair)
{
    SMMRfRouteTableV7 table = {};
    table.txRouteCount = 2;
    table.txRoute[0].route = 7;
    table.txRoute[1].route = 8;
    table.txRoute[1].bwRegionCount = 1;
    table.txRoute[1].bwRegionKhz[0] = 20000;
    const SMMRfRouteDetailReqV7 request = BuildRouteDetailRequest(table);
    EXPECT_EQ(request.txPairCount, 1);
    EXPECT_EQ(request.txPair[0].route, 8);
}

}  // namespace
