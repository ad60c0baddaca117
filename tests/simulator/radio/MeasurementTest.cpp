// What stands where in the answers: rows and columns in use, and what an idle radio says.

#include "tests/simulator/radio/MeasuringFixture.h"

namespace {

class MeasurementTest : public CMeasuringTest
{
};

TEST_F(MeasurementTest, RssiOfOnePathFillsTheRowsInUse)
{
    const SMMRssiCmdV7 command = RssiCommand();
    const SMMRssiCnfV7 answer = Rssi(command);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(answer.dlFrequency[i], command.dlFrequency[i]);
        EXPECT_NEAR(answer.rows.single.row[i].rssiMain * kPer32, -65.0, 5.0);
        EXPECT_LT(answer.rows.single.row[i].rssiDiv, answer.rows.single.row[i].rssiMain);
    }
    EXPECT_EQ(answer.dlFrequency[2], 0u);
    EXPECT_EQ(answer.rows.single.row[2].rssiMain, 0);
    // 52 dB is one step of G, 36 dB three.
    EXPECT_EQ(answer.rows.single.mainG, 1);
    EXPECT_EQ(answer.rows.single.maing, 0);
    EXPECT_EQ(answer.rows.single.divG, 3);
}

TEST_F(MeasurementTest, RssiOfBothPathsFillsAllColumns)
{
    const SMMRssiCnfV7 answer = Rssi(RssiBothPathsCommand());
    const auto &row = answer.rows.simultaneous.row[1];
    for (const int16_t value : {row.path0Main, row.path0Div, row.path1Main, row.path1Div})
        EXPECT_NEAR(value * kPer32, -65.0, 8.0);
    EXPECT_EQ(answer.rows.simultaneous.row[2].path0Main, 0);
    EXPECT_EQ(answer.rows.simultaneous.mainG, 0);
    EXPECT_EQ(answer.rows.simultaneous.path0Maing, 0);
    EXPECT_EQ(answer.rows.simultaneous.path1Maing, 2);
}

TEST_F(MeasurementTest, ReportHasAsManyMeasurementsAsAskedFor)
{
    StartRsrp(RsrpForcedCommand());
    const NRfTestResult_GetMixRxReportV7 report = Report();
    ASSERT_EQ(report.reportCount, 5);
    for (int i = 0; i < 5; ++i) {
        EXPECT_NEAR(report.RSSI0[i] * kPer128, -66.0, 2.0);
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
    ASSERT_EQ(VOND_NRf_ResetMixRxReportV7_r(kHandle, kTimeoutMs), VOND_SUCCESS);
    const NRfTestResult_GetMixRxReportV7 third = Report();
    EXPECT_EQ(third.GoodBLK + third.BadBLK, 100u);
}

TEST_F(MeasurementTest, ReportOfAnIdleRadioIsEmptyAndKeepsTheCounts)
{
    StartRsrp(RsrpForcedCommand());
    const NRfTestResult_GetMixRxReportV7 running = Report();
    VOND_NRf_TestStop_r(kHandle, kTimeoutMs);
    const NRfTestResult_GetMixRxReportV7 idle = Report();
    EXPECT_EQ(idle.reportCount, 0);
    EXPECT_EQ(idle.RSRP0[0], 0);
    EXPECT_EQ(idle.GoodBLK, running.GoodBLK);
    EXPECT_EQ(idle.BadBLK, running.BadBLK);
}

}  // namespace
