#include "tests/simulator/radio/MeasuringFixture.h"

void CMeasuringTest::Plug(const std::string &profile)
{
    ASSERT_EQ(VondSim_SetProfileText(profile.c_str()), 0) << profile;
}

SMMRssiCnfV7 CMeasuringTest::Rssi(const SMMRssiCmdV7 &command)
{
    SMMRssiCnfV7 answer = {};
    EXPECT_EQ(VOND_MMRf_RssiV7_r(kHandle, kTimeoutMs, &command, &answer), VOND_SUCCESS);
    return answer;
}

SMMGainSearchCnfV7 CMeasuringTest::Search(const SMMGainSearchCmdV7 &command)
{
    SMMGainSearchCnfV7 answer = {};
    EXPECT_EQ(VOND_MMRf_GainSearchV7_r(kHandle, kTimeoutMs, &command, &answer), VOND_SUCCESS);
    return answer;
}

SNrDlFreqCnfV7 CMeasuringTest::DlFreq(const SNrDlFreqCmdV7 &command)
{
    SNrDlFreqCnfV7 answer = {};
    EXPECT_EQ(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &answer), VOND_SUCCESS);
    return answer;
}

uint32_t CMeasuringTest::TryRsrp(const SNrRsrpCmdV7 &command)
{
    uint32_t status = 0;
    EXPECT_EQ(VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &command, &status), VOND_SUCCESS);
    return status;
}

void CMeasuringTest::StartRsrp(const SNrRsrpCmdV7 &command)
{
    ASSERT_EQ(TryRsrp(command), 0u);
}

void CMeasuringTest::StopRsrp()
{
    EXPECT_EQ(VOND_NRf_TestStop_r(kHandle, kTimeoutMs), VOND_SUCCESS);
    EXPECT_EQ(VOND_NRf_ResetMixRxReportV7_r(kHandle, kTimeoutMs), VOND_SUCCESS);
}

NRfTestResult_GetMixRxReportV7 CMeasuringTest::Report()
{
    NRfTestResult_GetMixRxReportV7 report = {};
    EXPECT_EQ(VOND_NRf_GetMixRxReportV7_r(kHandle, kTimeoutMs, &report), VOND_SUCCESS);
    return report;
}

NRfTestResult_GetMixRxReportV7 CMeasuringTest::ReportOf(const SNrRsrpCmdV7 &command)
{
    EXPECT_EQ(TryRsrp(command), 0u);
    const NRfTestResult_GetMixRxReportV7 report = Report();
    StopRsrp();
    return report;
}

double CMeasuringTest::ErrorRate(const SNrRsrpCmdV7 &command, int reports)
{
    EXPECT_EQ(TryRsrp(command), 0u);
    NRfTestResult_GetMixRxReportV7 report = {};
    for (int i = 0; i < reports; ++i)
        report = Report();
    StopRsrp();
    EXPECT_GT(report.GoodBLK + report.BadBLK, 0u);
    return static_cast<double>(report.BadBLK) / (report.GoodBLK + report.BadBLK);
}

std::string QuietRadio(double levelDbm, const std::string &keys)
{
    const std::string radio = R"({"fluctuationDb": 0, "levelDbm": {"default": )" +
                              std::to_string(levelDbm) +
                              R"(}, "pathLossDb": {"default": 0, "2": null, "4": null, "14": null,
                                 "106": null, "107": null})" +
                              (keys.empty() ? "" : ", " + keys) + "}";
    return HandsetWith(R"("name": "laboratory", "txLimits": [], "rxLimits": [], "radio": )" +
                       radio);
}
