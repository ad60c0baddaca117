// The journal in memory: order, arguments and bytes of every call.

#include <cstring>
#include <thread>

#include <unistd.h>

#include "tests/simulator/SimulatorFixture.h"

namespace {

constexpr uint32_t kHeldMs = 10000;

class JournalTest : public CSimulatorTest
{
};

template <class Record>
std::vector<uint8_t> BytesOf(const Record &record)
{
    std::vector<uint8_t> bytes(sizeof(record));
    std::memcpy(bytes.data(), &record, sizeof(record));
    return bytes;
}

std::vector<uint8_t> BytesOf(const std::string &text)
{
    return std::vector<uint8_t>(text.begin(), text.end());
}

TEST_F(JournalTest, CommandIsKeptWithItsArgumentsAndBytes)
{
    const SMMContRxCmdV7 command = ContRxCommand();
    VOND_MMRf_ContRxV7_r(0xabcd, 1234, &command);
    ASSERT_EQ(VondSim_CallCount(), 1u);
    const SVondSimCall call = CallAt(0);
    EXPECT_STREQ(call.function, "VOND_MMRf_ContRxV7_r");
    EXPECT_EQ(call.handle, 0xabcdu);
    EXPECT_EQ(call.timeoutMs, 1234u);
    EXPECT_EQ(call.result, VOND_SUCCESS);
    EXPECT_EQ(call.requestSize, 40u);
    EXPECT_EQ(call.answerSize, 0u);
    EXPECT_GT(call.durationNs, 0u);
    EXPECT_EQ(RequestBytes(0), BytesOf(command));
}

TEST_F(JournalTest, AnswerIsKept)
{
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &command, &answer);
    EXPECT_EQ(RequestBytes(0), BytesOf(command));
    EXPECT_EQ(AnswerBytes(0), BytesOf(answer));
}

TEST_F(JournalTest, StatusIsKept)
{
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    command.forcedMode.carrier.common.dlFrequency = 1;
    uint32_t status = 0;
    VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &command, &status);
    EXPECT_EQ(CallAt(0).status, 1u);
}

TEST_F(JournalTest, RefusalIsKeptWithoutAnAnswer)
{
    SMMRssiCmdV7 command = RssiCommand();
    command.band = 2;
    SMMRssiCnfV7 answer = {};
    const VOND_RESULT result = VOND_MMRf_RssiV7_r(kHandle, kTimeoutMs, &command, &answer);
    EXPECT_NE(result, VOND_SUCCESS);
    EXPECT_EQ(CallAt(0).result, result);
    EXPECT_EQ(CallAt(0).answerSize, 0u);
    EXPECT_EQ(RequestBytes(0), BytesOf(command));
}

TEST_F(JournalTest, CallsStandInOrder)
{
    int32_t index = 0;
    int32_t service = 0;
    VondConn_GetMdActiveIdx(kHandle, &index);
    VondConn_GetMdSrv(kHandle, index, &service);
    VOND_QueryFunctionSupported_r(kHandle, kTimeoutMs, "VOND_MMRf_ContRxV7_r");
    VOND_GetErrorString(1);
    VOND_NRf_GetChipIdName(40);
    VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1);
    const std::vector<std::string> expected = {
        "VondConn_GetMdActiveIdx", "VondConn_GetMdSrv",      "VOND_QueryFunctionSupported_r",
        "VOND_GetErrorString",     "VOND_NRf_GetChipIdName", "VOND_MMRf_TestStopV7_r"};
    std::vector<std::string> names;
    for (uint32_t i = 0; i < VondSim_CallCount(); ++i)
        names.push_back(CallAt(i).function);
    EXPECT_EQ(names, expected);
    EXPECT_EQ(AnswerBytes(1), BytesOf(service));
    EXPECT_EQ(RequestBytes(2), BytesOf(std::string("VOND_MMRf_ContRxV7_r")));
    EXPECT_EQ(RequestBytes(3), BytesOf(int32_t(1)));
    EXPECT_EQ(AnswerBytes(3), BytesOf(std::string("Connection: no target is connected")));
    EXPECT_EQ(AnswerBytes(4), BytesOf(std::string("VR6240")));
    EXPECT_EQ(RequestBytes(5), BytesOf(uint32_t(1)));
}

SVondSimCallTime TimeAt(uint32_t index)
{
    SVondSimCallTime time = {};
    EXPECT_EQ(VondSim_GetCallTime(index, &time), 0);
    return time;
}

TEST_F(JournalTest, CallsTellWhenTheyBegan)
{
    VOND_NRf_GetChipIdName(40);
    VOND_NRf_GetChipIdName(41);
    const SVondSimCallTime first = TimeAt(0);
    const SVondSimCallTime second = TimeAt(1);
    EXPECT_EQ(second.number, first.number + 1);
    EXPECT_GE(second.startNs, first.startNs + CallAt(0).durationNs);
    EXPECT_GE(second.startUnixMs, first.startUnixMs);
    EXPECT_GT(first.startUnixMs, 1'700'000'000'000);
    EXPECT_EQ(first.thread, static_cast<uint64_t>(gettid()));
    SVondSimCallTime none = {};
    EXPECT_EQ(VondSim_GetCallTime(2, &none), -1);
    EXPECT_EQ(VondSim_GetCallTime(0, nullptr), -1);
}

TEST_F(JournalTest, ManyCallsAreToldAtOnce)
{
    for (uint32_t chip = 40; chip < 43; ++chip)
        VOND_NRf_GetChipIdName(chip);
    SVondSimCall calls[4] = {};
    SVondSimCallTime times[4] = {};
    EXPECT_EQ(VondSim_GetCalls(1, 4, calls, times), 2u);
    EXPECT_STREQ(calls[0].function, "VOND_NRf_GetChipIdName");
    EXPECT_EQ(calls[1].durationNs, CallAt(2).durationNs);
    EXPECT_EQ(times[1].number, TimeAt(2).number);
    EXPECT_EQ(VondSim_GetCalls(0, 1, calls, times), 1u);
    EXPECT_EQ(VondSim_GetCalls(3, 4, calls, times), 0u);
    EXPECT_EQ(VondSim_GetCalls(0, 4, nullptr, times), 0u);
}

TEST_F(JournalTest, ClearedJournalGivesNoNumberTwice)
{
    VOND_NRf_GetChipIdName(40);
    const uint64_t number = TimeAt(0).number;
    VondSim_ClearJournal();
    VOND_NRf_GetChipIdName(40);
    EXPECT_EQ(TimeAt(0).number, number + 1);
}

TEST_F(JournalTest, CallThatHasBegunIsOpenUntilItEnds)
{
    const char *const function = "VOND_NRf_GetChipIdName";
    EXPECT_EQ(VondSim_GetOpenCalls(nullptr, 0), 0u);
    VondSim_Hold(function);
    std::thread caller([] { VOND_NRf_GetChipIdName(40); });
    ASSERT_EQ(VondSim_WaitUntilHeld(function, kHeldMs), 1);
    SVondSimOpenCall open[2] = {};
    EXPECT_EQ(VondSim_GetOpenCalls(open, 2), 1u);
    EXPECT_EQ(VondSim_CallCount(), 0u);
    VondSim_Release(function);
    caller.join();
    EXPECT_STREQ(open[0].function, function);
    EXPECT_EQ(open[1].function[0], '\0');
    EXPECT_EQ(VondSim_GetOpenCalls(open, 2), 0u);
    EXPECT_EQ(TimeAt(0).number, open[0].time.number);
    EXPECT_EQ(TimeAt(0).startNs, open[0].time.startNs);
}

TEST_F(JournalTest, ResultsHaveTheWordsOfThePairWithoutACall)
{
    const std::string words = VOND_GetErrorString(VOND_SUCCESS);
    const uint32_t calls = VondSim_CallCount();
    EXPECT_EQ(VondSim_ResultText(VOND_SUCCESS), words);
    EXPECT_EQ(VondSim_CallCount(), calls);
}

TEST_F(JournalTest, ShortBufferTakesWhatFits)
{
    const SMMContRxCmdV7 command = ContRxCommand();
    VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command);
    uint8_t bytes[8];
    std::memset(bytes, 0xee, sizeof(bytes));
    EXPECT_EQ(VondSim_GetRequest(0, bytes, 4), 40u);
    EXPECT_EQ(std::memcmp(bytes, &command, 4), 0);
    EXPECT_EQ(bytes[4], 0xee);
}

TEST_F(JournalTest, NothingStandsBehindTheLastCall)
{
    VOND_NRf_TestStop_r(kHandle, kTimeoutMs);
    SVondSimCall call = {};
    EXPECT_EQ(VondSim_GetCall(1, &call), -1);
    EXPECT_EQ(VondSim_GetCall(0, nullptr), -1);
    EXPECT_EQ(VondSim_GetRequest(1, nullptr, 0), 0u);
    EXPECT_EQ(VondSim_GetAnswer(1, nullptr, 0), 0u);
    VondSim_ClearJournal();
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

TEST_F(JournalTest, NullRequestHasNoBytes)
{
    EXPECT_EQ(ErrorText(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, nullptr)),
              "Argument: null pointer");
    EXPECT_EQ(CallAt(0).requestSize, 0u);
}

// A run of days must not fill the memory: 4000 answers of 20 kB are more than 64 MiB.
TEST_F(JournalTest, OldestCallsGoAndTheOthersKeepTheirNumbers)
{
    constexpr uint32_t kCalls = 4000;
    SNRfRxRouteValues values = {};
    for (uint32_t i = 0; i < kCalls; ++i)
        ASSERT_EQ(VOND_NRf_GetRxRouteValues_r(i, kTimeoutMs, &values), VOND_SUCCESS);
    EXPECT_EQ(VondSim_CallCount(), kCalls);
    SVondSimCall call = {};
    EXPECT_EQ(VondSim_GetCall(0, &call), -1);
    EXPECT_EQ(VondSim_GetAnswer(0, nullptr, 0), 0u);
    EXPECT_EQ(CallAt(kCalls - 1).handle, kCalls - 1);
    EXPECT_EQ(AnswerBytes(kCalls - 1).size(), sizeof(values));
    uint32_t kept = 0;
    for (uint32_t i = 0; i < kCalls; ++i)
        kept += VondSim_GetCall(i, &call) == 0 ? 1 : 0;
    EXPECT_GT(kept, 3000u);
    EXPECT_LE(kept, 64u * 1024 * 1024 / sizeof(values));
    VondSim_ClearJournal();
    EXPECT_EQ(VondSim_CallCount(), 0u);
    ASSERT_EQ(VOND_NRf_GetRxRouteValues_r(7, kTimeoutMs, &values), VOND_SUCCESS);
    EXPECT_EQ(CallAt(0).handle, 7u);
}

}  // namespace
