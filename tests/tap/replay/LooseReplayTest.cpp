// A loose replay: a request is answered as it was, in whatever order it comes.

#include <algorithm>
#include <set>
#include <thread>

#include <gtest/gtest.h>

#include "Vond/VondCore.h"
#include "tests/tap/replay/ReplayedCalls.h"

namespace {

constexpr uint32_t kKind = 1;
constexpr uint32_t kOtherKind = 2;

int16_t PdValueOf(const CReplay &replay, uint32_t kind)
{
    int16_t value = 0;
    EXPECT_EQ(Ask(replay, EFunction::GetPdValue, kind, value), 0);
    return value;
}

TEST(LooseReplayTest, RequestIsAnsweredByItsCallsInTheirOrderThenByTheLast)
{
    const CReplay replay({}, {Recorded(EFunction::GetPdValue, kKind, int16_t{10}),
                              Recorded(EFunction::GetPdValue, kOtherKind, int16_t{20}),
                              Recorded(EFunction::GetPdValue, kKind, int16_t{11})});
    EXPECT_EQ(PdValueOf(replay, kOtherKind), 20);
    EXPECT_EQ(PdValueOf(replay, kKind), 10);
    EXPECT_EQ(PdValueOf(replay, kKind), 11);
    EXPECT_EQ(PdValueOf(replay, kKind), 11);
    EXPECT_EQ(PdValueOf(replay, kOtherKind), 20);
}

TEST(LooseReplayTest, HandleAndTimeoutAreNotCompared)
{
    const CReplay replay({}, {Recorded(EFunction::MultiModeTestStop, kKind, SNone(), 7)});
    SAskedCall call = Asked(EFunction::MultiModeTestStop, kKind);
    call.handle = 99;
    call.timeoutMs = 1;
    EXPECT_EQ(replay.Answer(call), 7);
}

TEST(LooseReplayTest, SameBytesForAnotherFunctionAreAnotherRequest)
{
    const CReplay replay({}, {Recorded(EFunction::MultiModeTestStop, kKind)});
    int16_t value = 0;
    EXPECT_EQ(Ask(replay, EFunction::GetPdValue, kKind, value), kNoCallLikeThis);
}

TEST(LooseReplayTest, FailureComesBackWithItsAnswerAndStatus)
{
    SMMCalBlkInfoCnfV7 recorded = {};
    std::memset(&recorded, 0x5a, sizeof(recorded));
    STraceCall rsrp = Recorded(EFunction::Rsrp, SNrRsrpCmdV7(), SNone(), 3);
    rsrp.status = 2;
    const CReplay replay({}, {Recorded(EFunction::GetCalBlkInfo, kKind, recorded, 8), rsrp});

    SMMCalBlkInfoCnfV7 answer = {};
    EXPECT_EQ(Ask(replay, EFunction::GetCalBlkInfo, kKind, answer), 8);
    EXPECT_EQ(std::memcmp(&answer, &recorded, sizeof(answer)), 0);

    const SNrRsrpCmdV7 command = {};
    uint32_t status = 0;
    SAskedCall call = Asked(EFunction::Rsrp, command);
    call.status = &status;
    EXPECT_EQ(replay.Answer(call), 3);
    EXPECT_EQ(status, 2u);
}

TEST(LooseReplayTest, AnswerFillsNoMoreThanTheCallersRoomAndNoMoreThanItHas)
{
    const SVondCapabilityReq sizes = {56, 180};
    const CReplay replay({}, {Recorded(EFunction::LteCapability, sizes, std::string_view("abcd"))});
    std::string room = "......";
    SAskedCall call = Asked(EFunction::LteCapability, sizes);
    call.answer = room.data();
    call.answerSize = 2;
    replay.Answer(call);
    EXPECT_EQ(room, "ab....");
    call.answerSize = room.size();
    replay.Answer(call);
    EXPECT_EQ(room, "abcd..");
    call.answer = nullptr;
    EXPECT_EQ(replay.Answer(call), 0);
}

TEST(LooseReplayTest, NullRequestIsLikeNullAloneAndNotLikeNoBytes)
{
    const CReplay replay({}, {Recorded(EFunction::NrCapability, SNone(), SNone(), 4),
                              Recorded(EFunction::NrCapability, std::string_view(""), SNone(), 5)});
    EXPECT_EQ(Ask(replay, EFunction::NrCapability), 4);
    EXPECT_EQ(replay.Answer({.function = EFunction::NrCapability, .request = "", .requestSize = 0}),
              5);
}

TEST(LooseReplayTest, CallWithoutARequestIsLikeEveryOther)
{
    const CReplay replay({}, {Recorded(EFunction::NrTestStop, SNone(), SNone(), 1),
                              Recorded(EFunction::NrTestStop, std::string_view(""), SNone(), 2)});
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), 1);
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), 2);
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), 2);
}

TEST(LooseReplayTest, CallThatHadNotComeBackAnswersNothing)
{
    STraceCall open = Recorded(EFunction::NrTestStop);
    open.isEnded = false;
    const CReplay replay({}, {open, Recorded(EFunction::NrTestStop, SNone(), SNone(), 6)});
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), 6);
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), 6);
}

TEST(LooseReplayTest, ThreadsGetEachAnswerOnce)
{
    constexpr int kThreads = 16;
    constexpr int kAnswersEach = 500;
    std::vector<STraceCall> calls;
    for (int i = 0; i < kThreads * kAnswersEach; ++i)
        calls.push_back(Recorded(EFunction::GetPdValue, kKind, static_cast<int16_t>(i)));
    const CReplay replay({}, std::move(calls));

    std::vector<std::vector<int16_t>> got(kThreads);
    std::vector<std::thread> threads;
    for (std::vector<int16_t> &values : got) {
        threads.emplace_back([&replay, &values] {
            for (int i = 0; i < kAnswersEach; ++i) {
                int16_t value = -1;
                Ask(replay, EFunction::GetPdValue, kKind, value);
                values.push_back(value);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    std::set<int16_t> all;
    for (const std::vector<int16_t> &values : got) {
        EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
        all.insert(values.begin(), values.end());
    }
    EXPECT_EQ(all.size(), std::size_t{kThreads * kAnswersEach});
}

}  // namespace
