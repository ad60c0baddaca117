// The data that the profile puts into the flash: complete, plausible, and the same each time.

#include <algorithm>
#include <set>

#include "tests/simulator/flash/CalFixture.h"

namespace {

class CalFactoryTest : public CCalTest
{
};

constexpr double Db(int16_t steps)
{
    return steps / 32.0;
}

TEST_F(CalFactoryTest, FrequenciesRiseAcrossTheLimitsOnTheRaster)
{
    const struct
    {
        std::vector<uint32_t> frequencies;
        uint32_t low;
        uint32_t high;
        std::size_t count;
    } rows[] = {
        {FrequenciesOf(Type1(5)), 869000, 894000, 5},
        {FrequenciesOf(Type1(8)), 758000, 788000, 6},       // limits of the route
        {FrequenciesOf(Type2(106)), 3400000, 3600000, 40},  // limits of the route
        {FrequenciesOf(Type2(105)), 3300000, 3800000, 48},
        {FrequenciesOf(Tx(3, 20000)), 1710000, 1785000, 15},
        {FrequenciesOf(Tx(16, 100000)), 4400000, 5000000, 64},
        {FrequenciesOf(Tx(15, 20000)), 3400000, 3600000, 40},  // limits of the route
    };
    for (const auto &row : rows) {
        const auto &kHz = row.frequencies;
        EXPECT_EQ(kHz.size(), row.count);
        EXPECT_TRUE(std::is_sorted(kHz.begin(), kHz.end()));
        EXPECT_EQ(std::set<uint32_t>(kHz.begin(), kHz.end()).size(), kHz.size());
        EXPECT_GE(kHz.front(), row.low);
        EXPECT_LE(kHz.back(), row.high);
        EXPECT_GT(kHz.back() - kHz.front(), (row.high - row.low) / 10 * 7);
        for (const uint32_t value : kHz)
            EXPECT_EQ(value < 3000000 ? value % 5 : (value - 3000000) % 15, 0u) << value;
    }
}

TEST_F(CalFactoryTest, AptLevelsAndGainsArePlausible)
{
    const std::vector<SAptBlock> blocks = Tx(14, 100000);
    ASSERT_EQ(blocks.size(), 4u);
    int16_t last[kVondAptPaModes] = {32767, 32767, 32767};
    for (const SAptBlock &block : blocks) {
        EXPECT_EQ(block.band, 78);
        EXPECT_EQ(block.paModeCount, 3);
        ASSERT_GE(block.paControlLevel, 1);
        ASSERT_LE(block.paControlLevel, kVondAptLevels);
        for (const SAptLevel &level : block.level) {
            EXPECT_LT(level.paMode, 3);
            EXPECT_GE(level.dc2dcLevel, 5);
            EXPECT_LE(level.dc2dcLevel, 34);
            EXPECT_EQ(level.prf % 32, 0);  // whole dB
        }
        for (int mode = 0; mode < kVondAptPaModes; ++mode) {
            for (const int16_t gain : block.pa[mode].paGain) {
                EXPECT_LE(gain, last[mode]);
                last[mode] = gain;
            }
            EXPECT_EQ(block.pa[mode].paGainTempOffset[block.normalTempIndex], 0);
        }
    }
    for (int mode = 0; mode < kVondAptPaModes; ++mode)
        EXPECT_NEAR(Db(blocks[0].pa[mode].paGain[0]) - Db(last[mode]), 2.5, 0.1);
    EXPECT_GT(blocks[0].pa[0].paGain[0], blocks[0].pa[2].paGain[0]);
}

TEST_F(CalFactoryTest, LossesAreThoseOfTheGainModesThatTheRouteHas)
{
    const SType1Block block = Type1(13).front();
    for (const EVondRxPath path : {EVondRxPath::Main, EVondRxPath::Div}) {
        for (int slot = 0; slot < kVondLossGainSlots; ++slot) {
            // The handset's tables allow eight gains in either power mode.
            const SMMLossPair &pair = block.loss[0][VondType1LossPair(path, slot)];
            for (const int16_t loss : {pair.lpm, pair.hpm}) {
                EXPECT_GT(Db(loss), 0.5);
                EXPECT_LT(Db(loss), 6.0);
            }
        }
    }
    const SType2Block type2 = Type2(105).front();
    EXPECT_NE(type2.loss[0][VondPartialOnPair(EVondRxPath::Div, 1, 7)].lpm, 0);
    // G1 g1: in high power mode beside g0 to g2, in low power mode beside g0 and g1.
    const auto gainByGain = [&](int bigG, int smallG, int sub) {
        return type2.loss[0][VondGainByGainPair(EVondRxPath::Main, 0, bigG, smallG, sub)];
    };
    EXPECT_NE(gainByGain(1, 1, 2).hpm, 0);
    EXPECT_EQ(gainByGain(1, 1, 2).lpm, 0);
    EXPECT_NE(gainByGain(1, 1, 1).lpm, 0);
    EXPECT_NE(gainByGain(2, 1, 2).hpm, 0);
    EXPECT_EQ(gainByGain(3, 1, 2).hpm, 0);
    EXPECT_EQ(gainByGain(5, 0, 0).hpm, 0);
}

TEST_F(CalFactoryTest, NoMoreThanEightGainsHaveASlot)
{
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    const SType1Block block = Type1(1).front();
    for (const SMMLossPair &pair : block.loss[0])
        EXPECT_NE(pair.hpm, 0);
}

TEST_F(CalFactoryTest, UnusedTailIsZero)
{
    const SAptBlock apt = Tx(5, 20000).front();  // five subbands
    EXPECT_NE(apt.pa[1].paGain[4], 0);
    EXPECT_EQ(apt.freq[5], 0u);
    EXPECT_EQ(apt.pa[1].paGain[5], 0);
    EXPECT_EQ(apt.pa[1].powerDetector[15], 0);
    const SType1Block rx = Type1(5).front();
    EXPECT_NE(rx.loss[4][0].hpm, 0);
    EXPECT_EQ(rx.freq[5], 0u);
    EXPECT_EQ(rx.loss[5][0].hpm, 0);
}

TEST_F(CalFactoryTest, RoutesAndRegionsDifferAndRepeat)
{
    const auto first = BytesOf(Tx(14, 20000));
    EXPECT_NE(first, BytesOf(Tx(14, 100000)));
    EXPECT_NE(BytesOf(Type1(13)), BytesOf(Type1(14)));
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(BytesOf(Tx(14, 20000)), first);
}

TEST_F(CalFactoryTest, SeedChangesTheValuesButNotTheFrequencies)
{
    const std::vector<SAptBlock> before = Tx(14, 20000);
    ASSERT_EQ(VondSim_SetProfileText(HandsetWith(R"("calibration": {"seed": 7})").c_str()), 0);
    const std::vector<SAptBlock> after = Tx(14, 20000);
    EXPECT_EQ(FrequenciesOf(after), FrequenciesOf(before));
    EXPECT_NE(BytesOf(after), BytesOf(before));
}

TEST_F(CalFactoryTest, ProfileSaysHowManySubbands)
{
    const std::string rules = HandsetWith(R"("calibration": {
        "txSubbands": {"default": 17, "n78": 64, "n5": 0},
        "rxType1Subbands": {"n1": 16},
        "rxType2Subbands": {"default": 33}})");
    ASSERT_EQ(VondSim_SetProfileText(rules.c_str()), 0);
    EXPECT_EQ(FrequenciesOf(Tx(1, 20000)).size(), 17u);
    EXPECT_EQ(Tx(1, 20000).size(), 2u);
    EXPECT_EQ(FrequenciesOf(Tx(14, 20000)).size(), 64u);
    EXPECT_TRUE(Tx(5, 20000).empty());
    EXPECT_EQ(FrequenciesOf(Type1(1)).size(), 16u);
    EXPECT_EQ(Type1(1).size(), 1u);
    EXPECT_EQ(FrequenciesOf(Type1(5)).size(), 5u);
    EXPECT_EQ(Type2(101).size(), 3u);
}

TEST_F(CalFactoryTest, DutThatWasNeverCalibratedHasEmptyRecords)
{
    const std::string none = HandsetWith(R"("calibration": {"txSubbands": {"default": 0},
        "rxType1Subbands": {"default": 0}, "rxType2Subbands": {"default": 0}})");
    ASSERT_EQ(VondSim_SetProfileText(none.c_str()), 0);
    const auto info = Info();
    EXPECT_EQ(info->txCount, 19);
    for (int i = 0; i < info->txCount; ++i)
        EXPECT_EQ(info->tx[i].blockTotal, 0);
    CCalUpload upload;
    EXPECT_EQ(upload.Tx(1, 20000, 0).Type1(1, 0).Type2(101, 0).Send().verdict.status, 1);
}

// Every record of every built-in profile is one that the DUT itself takes.
TEST_F(CalFactoryTest, EveryProfileTakesItsOwnData)
{
    for (uint32_t i = 0; const char *name = VondSim_ProfileName(i); ++i) {
        if (std::string(name) == "unplugged")
            continue;
        SCOPED_TRACE(name);
        ASSERT_EQ(VondSim_SetProfile(name), 0);
        const auto info = Info();
        for (int row = 0; row < info->type1Count; ++row) {
            const uint16_t route = info->type1[row].route;
            EXPECT_EQ(CCalDownload().Type1(route, Type1(route)).Send().status, 1) << route;
        }
        for (int row = 0; row < info->type2Count; row += 7) {
            const uint16_t route = info->type2[row].route;
            EXPECT_EQ(CCalDownload().Type2(route, Type2(route)).Send().status, 1) << route;
        }
        for (int row = 0; row < info->txCount; ++row) {
            const uint16_t route = info->tx[row].route;
            const uint32_t kHz = route == 16 || route == 17 ? 40000 : 20000;
            EXPECT_EQ(CCalDownload().Tx(route, kHz, Tx(route, kHz)).Send().status, 1) << route;
        }
    }
}

}  // namespace
