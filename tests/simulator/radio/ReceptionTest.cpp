// RSSI and RSRP as an RF engineer would check them: level, losses, noise and saturation.

#include <algorithm>
#include <cmath>
#include <iterator>

#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

// One step of the record's unit, and what noise far below the signal adds.
constexpr double kRssiStep = 0.04;     // dB, of 1/32
constexpr double kReportStep = 0.012;  // dB, of 1/128

class ReceptionTest : public CMeasuringTest
{
protected:
    // Main RSSI of n78 in the middle of the band, with these gains in dB.
    double MainRssi(double rfGain, double digitalGain = 0.0, bool lowPower = false)
    {
        SMMRssiCmdV7 command = RssiCommand();
        command.path = 0;
        command.lowPower = lowPower ? 1 : 0;
        command.dlFrequency[0] = kMiddleN78;
        command.gain.single.mainRfGain = static_cast<int16_t>(rfGain * 32);
        command.gain.single.mainDigitalGain = static_cast<int16_t>(digitalGain * 32);
        return Rssi(command).rows.single.row[0].rssiMain * kPer32;
    }

    static constexpr uint32_t kMiddleN78 = 3550000;
    static constexpr double kGoodGain = 45.0;  // dB; no residual error there
};

TEST_F(ReceptionTest, TenDecibelsMoreLevelAreTenMoreOfRssiAndRsrp)
{
    Plug(QuietRadio(-70));
    const NRfTestResult_GetMixRxReportV7 before = ReportOf(RsrpForcedCommand());
    Plug(QuietRadio(-60));
    const NRfTestResult_GetMixRxReportV7 after = ReportOf(RsrpForcedCommand());
    for (int i = 0; i < 5; ++i) {
        EXPECT_NEAR((after.RSRP0[i] - before.RSRP0[i]) * kPer128, 10.0, kReportStep);
        EXPECT_NEAR((after.RSRP1[i] - before.RSRP1[i]) * kPer128, 10.0, kReportStep);
        EXPECT_NEAR((after.RSSI0[i] - before.RSSI0[i]) * kPer128, 10.0, kReportStep);
        EXPECT_NEAR((after.RSSI1[i] - before.RSSI1[i]) * kPer128, 10.0, kReportStep);
    }
}

TEST_F(ReceptionTest, TenDecibelsMoreLevelAreTenMoreOnTheRssiPage)
{
    double reading[3] = {};
    for (int i = 0; i < 3; ++i) {
        Plug(QuietRadio(-90 + 10 * i));
        reading[i] = MainRssi(kGoodGain);
        EXPECT_NEAR(reading[i], -90 + 10 * i, 0.4) << i;
    }
    // The thermal noise of 5 MHz, -101 dBm, adds 0.3 dB at -90 dBm, and nothing to speak of above.
    EXPECT_NEAR(reading[1] - reading[0], 9.7, 0.1);
    EXPECT_NEAR(reading[2] - reading[1], 10.0, kRssiStep);
}

// The cell's power is shared by twelve elements a resource block.
TEST_F(ReceptionTest, RsrpIsTheShareOfOneResourceElement)
{
    Plug(QuietRadio(-60));
    const struct
    {
        uint32_t scs;
        uint32_t bandwidth;
        double blocks;
    } rows[] = {{0, 5000, 25}, {0, 10000, 52}, {0, 50000, 270}, {1, 100000, 273}, {2, 20000, 24}};
    for (const auto &row : rows) {
        SNrRsrpCmdV7 command = RsrpNormalCommand();
        command.normalMode.carrier[0].common.rxScs = row.scs;
        command.normalMode.carrier[0].common.dlBandwidth = row.bandwidth;
        const NRfTestResult_GetMixRxReportV7 report = ReportOf(command);
        EXPECT_NEAR(report.RSSI0[0] * kPer128, -60.0, kReportStep) << row.bandwidth;
        EXPECT_NEAR((report.RSSI0[0] - report.RSRP0[0]) * kPer128,
                    10.0 * std::log10(12.0 * row.blocks), kReportStep)
            << row.bandwidth;
    }
}

TEST_F(ReceptionTest, EveryBandHasTheLevelThatTheTestSetGivesIt)
{
    Plug(QuietRadio(-60, R"("levelDbm": {"default": -60, "n1": -72.5})"));
    EXPECT_NEAR(MainRssi(kGoodGain), -60.0, kRssiStep);
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    EXPECT_NEAR(ReportOf(command).RSSI0[0] * kPer128, -72.5, 0.1);
}

TEST_F(ReceptionTest, PathLossOfARouteIsItsAlone)
{
    Plug(QuietRadio(-60, R"("pathLossDb": {"default": 1, "2": 7.5})"));
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    const double first = ReportOf(command).RSRP0[0] * kPer128;
    command.forcedMode.carrier.rxRoute = 2;
    const double second = ReportOf(command).RSRP0[0] * kPer128;
    EXPECT_NEAR(first - second, 6.5, kReportStep);
}

TEST_F(ReceptionTest, NormalModeTakesTheFirstRouteOfTheBand)
{
    Plug(QuietRadio(-60, R"("pathLossDb": {"default": 0, "12": 4})"));
    EXPECT_NEAR(ReportOf(RsrpNormalCommand()).RSSI0[0] * kPer128, -64.0, kReportStep);
}

// A front end filter is flat in the middle and droops towards its corners.
TEST_F(ReceptionTest, BandEdgesLoseOneAndAHalfDecibelsInTheFilter)
{
    Plug(QuietRadio(-75));
    SMMRssiCmdV7 command = RssiCommand();
    command.numFreq = 5;
    const uint32_t frequencies[] = {3300000, 3425000, 3550000, 3675000, 3800000};
    const double losses[] = {1.5, 0.375, 0.0, 0.375, 1.5};
    std::copy(std::begin(frequencies), std::end(frequencies), command.dlFrequency);
    const SMMRssiCnfV7 answer = Rssi(command);
    for (int i = 0; i < 5; ++i) {
        const int16_t middle = answer.rows.single.row[2].rssiMain;
        EXPECT_NEAR((middle - answer.rows.single.row[i].rssiMain) * kPer32, losses[i], kRssiStep);
    }
}

TEST_F(ReceptionTest, FilterIsAsWideAsTheRouteTakes)
{
    const std::string wide = HandsetWith(
        R"("radio": {"fluctuationDb": 0, "pathLossDb": {"default": 0}}, "rxLimits":
           [{"band": 1, "route": 1, "kHz": [1920000, 2170000]}])");
    Plug(wide);
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    command.forcedMode.carrier.common.dlFrequency = 1920000;
    EXPECT_NEAR(ReportOf(command).RSSI0[0] * kPer128, -66.5, kReportStep);
    command.forcedMode.carrier.common.dlFrequency = 2045000;
    EXPECT_NEAR(ReportOf(command).RSSI0[0] * kPer128, -65.0, kReportStep);
}

TEST_F(ReceptionTest, EachFurtherAntennaHasZeroPointEightDecibelsLess)
{
    Plug(QuietRadio(-60));
    const NRfTestResult_GetMixRxReportV7 report = ReportOf(RsrpNormalCommand());
    EXPECT_NEAR((report.RSRP0[0] - report.RSRP1[0]) * kPer128, 0.8, kReportStep);
    EXPECT_NEAR((report.RSRP1[0] - report.RSRP2[0]) * kPer128, 0.8, kReportStep);
    EXPECT_NEAR((report.RSRP2[0] - report.RSRP3[0]) * kPer128, 0.8, kReportStep);
}

// The gains are taken off again, so that only their residual error is left: 0.02 dB a dB from 45.
TEST_F(ReceptionTest, GainHardlyMattersWhileNothingSaturates)
{
    Plug(QuietRadio(-75));
    for (const double gain : {20.0, 30.0, 45.0, 55.0})
        EXPECT_NEAR(MainRssi(gain), -75.0 + 0.02 * (gain - 45.0), 0.1) << gain;
    EXPECT_NEAR(MainRssi(kGoodGain, -20.0), MainRssi(kGoodGain, 20.0), kRssiStep);
}

// The ADC is full at -8 dBm: with 45 dB of gain, at -53 dBm at the connector.
TEST_F(ReceptionTest, StrongLevelSaturatesTheAdcAndLessGainBringsItBack)
{
    double reading[3] = {};
    for (int i = 0; i < 3; ++i) {
        Plug(QuietRadio(-60 + 20 * i));
        reading[i] = MainRssi(kGoodGain);
    }
    EXPECT_NEAR(reading[0], -60.0, 0.1);
    EXPECT_NEAR(reading[1], -53.0, 0.1);
    EXPECT_NEAR(reading[2], -53.0, kRssiStep);
    EXPECT_NEAR(MainRssi(7.0), -20.0 + 0.02 * (7.0 - 45.0), 0.1);
}

// Above +4 dBm behind the digital gain the sample word is full.
TEST_F(ReceptionTest, TooMuchDigitalGainClipsTheSampleWord)
{
    Plug(QuietRadio(-65));
    EXPECT_NEAR(MainRssi(kGoodGain, 12.0), -65.0, 0.1);
    EXPECT_NEAR(MainRssi(kGoodGain, 54.0), 4.0 - 45.0 - 54.0, 0.1);
}

// Without a signal the receiver reads kTB and its noise figure: -174 + 67 + 6 dBm in 5 MHz.
TEST_F(ReceptionTest, SilenceReadsThermalNoise)
{
    Plug(QuietRadio(-200));
    EXPECT_NEAR(MainRssi(kGoodGain), -101.0, 0.1);
    Plug(QuietRadio(-200, R"("noiseFigureDb": 10)"));
    EXPECT_NEAR(MainRssi(kGoodGain), -97.0, 0.1);
}

// With little gain in front of it the ADC's own noise (-80 dBm) takes over, as Friis has it.
TEST_F(ReceptionTest, LittleGainLeavesTheNoiseOfTheAdc)
{
    Plug(QuietRadio(-200));
    EXPECT_NEAR(MainRssi(7.0), -80.0 - 7.0 + 0.02 * (7.0 - 45.0), 0.2);
}

TEST_F(ReceptionTest, LowPowerModeHasMoreNoise)
{
    Plug(QuietRadio(-200));
    EXPECT_NEAR(MainRssi(kGoodGain, 0.0, true) - MainRssi(kGoodGain), 1.5, kRssiStep);
}

// The 127 elements of the SSS add up coherently, 21 dB, so that RSRP still follows a cell that RSSI
// hardly shows.
TEST_F(ReceptionTest, RsrpFollowsTheCellBelowTheNoise)
{
    const double noise = -174.0 + 10.0 * std::log10(52 * 12 * 15e3) + 6.0;
    Plug(QuietRadio(noise - 5.0));
    const NRfTestResult_GetMixRxReportV7 report = ReportOf(RsrpForcedCommand());
    EXPECT_NEAR(report.RSSI0[0] * kPer128, noise + 1.19, kReportStep);
    EXPECT_NEAR(report.RSRP0[0] * kPer128, noise - 5.0 - 27.95 + 0.11, kReportStep);
}

// RSRP of a strong cell cannot follow once the lowest gain (7 dB) fills the ADC: at -15 dBm.
TEST_F(ReceptionTest, RsrpSaturatesAtTheLowestGain)
{
    Plug(QuietRadio(-25));
    const double linear = ReportOf(RsrpForcedCommand()).RSSI0[0] * kPer128;
    EXPECT_NEAR(linear, -25.0, 0.1);
    Plug(QuietRadio(-12));
    EXPECT_NEAR(ReportOf(RsrpForcedCommand()).RSSI0[0] * kPer128, -15.0, 0.3);
}

}  // namespace
