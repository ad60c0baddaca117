// What the flash does to readings, as an engineer who calibrates the DUT sees it: an error in the
// losses is an error of the reading, in dB.

#include <type_traits>

#include "tests/simulator/flash/CalFixture.h"
#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

constexpr double kStep = 1.5 / 32;  // of the records, and of the reading

// The records of the flash, read through the DUT's door.
struct SRecords : CCalTest
{
    using CCalTest::Tx;
    using CCalTest::Type1;
    using CCalTest::Type2;
};

class CalibratedReadingTest : public CMeasuringTest
{
protected:
    void SetUp() override
    {
        CMeasuringTest::SetUp();
        Plug(QuietRadio(-65));
    }

    static double Rssi0() { return Mean(&NRfTestResult_GetMixRxReportV7::RSSI0); }
    static double Rsrp0() { return Mean(&NRfTestResult_GetMixRxReportV7::RSRP0); }
    static double Rssi1() { return Mean(&NRfTestResult_GetMixRxReportV7::RSSI1); }

    // Type 1 route 1 on main: every loss is so much more than what stands in the flash.
    static void AddMainLoss(double db)
    {
        std::vector<SType1Block> blocks = SRecords::Type1(1);
        for (SType1Block &block : blocks) {
            for (auto &subband : block.loss) {
                for (int slot = 0; slot < kVondLossGainSlots; ++slot)
                    subband[VondType1LossPair(EVondRxPath::Main, slot)].hpm +=
                        static_cast<int16_t>(db * 32);
            }
        }
        EXPECT_EQ(CCalDownload().Type1(1, blocks).Send().status, kVondCalSuccess);
    }

    double PathOneRssi(double rfGain)
    {
        SMMRssiCmdV7 command = RssiCommand();
        command.gain.single.mainRfGain = static_cast<int16_t>(rfGain * 32);
        return Rssi(command).rows.single.row[0].rssiMain * kPer32;
    }

private:
    using Column = int16_t (NRfTestResult_GetMixRxReportV7::*)[kVondMaxReports];

    static double Mean(Column column)
    {
        NRfTestResult_GetMixRxReportV7 report = {};
        EXPECT_EQ(VOND_NRf_GetMixRxReportV7_r(kHandle, kTimeoutMs, &report), VOND_SUCCESS);
        return (report.*column)[0] * kPer128;
    }
};

TEST_F(CalibratedReadingTest, WrongLossShowsInDecibelsAndTheRightOneMendsIt)
{
    StartRsrp(RsrpForcedCommand());
    const double rssi = Rssi0();
    const double rsrp = Rsrp0();
    const double other = Rssi1();
    AddMainLoss(3.0);
    EXPECT_NEAR(Rssi0() - rssi, 3.0, kStep);
    EXPECT_NEAR(Rsrp0() - rsrp, 3.0, kStep);
    EXPECT_EQ(Rssi1(), other);
    AddMainLoss(-3.0);
    EXPECT_EQ(Rssi0(), rssi);
    EXPECT_EQ(Rsrp0(), rsrp);
}

// In the middle of its band, where the filter loses nothing, a factory DUT reads the test set's level.
TEST_F(CalibratedReadingTest, FactoryDataReadsTheLevelOfTheTestSet)
{
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    command.forcedMode.carrier.common.dlFrequency = 2140000;
    StartRsrp(command);
    EXPECT_NEAR(Rssi0(), -65.0, 0.05);
}

TEST_F(CalibratedReadingTest, OnlyTheGainInForceCounts)
{
    const double low = PathOneRssi(41.5);
    const double high = PathOneRssi(57.5);
    std::vector<SType2Block> blocks = SRecords::Type2(105);
    // G2 with g1 is the fourth slot of the handset's high power mode.
    for (SType2Block &block : blocks) {
        for (auto &subband : block.loss)
            subband[VondPartialOnPair(EVondRxPath::Main, 1, 3)].hpm += 80;
    }
    ASSERT_EQ(CCalDownload().Type2(105, blocks).Send().status, kVondCalSuccess);
    EXPECT_NEAR(PathOneRssi(41.5) - low, 2.5, kStep);
    EXPECT_EQ(PathOneRssi(57.5), high);
}

TEST_F(CalibratedReadingTest, BothPathsTakeTheLossOfTheirGainsTogether)
{
    SMMRssiCmdV7 command = RssiBothPathsCommand();
    const auto read = [&](const auto &field) {
        return Rssi(command).rows.simultaneous.row[0].*field * kPer32;
    };
    using Row = std::remove_reference_t<decltype(SMMRssiCnfV7().rows.simultaneous.row[0])>;
    const double first = read(&Row::path0Main);
    const double second = read(&Row::path1Main);
    std::vector<SType2Block> blocks = SRecords::Type2(105);
    // Path 0 has 60 dB, G0 with g0; path 1 has 55 dB, g2.
    for (SType2Block &block : blocks) {
        for (auto &subband : block.loss)
            subband[VondGainByGainPair(EVondRxPath::Main, 0, 0, 0, 2)].hpm -= 64;
    }
    ASSERT_EQ(CCalDownload().Type2(105, blocks).Send().status, kVondCalSuccess);
    EXPECT_NEAR(read(&Row::path0Main) - first, -2.0, kStep);
    EXPECT_EQ(read(&Row::path1Main), second);
}

TEST_F(CalibratedReadingTest, LossesAreLinearBetweenSubbands)
{
    std::vector<SType2Block> blocks = SRecords::Type2(105);
    const uint32_t below = blocks[0].freq[3];
    const uint32_t above = blocks[0].freq[4];
    SMMRssiCmdV7 command = RssiCommand();
    command.numFreq = 3;
    command.dlFrequency[0] = below;
    command.dlFrequency[1] = (below + above) / 2;
    command.dlFrequency[2] = above;
    const SMMRssiCnfV7 before = Rssi(command);
    for (SMMLossPair &pair : blocks[0].loss[4])
        pair.hpm += 128;
    ASSERT_EQ(CCalDownload().Type2(105, blocks).Send().status, kVondCalSuccess);
    const SMMRssiCnfV7 after = Rssi(command);
    const auto moved = [&](int row) {
        return (after.rows.single.row[row].rssiMain - before.rows.single.row[row].rssiMain) *
               kPer32;
    };
    EXPECT_EQ(moved(0), 0.0);
    EXPECT_NEAR(moved(1), 2.0, kStep);
    EXPECT_NEAR(moved(2), 4.0, kStep);
}

TEST_F(CalibratedReadingTest, TenDecibelsStayTenWithAWrongLoss)
{
    AddMainLoss(-4.0);
    StartRsrp(RsrpForcedCommand());
    const double before = Rssi0();
    ASSERT_EQ(VondSim_SetRadio(R"({"levelDbm": {"default": -55}})"), 0);
    EXPECT_NEAR(Rssi0() - before, 10.0, kStep);
}

TEST_F(CalibratedReadingTest, DutThatWasNeverCalibratedReadsLowByItsTrueLoss)
{
    StartRsrp(RsrpForcedCommand());
    const double calibrated = Rssi0();
    const SType1Block truth = SRecords::Type1(1)[0];
    StopRsrp();
    ASSERT_EQ(CCalDownload().Type1(1, {}).Send().status, kVondCalSuccess);
    StartRsrp(RsrpForcedCommand());
    const double off = calibrated - Rssi0();
    EXPECT_GT(off, truth.loss[0][0].hpm * kPer32 - 0.5);
    EXPECT_LT(off, 5.0);
}

TEST_F(CalibratedReadingTest, TemperatureMovesReadingsByTheOffsetsOfTheFlash)
{
    StartRsrp(RsrpForcedCommand());
    const double normal = Rssi0();
    // 85 degrees is the last of the eight entries, 32.5 lies between two.
    std::vector<SType1Block> blocks = SRecords::Type1(1);
    blocks[0].plOffset[7] = 48;
    blocks[0].plOffset[4] = 32;
    ASSERT_EQ(CCalDownload().Type1(1, blocks).Send().status, kVondCalSuccess);
    EXPECT_EQ(Rssi0(), normal);
    ASSERT_EQ(VondSim_SetRadio(R"({"temperatureC": 85})"), 0);
    EXPECT_NEAR(Rssi0() - normal, 1.5, kStep);
    ASSERT_EQ(VondSim_SetRadio(R"({"temperatureC": 32.5})"), 0);
    EXPECT_NEAR(Rssi0() - normal, 0.5, kStep);
}

}  // namespace
