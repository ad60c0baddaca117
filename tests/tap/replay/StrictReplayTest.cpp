// A strict replay: each function's calls come as they came, or fail.

#include <gtest/gtest.h>

#include "Vond/VondCore.h"
#include "tests/tap/replay/ReplayedCalls.h"

namespace {

constexpr uint32_t kKind = 1;
constexpr uint32_t kOtherKind = 2;
const SReplayPlan kStrict = {.file = "", .isStrict = true};

NRfTestResult_GetMixRxReportV7 Report(uint32_t goodBlocks)
{
    NRfTestResult_GetMixRxReportV7 report = {};
    report.GoodBLK = goodBlocks;
    return report;
}

TEST(StrictReplayTest, EachFunctionHasAnOrderOfItsOwn)
{
    const CReplay replay(kStrict, {Recorded(EFunction::MultiModeTestStop, kKind, SNone(), 1),
                                   Recorded(EFunction::NrTestStop, SNone(), SNone(), 2),
                                   Recorded(EFunction::MultiModeTestStop, kOtherKind, SNone(), 3)});
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), 2);
    EXPECT_EQ(Ask(replay, EFunction::MultiModeTestStop, kKind), 1);
    EXPECT_EQ(Ask(replay, EFunction::MultiModeTestStop, kOtherKind), 3);
}

TEST(StrictReplayTest, CallOutOfTurnFailsAndUsesNothingUp)
{
    const CReplay replay(kStrict, {Recorded(EFunction::MultiModeTestStop, kKind),
                                   Recorded(EFunction::MultiModeTestStop, kOtherKind)});
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(Ask(replay, EFunction::MultiModeTestStop, kOtherKind), kNoCallLikeThis);
    EXPECT_EQ(Ask(replay, EFunction::MultiModeTestStop, kKind), 0);
    EXPECT_EQ(Ask(replay, EFunction::MultiModeTestStop, kOtherKind), 0);
    EXPECT_EQ(
        ::testing::internal::GetCapturedStderr(),
        "Replay: VOND_MMRf_TestStopV7_r: no call like this in the trace; the next one, call 0, "
        "has kind multi-mode tests (1) in place of 2\n");
}

TEST(StrictReplayTest, CallBehindTheLastOneFails)
{
    const CReplay replay(kStrict, {Recorded(EFunction::NrTestStop)});
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), 0);
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), kNoCallLikeThis);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Replay: VOND_NRf_TestStop_r: no call like this in the trace; all calls of that "
              "function have come\n");
}

TEST(StrictReplayTest, ReportFetchedBeyondTheTraceIsTheLast)
{
    const CReplay replay(kStrict, {Recorded(EFunction::GetMixRxReport, SNone(), Report(5)),
                                   Recorded(EFunction::GetMixRxReport, SNone(), Report(6))});
    for (const uint32_t expected : {5u, 6u, 6u, 6u}) {
        NRfTestResult_GetMixRxReportV7 report = {};
        EXPECT_EQ(replay.Answer({.function = EFunction::GetMixRxReport,
                                 .answer = &report,
                                 .answerSize = sizeof(report)}),
                  0);
        EXPECT_EQ(report.GoodBLK, expected);
    }
}

TEST(StrictReplayTest, ReportThatWasNeverFetchedFails)
{
    const CReplay replay(kStrict, {Recorded(EFunction::NrTestStop)});
    EXPECT_EQ(Ask(replay, EFunction::GetMixRxReport), kNoCallLikeThis);
}

TEST(StrictReplayTest, CallThatHadNotComeBackIsPassedOver)
{
    STraceCall open = Recorded(EFunction::NrTestStop);
    open.isEnded = false;
    const CReplay replay(kStrict, {open, Recorded(EFunction::NrTestStop, SNone(), SNone(), 6)});
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), 6);
    EXPECT_EQ(Ask(replay, EFunction::NrTestStop), kNoCallLikeThis);
}

}  // namespace
