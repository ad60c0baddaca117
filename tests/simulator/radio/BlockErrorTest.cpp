// Block errors: none at a good level, some near sensitivity, all below it, and no cell further
// down.
//
// The yardstick is the reference sensitivity of TS 38.101-1: thermal noise in the channel, plus the
// noise figure, plus 1.5 dB that a reference channel (-1 dB, 2.5 dB margin) needs of all antennas
// together. On two antennas 0.8 dB apart the second adds 2.6 dB.

#include <cmath>

#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

constexpr double kNoiseFigure = 6.0;
constexpr double kTwoAntennas = 2.63;   // dB, 1 + 10^-0.08
constexpr double kFourAntennas = 4.90;  // dB, 1 + 10^-0.08 + 10^-0.16 + 10^-0.24

double NoiseOf(double blocks, double spacingHz)
{
    return -174.0 + 10.0 * std::log10(blocks * 12.0 * spacingHz) + kNoiseFigure;
}

// Level of 5 % lost blocks for the forced command's 10 MHz at 15 kHz.
double Sensitivity()
{
    return NoiseOf(52, 15e3) + 1.5 - kTwoAntennas;
}

class BlockErrorTest : public CMeasuringTest
{
protected:
    double RateAt(double level, const SNrRsrpCmdV7 &command = RsrpForcedCommand())
    {
        Plug(QuietRadio(level));
        return ErrorRate(command);
    }
};

TEST_F(BlockErrorTest, HandsetAsItComesLosesNoBlock)
{
    EXPECT_EQ(ErrorRate(RsrpForcedCommand()), 0.0);
    EXPECT_EQ(ErrorRate(RsrpNormalCommand()), 0.0);
}

TEST_F(BlockErrorTest, SensitivityIsBetterThanTheStandardAsksButNotByMuch)
{
    EXPECT_LT(Sensitivity(), -96.8);  // REFSENS of n1 at 10 MHz, with a noise figure of 9 dB
    EXPECT_GT(Sensitivity(), -101.0);
}

TEST_F(BlockErrorTest, AtSensitivityAboutFivePercentAreLost)
{
    EXPECT_NEAR(RateAt(Sensitivity()), 0.05, 0.025);
}

TEST_F(BlockErrorTest, OneDecibelBelowSensitivityAboutHalfAreLost)
{
    EXPECT_NEAR(RateAt(Sensitivity() - 1.0), 0.5, 0.06);
}

TEST_F(BlockErrorTest, AFewDecibelsBelowSensitivityAllAreLostAndAFewAboveNone)
{
    EXPECT_GT(RateAt(Sensitivity() - 4.0), 0.99);
    EXPECT_LT(RateAt(Sensitivity() + 3.0), 0.001);
}

TEST_F(BlockErrorTest, RateFallsWithEveryDecibelAroundSensitivity)
{
    double last = 1.01;
    for (double level = Sensitivity() - 3.0; level < Sensitivity() + 1.5; level += 1.0) {
        const double rate = RateAt(level);
        EXPECT_LT(rate, last) << level;
        last = rate;
    }
}

// Twice the resource blocks let twice the noise in.
TEST_F(BlockErrorTest, WiderChannelNeedsAsMuchMoreLevelAsItHasMoreNoise)
{
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    command.forcedMode.carrier.common.dlBandwidth = 20000;
    const double level = NoiseOf(106, 15e3) + 1.5 - kTwoAntennas;
    EXPECT_NEAR(level - Sensitivity(), 3.1, 0.05);
    EXPECT_NEAR(RateAt(level, command), 0.05, 0.025);
    EXPECT_GT(RateAt(Sensitivity(), command), 0.95);
}

TEST_F(BlockErrorTest, WiderSpacingIsAsNoisyAsTheChannelThatItFills)
{
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    command.forcedMode.carrier.common.dlBandwidth = 20000;
    command.forcedMode.carrier.common.rxScs = 1;
    EXPECT_NEAR(RateAt(NoiseOf(51, 30e3) + 1.5 - kTwoAntennas, command), 0.05, 0.025);
}

TEST_F(BlockErrorTest, FourAntennasHearWhatTwoDoNot)
{
    const double level = NoiseOf(52, 15e3) + 1.5 - kFourAntennas;
    SNrRsrpCmdV7 command = RsrpNormalCommand();
    command.normalMode.carrier[0].common.dlFrequency = 3550005;  // the middle of n78
    EXPECT_NEAR(RateAt(level, command), 0.05, 0.025);
    command.normalMode.carrier[0].mimo4x4 = 0;
    EXPECT_GT(RateAt(level, command), 0.9);
}

// Low power mode adds 1.5 dB to the noise figure; AUTO takes what hears best.
TEST_F(BlockErrorTest, LowPowerModeCostsSensitivity)
{
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    double rate[4] = {};
    for (const uint8_t mode : {uint8_t{1}, uint8_t{2}, uint8_t{3}}) {
        command.forcedMode.carrier.lpmHpmConf = mode;
        rate[mode] = RateAt(Sensitivity() + 0.5, command);
    }
    EXPECT_GT(rate[1], 0.3);
    EXPECT_LT(rate[2], 0.05);
    EXPECT_LT(rate[3], 0.05);
}

// What the ADC clips is distortion.
TEST_F(BlockErrorTest, OverloadedReceiverLosesBlocksToo)
{
    EXPECT_EQ(RateAt(-30.0), 0.0);
    EXPECT_GT(RateAt(-9.0), 0.9);
}

TEST_F(BlockErrorTest, CellTooWeakToBeReadOrFoundIsAStatus)
{
    // Ratio of both antennas together at a level: -8 dB to read the PBCH, -10 dB to find the SSB.
    const double zero = NoiseOf(52, 15e3) - kTwoAntennas;
    const struct
    {
        double ratio;
        uint32_t status;
    } rows[] = {{-7.8, 0}, {-8.2, 3}, {-9.8, 3}, {-10.2, 2}, {-60.0, 2}};
    for (const auto &row : rows) {
        Plug(QuietRadio(zero + row.ratio));
        EXPECT_EQ(TryRsrp(RsrpForcedCommand()), row.status) << row.ratio;
        EXPECT_STREQ(VondSim_RunningTest(), row.status == 0 ? "Rsrp" : "") << row.ratio;
    }
}

}  // namespace
