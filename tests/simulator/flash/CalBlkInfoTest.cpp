// What the flash says that it holds.

#include <cstring>
#include <span>

#include "Trace/dictionary/CalRecordLayouts.h"
#include "Trace/dictionary/FieldPath.h"
#include "tests/simulator/flash/CalFixture.h"

namespace {

class CalBlkInfoTest : public CCalTest
{
protected:
    static std::unique_ptr<SMMRfRouteConfigV7> Config()
    {
        const uint32_t kind = 1;
        auto config = std::make_unique<SMMRfRouteConfigV7>();
        EXPECT_EQ(VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &kind, config.get()),
                  VOND_SUCCESS);
        return config;
    }
};

std::optional<int64_t> Told(const SMMCalBlkInfoCnfV7 &info, std::string_view name)
{
    const std::span bytes(reinterpret_cast<const uint8_t *>(&info), sizeof(info));
    return NumberAt(kLayoutOf<SMMCalBlkInfoCnfV7>, bytes, name);
}

TEST_F(CalBlkInfoTest, FunctionsAreOffered)
{
    for (const char *name :
         {"VOND_MMRf_GetCalBlkInfoV7_r", "VOND_MMRf_GetCalDataV7_r", "VOND_MMRf_SetCalDataV7_r"})
        EXPECT_EQ(VOND_QueryFunctionSupported_r(kHandle, kTimeoutMs, name), VOND_SUCCESS) << name;
}

TEST_F(CalBlkInfoTest, RowsAreThoseOfTheRouteTables)
{
    const auto info = Info();
    const auto config = Config();
    const SMMRfRouteTableV7 &routes = config->routes;
    ASSERT_EQ(info->type1Count, routes.rxType1RouteCount);
    ASSERT_EQ(info->type2Count, routes.rxType2RouteCount);
    ASSERT_EQ(info->txCount, routes.txRouteCount);
    for (int i = 0; i < info->type1Count; ++i)
        EXPECT_EQ(info->type1[i].route, routes.rxType1Route[i].route) << i;
    for (int i = 0; i < info->type2Count; ++i)
        EXPECT_EQ(info->type2[i].route, routes.rxType2Route[i].route) << i;
    for (int i = 0; i < info->txCount; ++i) {
        EXPECT_EQ(info->tx[i].route, routes.txRoute[i].route) << i;
        int total = 0;
        for (int region = 0; region < kVondMaxBwRegions; ++region) {
            EXPECT_EQ(info->tx[i].blockCount[region] > 0, region < routes.txRoute[i].bwRegionCount)
                << i << " region " << region;
            total += info->tx[i].blockCount[region];
        }
        EXPECT_EQ(info->tx[i].blockTotal, total) << i;
    }
}

TEST_F(CalBlkInfoTest, RowsLieWhereTheRecordPutsThem)
{
    const auto info = Info();
    EXPECT_EQ(Told(*info, "type1Count"), 18);  // of the handset
    EXPECT_EQ(Told(*info, "type2Count"), 8);
    EXPECT_EQ(Told(*info, "txCount"), 19);
    EXPECT_EQ(Told(*info, "type1[0].route"), 1);
    EXPECT_EQ(Told(*info, "type1[0].blockTotal"), 4);  // limits of 250 MHz: 50 subbands
    EXPECT_EQ(Told(*info, "type2[0].route"), 101);
    EXPECT_EQ(Told(*info, "type2[0].blockTotal"), 1);  // 60 MHz: 12 subbands
    EXPECT_EQ(Told(*info, "tx[0].route"), 1);          // two regions, 12 subbands each
    EXPECT_EQ(Told(*info, "tx[0].blockTotal"), 2);
    EXPECT_EQ(Told(*info, "tx[0].blockCount[0]"), 1);
    EXPECT_EQ(Told(*info, "tx[0].blockCount[1]"), 1);
    EXPECT_EQ(Told(*info, "tx[0].blockCount[2]"), 0);
    EXPECT_EQ(Told(*info, "tx[1].route"), 2);
}

TEST_F(CalBlkInfoTest, UnusedRowsAreZero)
{
    auto info = std::make_unique<SMMCalBlkInfoCnfV7>();
    std::memset(info.get(), 0xee, sizeof(*info));
    ASSERT_EQ(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 1, info.get()), VOND_SUCCESS);
    for (int i = info->type1Count; i < kVondMaxRxRoutes; ++i)
        EXPECT_EQ(info->type1[i].route + info->type1[i].blockTotal, 0);
    for (int i = info->txCount; i < kVondMaxTxRoutes; ++i)
        EXPECT_EQ(info->tx[i].route + info->tx[i].blockTotal + info->tx[i].blockCount[3], 0);
}

TEST_F(CalBlkInfoTest, LteSideHasNothing)
{
    auto info = std::make_unique<SMMCalBlkInfoCnfV7>();
    std::memset(info.get(), 0xee, sizeof(*info));
    ASSERT_EQ(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 0, info.get()), VOND_SUCCESS);
    const SMMCalBlkInfoCnfV7 nothing = {};
    EXPECT_EQ(std::memcmp(info.get(), &nothing, sizeof(nothing)), 0);
}

TEST_F(CalBlkInfoTest, UnknownRadioKindIsRefused)
{
    auto info = std::make_unique<SMMCalBlkInfoCnfV7>();
    EXPECT_EQ(ErrorText(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 2, info.get())),
              "Target: unknown radio kind");
}

TEST_F(CalBlkInfoTest, LargestIsFull)
{
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    const auto info = Info();
    EXPECT_EQ(info->type1Count, 100);
    EXPECT_EQ(info->type2Count, 100);
    EXPECT_EQ(info->txCount, 100);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(info->type1[i].blockTotal, 4);
        EXPECT_EQ(info->type2[i].blockTotal, 3);
        EXPECT_EQ(info->tx[i].blockTotal, 16);
    }
}

TEST_F(CalBlkInfoTest, CountsFollowADownload)
{
    const std::vector<SType1Block> blocks(3, Type1(5).front());
    ASSERT_EQ(Info()->type1[4].blockTotal, 1);
    ASSERT_EQ(CCalDownload().Type1(5, blocks).Send().status, 1);
    EXPECT_EQ(Info()->type1[4].blockTotal, 3);
    ASSERT_EQ(CCalDownload().Tx(9, 40000, {}).Send().status, 1);
    const auto info = Info();
    EXPECT_EQ(info->tx[8].route, 9);
    EXPECT_EQ(info->tx[8].blockCount[1], 0);
    EXPECT_EQ(info->tx[8].blockTotal,
              info->tx[8].blockCount[0] + info->tx[8].blockCount[2] + info->tx[8].blockCount[3]);
}

}  // namespace
