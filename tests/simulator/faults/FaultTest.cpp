// Each kind of fault, and each way in which one fires.

#include <algorithm>
#include <chrono>
#include <cstring>

#include "tests/simulator/SimulatorFixture.h"

namespace {

class FaultTest : public CSimulatorTest
{
protected:
    void Add(const std::string &json) { ASSERT_EQ(VondSim_AddFault(json.c_str()), 0) << json; }

    VOND_RESULT Stop(uint32_t timeoutMs = kTimeoutMs)
    {
        return VOND_NRf_TestStop_r(kHandle, timeoutMs);
    }

    VOND_RESULT Rsrp(uint32_t &status)
    {
        const SNrRsrpCmdV7 command = RsrpForcedCommand();
        return VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &command, &status);
    }
};

TEST_F(FaultTest, FailAnswersItsResultAndDoesNothing)
{
    Add(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    const SMMContRxCmdV7 command = ContRxCommand();
    EXPECT_EQ(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command), 7);
    EXPECT_STREQ(VondSim_RunningTest(), "");
    EXPECT_EQ(Stop(), VOND_SUCCESS);
}

TEST_F(FaultTest, FailReachesTheConnectionQueries)
{
    Add(R"({"function": "VondConn_GetMdSrv", "kind": "fail", "result": -5})");
    int32_t service = 9;
    EXPECT_EQ(VondConn_GetMdSrv(kHandle, 0, &service), -5);
    EXPECT_EQ(service, 9);
}

TEST_F(FaultTest, StatusIsAnsweredWithSuccessAndDoesNothing)
{
    Add(R"({"function": "VOND_NRf_RsrpV7_r", "kind": "status", "status": 2})");
    uint32_t status = 0;
    EXPECT_EQ(Rsrp(status), VOND_SUCCESS);
    EXPECT_EQ(status, 2u);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(FaultTest, StatusInsideARecordIsWrittenThere)
{
    Add(R"({"function": "VOND_NRf_GetDlFreqV7_r", "kind": "status", "status": 5})");
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    EXPECT_EQ(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &answer), VOND_SUCCESS);
    EXPECT_EQ(answer.status, 5u);
    EXPECT_EQ(answer.dlFrequency, 0u);
}

TEST_F(FaultTest, StatusAndFailureGoTogether)
{
    Add(R"({"function": "VOND_NRf_RsrpV7_r", "kind": "status", "status": 1})");
    Add(R"({"function": "VOND_NRf_RsrpV7_r", "kind": "fail", "result": 2})");
    uint32_t status = 0;
    EXPECT_EQ(Rsrp(status), 2);
    EXPECT_EQ(status, 1u);
}

TEST_F(FaultTest, DelayPassesBeforeTheAnswer)
{
    Add(R"({"function": "VOND_NRf_TestStop_r", "kind": "delay", "ms": 30})");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Stop(), VOND_SUCCESS);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(30));
    EXPECT_GE(LastCall().durationNs, 30000000u);
}

TEST_F(FaultTest, DelayBeyondTheTimeoutTimesOutAfterIt)
{
    Add(R"({"function": "VOND_NRf_TestStop_r", "kind": "delay", "ms": 600000})");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(ErrorText(Stop(20)), "Connection: the target did not answer in time");
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(20));
}

TEST_F(FaultTest, NullTextIsANullPointer)
{
    Add(R"({"function": "VOND_GetErrorString", "kind": "nullText"})");
    EXPECT_EQ(VOND_GetErrorString(1), nullptr);
    VondSim_ClearFaults();
    EXPECT_STREQ(VOND_GetErrorString(1), "Connection: no target is connected");
}

TEST_F(FaultTest, NoiseFillsTheWholeAnswerAndRepeatsWithItsSeed)
{
    SNRfBandRxInfo clean = {};
    ASSERT_EQ(VOND_NRf_GetBandRxInfo_r(kHandle, kTimeoutMs, &clean), VOND_SUCCESS);
    SNRfBandRxInfo noisy[2] = {};
    for (SNRfBandRxInfo &info : noisy) {
        VondSim_ClearFaults();
        Add(R"({"function": "VOND_NRf_GetBandRxInfo_r", "kind": "noise", "seed": 3})");
        EXPECT_EQ(VOND_NRf_GetBandRxInfo_r(kHandle, kTimeoutMs, &info), VOND_SUCCESS);
    }
    EXPECT_EQ(std::memcmp(&noisy[0], &noisy[1], sizeof(clean)), 0);
    const auto *bytes = reinterpret_cast<const uint8_t *>(&noisy[0]);
    EXPECT_NE(std::memcmp(&noisy[0], &clean, sizeof(clean)), 0);
    EXPECT_LT(std::count(bytes, bytes + sizeof(clean), 0), 10);
    EXPECT_EQ(AnswerBytes(VondSim_CallCount() - 1),
              std::vector<uint8_t>(bytes, bytes + sizeof(clean)));
}

TEST_F(FaultTest, BytesLieOverTheAnswerAndTheRestStaysAsMeasured)
{
    Add(R"({"function": "VOND_NRf_GetDlFreqV7_r", "kind": "bytes", "offset": 5, "hex": "0badf0"})");
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    EXPECT_EQ(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &answer), VOND_SUCCESS);
    EXPECT_EQ(answer.status, 0u);
    EXPECT_EQ(answer.dlFrequency, 0xf0ad0b00u | (2140000u & 0xff));
    EXPECT_EQ(AnswerBytes(VondSim_CallCount() - 1),
              (std::vector<uint8_t>{0, 0, 0, 0, 0x60, 0x0b, 0xad, 0xf0}));
}

TEST_F(FaultTest, BytesBehindTheEndOfTheAnswerAreLeftOut)
{
    struct
    {
        SNrDlFreqCnfV7 answer;
        uint32_t behind;
    } memory = {{}, 0x12345678};
    Add(R"({"function": "*", "kind": "bytes", "offset": 6, "hex": "aabbccdd"})");
    Add(R"({"function": "*", "kind": "bytes", "offset": 8, "hex": "ee"})");
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    EXPECT_EQ(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &memory.answer), VOND_SUCCESS);
    EXPECT_EQ(memory.answer.dlFrequency, 0xbbaa0000u | (2140000u & 0xffff));
    EXPECT_EQ(memory.behind, 0x12345678u);
    EXPECT_EQ(Stop(), VOND_SUCCESS);
}

TEST_F(FaultTest, BytesInAStatusInsideARecordAreJournalledAsTheStatus)
{
    Add(R"({"function": "VOND_NRf_GetDlFreqV7_r", "kind": "bytes", "hex": "02"})");
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    EXPECT_EQ(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &answer), VOND_SUCCESS);
    EXPECT_EQ(answer.status, 2u);
    EXPECT_EQ(LastCall().status, 2u);
}

TEST_F(FaultTest, BytesGoWithAFailure)
{
    Add(R"({"function": "VOND_NRf_GetMixRxReportV7_r", "kind": "fail", "result": 7})");
    Add(R"({"function": "VOND_NRf_GetMixRxReportV7_r", "kind": "bytes", "hex": "0c"})");
    NRfTestResult_GetMixRxReportV7 report = {};
    EXPECT_EQ(VOND_NRf_GetMixRxReportV7_r(kHandle, kTimeoutMs, &report), 7);
    EXPECT_EQ(report.reportCount, 12);
}

TEST_F(FaultTest, NthFiresOnThatCallAlone)
{
    Add(R"({"function": "VOND_NRf_TestStop_r", "kind": "fail", "nth": 2})");
    EXPECT_EQ(Stop(), VOND_SUCCESS);
    EXPECT_NE(Stop(), VOND_SUCCESS);
    EXPECT_EQ(Stop(), VOND_SUCCESS);
}

TEST_F(FaultTest, NthCountsTheCallsOfItsFunctionAlone)
{
    Add(R"({"function": "VOND_NRf_TestStop_r", "kind": "fail", "nth": 1})");
    EXPECT_EQ(VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1), VOND_SUCCESS);
    EXPECT_NE(Stop(), VOND_SUCCESS);
}

TEST_F(FaultTest, ProbabilityFiresAboutAsOftenAndRepeatsWithItsSeed)
{
    std::string pattern[2];
    for (std::string &calls : pattern) {
        VondSim_ClearFaults();
        Add(R"({"function": "VOND_NRf_TestStop_r", "kind": "fail", "probability": 0.25,
                "seed": 42})");
        for (int i = 0; i < 400; ++i)
            calls += Stop() == VOND_SUCCESS ? '.' : 'x';
    }
    EXPECT_EQ(pattern[0], pattern[1]);
    const auto fired = std::count(pattern[0].begin(), pattern[0].end(), 'x');
    EXPECT_GT(fired, 60);
    EXPECT_LT(fired, 140);
}

TEST_F(FaultTest, ProbabilityZeroNeverFiresAndOneAlwaysDoes)
{
    Add(R"({"function": "VOND_NRf_TestStop_r", "kind": "fail", "probability": 0})");
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(Stop(), VOND_SUCCESS);
    Add(R"({"function": "VOND_NRf_TestStop_r", "kind": "fail", "probability": 1})");
    for (int i = 0; i < 50; ++i)
        EXPECT_NE(Stop(), VOND_SUCCESS);
}

TEST_F(FaultTest, StarMeansEveryFunctionThatCanShowIt)
{
    Add(R"({"function": "*", "kind": "fail"})");
    int32_t index = 0;
    EXPECT_NE(Stop(), VOND_SUCCESS);
    EXPECT_NE(VondConn_GetMdActiveIdx(kHandle, &index), VOND_SUCCESS);
    EXPECT_STREQ(VOND_GetErrorString(0), "Success");
}

TEST_F(FaultTest, AddedFaultsOutliveAProfileButNotAReset)
{
    Add(R"({"function": "VOND_NRf_TestStop_r", "kind": "fail"})");
    VondSim_SetProfile("largest");
    EXPECT_NE(Stop(), VOND_SUCCESS);
    VondSim_Reset();
    EXPECT_EQ(Stop(), VOND_SUCCESS);
}

TEST_F(FaultTest, BrokenFaultsAreRefusedWithOneLine)
{
    const struct
    {
        const char *json;
        const char *reason;
    } broken[] = {
        {"", "parse error"},
        {R"({"kind": "fail"})", "fault.function: is missing"},
        {R"({"function": "VOND_Dance_r", "kind": "fail"})", "VOND_Dance_r"},
        {R"({"function": "*", "kind": "fail", "result": 0})", "0 is success"},
        {R"({"function": "*", "kind": "fail", "ms": 5})", "fault.ms: is an unknown key"},
        {R"({"function": "*", "kind": "status"})", "fault.status: is missing"},
        {R"({"function": "*", "kind": "delay", "ms": -1})", "fault.ms: -1 is not within"},
        {R"({"function": "*", "kind": "fail", "probability": 1.5})", "1.5 is out of limits"},
        {R"({"function": "*", "kind": "fail", "probability": 1, "nth": 1})", "cannot stand beside"},
        {R"({"function": "VOND_NRf_TestStop_r", "kind": "status", "status": 1})", "does not go"},
        {R"({"function": "VOND_NRf_TestStop_r", "kind": "nullText"})", "does not go"},
        {R"({"function": "VOND_GetErrorString", "kind": "fail"})", "does not go"},
        {R"({"function": "VOND_GetErrorString", "kind": "bytes", "hex": "00"})", "does not go"},
        {R"({"function": "*", "kind": "bytes"})", "fault.hex: is missing"},
        {R"({"function": "*", "kind": "bytes", "hex": ""})", "is not made of pairs"},
        {R"({"function": "*", "kind": "bytes", "hex": "0"})", "is not made of pairs"},
        {R"({"function": "*", "kind": "bytes", "hex": "0g"})", "is not made of pairs"},
        {R"({"function": "*", "kind": "bytes", "hex": "00 1"})", "is not made of pairs"},
        {R"({"function": "*", "kind": "bytes", "hex": "00", "offset": -1})", "fault.offset: -1"},
    };
    for (const auto &entry : broken) {
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(VondSim_AddFault(entry.json), -1) << entry.json;
        const std::string line = ::testing::internal::GetCapturedStderr();
        EXPECT_NE(line.find(entry.reason), std::string::npos) << line;
    }
    EXPECT_EQ(Stop(), VOND_SUCCESS);
}

}  // namespace
