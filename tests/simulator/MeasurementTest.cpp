// Readings: plausible, and the same for the same command.

#include "tests/simulator/SimulatorFixture.h"

#include <cstring>

namespace {

class MeasurementTest : public CSimulatorTest
{
protected:
    SMMRssiCnfV7 Rssi(const SMMRssiCmdV7 &command)
    {
        SMMRssiCnfV7 answer = {};
        EXPECT_EQ(VOND_MMRf_RssiV7_r(HANDLE, TIMEOUT_MS, &command, &answer), VOND_SUCCESS);
        return answer;
    }

    SMMGainSearchCnfV7 Search(const SMMGainSearchCmdV7 &command)
    {
        SMMGainSearchCnfV7 answer = {};
        EXPECT_EQ(VOND_MMRf_GainSearchV7_r(HANDLE, TIMEOUT_MS, &command, &answer), VOND_SUCCESS);
        return answer;
    }

    void StartRsrp(const SNrRsrpCmdV7 &command)
    {
        uint32_t status = 0;
        ASSERT_EQ(VOND_NRf_RsrpV7_r(HANDLE, TIMEOUT_MS, &command, &status), VOND_SUCCESS);
        ASSERT_EQ(status, 0u);
    }

    NRfTestResult_GetMixRxReportV7 Report()
    {
        NRfTestResult_GetMixRxReportV7 report = {};
        EXPECT_EQ(VOND_NRf_GetMixRxReportV7_r(HANDLE, TIMEOUT_MS, &report), VOND_SUCCESS);
        return report;
    }

    SNrDlFreqCnfV7 DlFreq(const SNrDlFreqCmdV7 &command)
    {
        SNrDlFreqCnfV7 answer = {};
        EXPECT_EQ(VOND_NRf_GetDlFreqV7_r(HANDLE, TIMEOUT_MS, &command, &answer), VOND_SUCCESS);
        return answer;
    }
};

TEST_F(MeasurementTest, PowerDetectorReadsTheTxPower)
{
    SMMSingleToneCmdV7 command = SingleToneCommand();
    for (const int16_t power : {-12800, 0, 2560, 5888}) {
        command.txPowerValue = power;
        ASSERT_EQ(VOND_MMRf_SingleToneTxV7_r(HANDLE, TIMEOUT_MS, &command), VOND_SUCCESS);
        int16_t value = 0;
        int16_t again = 0;
        ASSERT_EQ(VOND_MMRf_GetPdValueV7_r(HANDLE, TIMEOUT_MS, 1, &value), VOND_SUCCESS);
        ASSERT_EQ(VOND_MMRf_GetPdValueV7_r(HANDLE, TIMEOUT_MS, 1, &again), VOND_SUCCESS);
        EXPECT_NEAR(value, power, 64);
        EXPECT_EQ(value, again);
        VOND_MMRf_TestStopV7_r(HANDLE, TIMEOUT_MS, 1);
    }
}

TEST_F(MeasurementTest, PowerDetectorNeedsATransmitter)
{
    int16_t value = 77;
    EXPECT_EQ(ErrorText(VOND_MMRf_GetPdValueV7_r(HANDLE, TIMEOUT_MS, 1, &value)),
              "Target: nothing is being transmitted");
    const SMMContRxCmdV7 command = ContRxCommand();
    ASSERT_EQ(VOND_MMRf_ContRxV7_r(HANDLE, TIMEOUT_MS, &command), VOND_SUCCESS);
    EXPECT_NE(VOND_MMRf_GetPdValueV7_r(HANDLE, TIMEOUT_MS, 1, &value), VOND_SUCCESS);
    EXPECT_EQ(value, 77);
    EXPECT_EQ(ErrorText(VOND_MMRf_GetPdValueV7_r(HANDLE, TIMEOUT_MS, 2, &value)),
              "Target: unknown power detector");
}

TEST_F(MeasurementTest, RssiOfOnePathFillsTheRowsInUse)
{
    const SMMRssiCmdV7 command = RssiCommand();
    const SMMRssiCnfV7 answer = Rssi(command);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(answer.dlFrequency[i], command.dlFrequency[i]);
        EXPECT_NEAR(answer.rows.single.row[i].rssiMain / 32.0, -60.0, 5.0);
        EXPECT_LT(answer.rows.single.row[i].rssiDiv, answer.rows.single.row[i].rssiMain);
    }
    EXPECT_EQ(answer.dlFrequency[2], 0u);
    EXPECT_EQ(answer.rows.single.row[2].rssiMain, 0);
    // 52 dB is one step of G, 36 dB three.
    EXPECT_EQ(answer.rows.single.mainG, 1);
    EXPECT_EQ(answer.rows.single.maing, 0);
    EXPECT_EQ(answer.rows.single.divG, 3);
}

TEST_F(MeasurementTest, RssiRepeatsAndFollowsFrequencyAndGain)
{
    const SMMRssiCmdV7 command = RssiCommand();
    const SMMRssiCnfV7 first = Rssi(command);
    const SMMRssiCnfV7 second = Rssi(command);
    EXPECT_EQ(std::memcmp(&first, &second, sizeof(first)), 0);
    SMMRssiCmdV7 shifted = command;
    shifted.dlFrequency[0] += 20000;
    EXPECT_NE(Rssi(shifted).rows.single.row[0].rssiMain, first.rows.single.row[0].rssiMain);
    SMMRssiCmdV7 louder = command;
    louder.gain.single.mainRfGain = 70 * 32;
    EXPECT_GT(Rssi(louder).rows.single.row[0].rssiMain, first.rows.single.row[0].rssiMain);
}

TEST_F(MeasurementTest, RssiOfBothPathsFillsAllColumns)
{
    const SMMRssiCnfV7 answer = Rssi(RssiBothPathsCommand());
    const auto &row = answer.rows.simultaneous.row[1];
    for (const int16_t value : {row.path0Main, row.path0Div, row.path1Main, row.path1Div})
        EXPECT_NEAR(value / 32.0, -60.0, 8.0);
    EXPECT_EQ(answer.rows.simultaneous.mainG, 0);
    EXPECT_EQ(answer.rows.simultaneous.path0Maing, 0);
    EXPECT_EQ(answer.rows.simultaneous.path1Maing, 2);
}

TEST_F(MeasurementTest, GainSearchFollowsTheGainModes)
{
    const SMMGainSearchCnfV7 answer = Search(GainSearchCommand());
    EXPECT_EQ(answer.simultaneous, 0u);
    // G1 with g1: 60 - 8 - 2.5 dB; with g0: 52 dB.
    EXPECT_EQ(answer.gain.single.mainRfGain, 1584);
    EXPECT_EQ(answer.gain.single.divRfGain, 1664);
    EXPECT_NEAR(answer.gain.single.mainDigitalGain / 32.0, 12.5, 0.3);
    EXPECT_EQ(answer.adviseDlPower, -640 - 1584);
}

TEST_F(MeasurementTest, GainSearchOfBothPathsTellsGainIndexes)
{
    SMMGainSearchCmdV7 command = GainSearchCommand();
    command.simultaneous = 1;
    command.search[3] = 2;
    const SMMGainSearchCnfV7 answer = Search(command);
    EXPECT_EQ(answer.simultaneous, 1u);
    EXPECT_EQ(answer.gain.simultaneous.path0MainGainIdx, 4);
    EXPECT_EQ(answer.gain.simultaneous.path1DivGainIdx, 5);
    EXPECT_EQ(answer.gain.simultaneous.path1DivRfGain, (52 * 32) - 160);
}

TEST_F(MeasurementTest, GainsOfASearchAreGoodForTheRssiCommand)
{
    SMMGainSearchCmdV7 search = GainSearchCommand();
    search.elnaModeMain = 6;
    search.search[0] = 2;
    const SMMGainSearchCnfV7 gains = Search(search);
    SMMRssiCmdV7 command = RssiCommand();
    command.gain.single.mainRfGain = gains.gain.single.mainRfGain;
    command.gain.single.mainDigitalGain = gains.gain.single.mainDigitalGain;
    const SMMRssiCnfV7 answer = Rssi(command);
    EXPECT_EQ(answer.rows.single.mainG, 6);
    EXPECT_EQ(answer.rows.single.maing, 2);
}

TEST_F(MeasurementTest, ReportHasAsManyMeasurementsAsAskedFor)
{
    StartRsrp(RsrpForcedCommand());
    const NRfTestResult_GetMixRxReportV7 report = Report();
    ASSERT_EQ(report.reportCount, 5);
    for (int i = 0; i < 5; ++i) {
        EXPECT_NEAR(report.RSSI0[i] / 128.0, -60.0, 3.0);
        // 52 resource blocks of 12 elements are 28 dB.
        EXPECT_NEAR((report.RSSI0[i] - report.RSRP0[i]) / 128.0, 27.95, 0.02);
        EXPECT_EQ(report.RSRP2[i], 0);
    }
    EXPECT_EQ(report.RSRP0[5], 0);
}

TEST_F(MeasurementTest, ReportOf4x4HasFourColumns)
{
    StartRsrp(RsrpNormalCommand());
    const NRfTestResult_GetMixRxReportV7 report = Report();
    ASSERT_EQ(report.reportCount, 10);
    EXPECT_LT(report.RSRP3[9], -80 * 128);
    EXPECT_LT(report.RSSI2[9], -50 * 128);
}

TEST_F(MeasurementTest, BlockCountsGrowUntilTheyAreReset)
{
    StartRsrp(RsrpForcedCommand());
    const NRfTestResult_GetMixRxReportV7 first = Report();
    const NRfTestResult_GetMixRxReportV7 second = Report();
    EXPECT_EQ(first.GoodBLK + first.BadBLK, 100u);
    EXPECT_EQ(second.GoodBLK + second.BadBLK, 200u);
    EXPECT_NE(std::memcmp(first.RSRP0, second.RSRP0, sizeof(first.RSRP0)), 0);
    ASSERT_EQ(VOND_NRf_ResetMixRxReportV7_r(HANDLE, TIMEOUT_MS), VOND_SUCCESS);
    const NRfTestResult_GetMixRxReportV7 third = Report();
    EXPECT_EQ(third.GoodBLK + third.BadBLK, 100u);
}

TEST_F(MeasurementTest, SameRunReadsTheSame)
{
    NRfTestResult_GetMixRxReportV7 reports[2];
    for (NRfTestResult_GetMixRxReportV7 &report : reports) {
        StartRsrp(RsrpForcedCommand());
        report = Report();
        VOND_NRf_TestStop_r(HANDLE, TIMEOUT_MS);
        VOND_NRf_ResetMixRxReportV7_r(HANDLE, TIMEOUT_MS);
    }
    EXPECT_EQ(std::memcmp(&reports[0], &reports[1], sizeof(reports[0])), 0);
}

TEST_F(MeasurementTest, ReportOfAnIdleRadioIsEmptyAndKeepsTheCounts)
{
    StartRsrp(RsrpForcedCommand());
    const NRfTestResult_GetMixRxReportV7 running = Report();
    VOND_NRf_TestStop_r(HANDLE, TIMEOUT_MS);
    const NRfTestResult_GetMixRxReportV7 idle = Report();
    EXPECT_EQ(idle.reportCount, 0);
    EXPECT_EQ(idle.RSRP0[0], 0);
    EXPECT_EQ(idle.GoodBLK, running.GoodBLK);
    EXPECT_EQ(idle.BadBLK, running.BadBLK);
}

TEST_F(MeasurementTest, DownlinkIsTheUplinkAndTheDuplexDistance)
{
    SNrDlFreqCmdV7 command = DlFreqCommand();
    EXPECT_EQ(DlFreq(command).dlFrequency, 2140000u);
    command = {};
    command.band = 5;
    command.ulFrequency = 836500;
    EXPECT_EQ(DlFreq(command).dlFrequency, 881500u);
    command.band = 41;
    command.ulFrequency = 2593000;
    EXPECT_EQ(DlFreq(command).dlFrequency, 2593000u);
}

TEST_F(MeasurementTest, DownlinkThatDoesNotExistIsAFrequencyMismatch)
{
    SNrDlFreqCmdV7 command = {};
    command.band = 80;
    command.ulFrequency = 1747500;
    const SNrDlFreqCnfV7 answer = DlFreq(command);
    EXPECT_EQ(answer.status, 1u);
    EXPECT_EQ(answer.dlFrequency, 0u);
    command.band = 1;
    EXPECT_EQ(DlFreq(command).status, 1u);
    command = DlFreqCommand();
    command.ulFrequency = 1950002;
    EXPECT_EQ(DlFreq(command).status, 1u);
}

TEST_F(MeasurementTest, DownlinkOfAnUnknownBandOrRouteIsRefused)
{
    SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    command.band = 0;
    EXPECT_EQ(ErrorText(VOND_NRf_GetDlFreqV7_r(HANDLE, TIMEOUT_MS, &command, &answer)),
              "Target: unknown band");
    command = DlFreqCommand();
    command.txRoute = 3;
    EXPECT_EQ(ErrorText(VOND_NRf_GetDlFreqV7_r(HANDLE, TIMEOUT_MS, &command, &answer)),
              "Target: route does not serve the band");
    // Without force the route word means nothing.
    command.forced = 0;
    EXPECT_EQ(DlFreq(command).dlFrequency, 2140000u);
}

}  // namespace
