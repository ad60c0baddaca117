// What the APT profile in the flash does to the transmitted power and to the power detector.

#include <cmath>
#include <functional>

#include "tests/simulator/flash/CalFixture.h"
#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

constexpr double kStep = 0.01;  // dB, of the detector's reading
constexpr uint16_t kRoute = 9;
constexpr uint32_t kRegion = 40000;

struct SRecords : CCalTest
{
    using CCalTest::Tx;
};

class TransmittedPowerTest : public CMeasuringTest
{
protected:
    void SetUp() override
    {
        CMeasuringTest::SetUp();
        Plug(QuietRadio(-65, R"("powerDetector": {"slope": 1, "offsetDb": 0})"));
    }

    // Reading of the detector while a tone of that power is on.
    static double ReadingAt(double power)
    {
        SMMSingleToneCmdV7 command = SingleToneCommand();
        command.txPowerValue = static_cast<int16_t>(power * 256);
        EXPECT_EQ(VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
        int16_t value = 0;
        EXPECT_EQ(VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, 1, &value), VOND_SUCCESS);
        SVondSimRadioState state;
        VondSim_GetRadioState(&state);
        s_output = state.outputDbm;
        EXPECT_EQ(VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1), VOND_SUCCESS);
        return value * kPer256;
    }

    static void Change(const std::function<void(SAptBlock &)> &change)
    {
        std::vector<SAptBlock> blocks = SRecords::Tx(kRoute, kRegion);
        for (SAptBlock &block : blocks)
            change(block);
        ASSERT_EQ(CCalDownload().Tx(kRoute, kRegion, blocks).Send().status, kVondCalSuccess);
    }

    static inline double s_output = 0.0;  // at the connector, of the last reading
};

TEST_F(TransmittedPowerTest, TenDecibelsMoreAreTenMoreUntilThePaCompresses)
{
    for (const double power : {-40.0, -10.0, 3.0, 13.0})
        EXPECT_NEAR(ReadingAt(power + 10.0) - ReadingAt(power), 10.0, kStep) << power;
    // The PA has 28.5 dBm at its full supply.
    EXPECT_NEAR(ReadingAt(26.0), 26.0, 0.02);
    EXPECT_NEAR(ReadingAt(30.0), 28.4, 0.1);
}

TEST_F(TransmittedPowerTest, PaLevelOffItsCurveIsSeenAtItsPowersAlone)
{
    // Level 4 is for powers above 11 and up to 15 dBm.
    Change([](SAptBlock &block) { block.level[4].paGain += 48; });
    EXPECT_NEAR(ReadingAt(15.0), 13.5, kStep);
    EXPECT_NEAR(s_output, 13.5, kStep);
    EXPECT_NEAR(ReadingAt(11.5), 10.0, kStep);
    EXPECT_NEAR(ReadingAt(11.0), 11.0, kStep);
    EXPECT_NEAR(ReadingAt(15.5), 15.5, kStep);
    Change([](SAptBlock &block) { block.level[4].paGain -= 48; });
    EXPECT_NEAR(ReadingAt(15.0), 15.0, kStep);
}

TEST_F(TransmittedPowerTest, SupplyOffItsCurveTakesTheGainThatThePaHasThere)
{
    // From 3.4 to 3.0 V the PA loses half a decibel of gain.
    Change([](SAptBlock &block) { block.level[0].dc2dcLevel = 30; });
    EXPECT_NEAR(ReadingAt(25.0), 24.5, 0.02);
    // With 1.8 V it cannot give more than 23 dBm.
    Change([](SAptBlock &block) { block.level[0].dc2dcLevel = 18; });
    EXPECT_NEAR(s_output, 24.5, 0.02);
    EXPECT_NEAR(ReadingAt(26.0), 28.5 + 20 * std::log10(1.8 / 3.4), 0.2);
}

TEST_F(TransmittedPowerTest, GainOfASubbandIsTakenOffTheDrive)
{
    Change([](SAptBlock &block) {
        for (int16_t &gain : block.pa[1].paGain)
            gain = static_cast<int16_t>(gain - 32);
    });
    EXPECT_NEAR(ReadingAt(15.0), 16.0, kStep);  // level 4 is of the middle PA mode
    EXPECT_NEAR(ReadingAt(20.0), 20.0, kStep);
}

TEST_F(TransmittedPowerTest, DetectorAndCouplerMisleadTheReadingAlone)
{
    Change([](SAptBlock &block) {
        block.couplerLoss[1] = static_cast<int16_t>(block.couplerLoss[1] + 64);
        for (int16_t &value : block.pa[1].powerDetector)
            value = static_cast<int16_t>(value + 16);
    });
    EXPECT_NEAR(ReadingAt(15.0), 15.0 + 2.0 - 0.5, kStep);
    EXPECT_NEAR(s_output, 15.0, kStep);
}

TEST_F(TransmittedPowerTest, HeatTakesGainFromThePaAndMovesTheDetector)
{
    EXPECT_NEAR(ReadingAt(23.0), 23.0, kStep);
    ASSERT_EQ(VondSim_SetRadio(R"({"temperatureC": 85})"), 0);
    EXPECT_NEAR(ReadingAt(23.0), 23.0 - 1.4 + 0.5, 0.05);
    EXPECT_NEAR(s_output, 23.0 - 1.4, 0.05);
    ASSERT_EQ(VondSim_SetRadio(R"({"temperatureC": 25})"), 0);
    EXPECT_NEAR(ReadingAt(23.0), 23.0, kStep);
}

TEST_F(TransmittedPowerTest, RecordWithoutBlocksLeavesTheGainsOfNoDutInParticular)
{
    ASSERT_EQ(CCalDownload().Tx(kRoute, kRegion, {}).Send().status, kVondCalSuccess);
    EXPECT_NEAR(ReadingAt(20.0), 20.0, 6.0);
    EXPECT_GT(std::abs(ReadingAt(20.0) - 20.0), 0.1);
}

}  // namespace
