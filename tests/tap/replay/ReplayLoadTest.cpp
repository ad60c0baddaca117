// From the environment and a file to the first answer.

#include <chrono>
#include <cstdio>
#include <fstream>
#include <map>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/tap/replay/ReplayedCalls.h"

namespace {

const char kGoodTrace[] =
    R"({"vondTrace":1,"tool":"0.1","time":"2026-11-22T12:30:00Z","core":"","coreBuildId":"","app":"","appBuildId":""}
{"begin":0,"function":"VOND_MMRf_GetPdValueV7_r","thread":1,"pid":1,"startNs":0}
{"index":0,"function":"VOND_MMRf_GetPdValueV7_r","handle":1,"timeout":10000,"request":"01000000","answer":"00f6","result":0,"text":"OK","status":0,"durationNs":81000}
)";

class ReplayLoadTest : public ::testing::Test
{
protected:
    ~ReplayLoadTest() override { std::remove(m_file.c_str()); }

    void Write(const std::string &text) { std::ofstream(m_file) << text; }

    SReplayPlan Plan(std::map<std::string, std::string> variables = {})
    {
        variables.try_emplace("VOND_TAP_FILE", m_file);
        return ReplayPlanOf([&](const char *name) {
            const auto found = variables.find(name);
            return found != variables.end() ? found->second.c_str() : nullptr;
        });
    }

    // The line of a replay that cannot be, which then answers nothing.
    std::string TroubleOf(const SReplayPlan &plan)
    {
        ::testing::internal::CaptureStderr();
        const CReplay replay(plan);
        EXPECT_EQ(Ask(replay, EFunction::NrTestStop), kTraceUnusable);
        EXPECT_EQ(Ask(replay, EFunction::ModemActiveIndex), kTraceUnusable);
        EXPECT_EQ(TextOf(replay, kTraceUnusable), "Replay: the trace cannot be used");
        EXPECT_EQ(replay.AnswerText(Asked(EFunction::NrChipName, uint32_t{1})), nullptr);
        return ::testing::internal::GetCapturedStderr();
    }

    const std::string m_file =
        ::testing::TempDir() + "replay-" + std::to_string(getpid()) + ".jsonl";
};

TEST_F(ReplayLoadTest, AnswersFromTheFile)
{
    Write(kGoodTrace);
    const CReplay replay(Plan());
    int16_t value = 0;
    EXPECT_EQ(Ask(replay, EFunction::GetPdValue, uint32_t{1}, value), 0);
    EXPECT_EQ(value, -2560);
    EXPECT_EQ(TextOf(replay, 0), "OK");
}

TEST_F(ReplayLoadTest, DamagedTraceIsRefusedWithFileLineAndReason)
{
    Write(std::string(kGoodTrace) + "{\"index\":\n");
    EXPECT_EQ(TroubleOf(Plan()),
              "Replay: the trace cannot be used: " + m_file + ":4: is no JSON at byte 10\n");
    Write(std::string(kGoodTrace, sizeof(kGoodTrace) - 2));
    EXPECT_EQ(TroubleOf(Plan()),
              "Replay: the trace cannot be used: " + m_file + ":3: is cut: it has no line end\n");
}

TEST_F(ReplayLoadTest, MissingTraceIsRefused)
{
    EXPECT_EQ(TroubleOf(Plan()),
              "Replay: the trace cannot be used: " + m_file + ": No such file or directory\n");
    EXPECT_EQ(TroubleOf(Plan({{"VOND_TAP_FILE", ""}})),
              "Replay: the trace cannot be used: VOND_TAP_FILE names no trace\n");
}

TEST_F(ReplayLoadTest, VariableWithAnotherWordIsRefused)
{
    Write(kGoodTrace);
    EXPECT_EQ(TroubleOf(Plan({{"VOND_TAP_MATCH", "Strict"}})),
              "Replay: the trace cannot be used: VOND_TAP_MATCH is neither loose nor strict: "
              "Strict\n");
    EXPECT_EQ(TroubleOf(Plan({{"VOND_TAP_TIME", "1"}})),
              "Replay: the trace cannot be used: VOND_TAP_TIME is neither none nor real: 1\n");
}

TEST_F(ReplayLoadTest, VariablesChooseStrictAndRealTime)
{
    EXPECT_FALSE(Plan().isStrict);
    EXPECT_FALSE(Plan().isRealTime);
    EXPECT_FALSE(Plan({{"VOND_TAP_MATCH", "loose"}, {"VOND_TAP_TIME", "none"}}).isStrict);
    EXPECT_TRUE(Plan({{"VOND_TAP_MATCH", "strict"}}).isStrict);
    EXPECT_TRUE(Plan({{"VOND_TAP_TIME", "real"}}).isRealTime);
}

TEST_F(ReplayLoadTest, AnswerInRealTimeIsAsLateAsItWas)
{
    using Clock = std::chrono::steady_clock;
    STraceCall call = Recorded(EFunction::NrTestStop);
    call.durationNs = 40'000'000;
    for (const bool isRealTime : {false, true}) {
        const CReplay replay({.file = "", .isRealTime = isRealTime}, {call});
        const Clock::time_point start = Clock::now();
        Ask(replay, EFunction::NrTestStop);
        const auto duration = Clock::now() - start;
        if (isRealTime)
            EXPECT_GE(duration, std::chrono::nanoseconds(call.durationNs));
        else
            EXPECT_LT(duration, std::chrono::nanoseconds(call.durationNs));
    }
}

TEST_F(ReplayLoadTest, ChildOfAForkGoesOnWhereItsParentWas)
{
    const uint32_t kind = 1;
    const CReplay replay({}, {Recorded(EFunction::MultiModeTestStop, kind, SNone(), 1),
                              Recorded(EFunction::MultiModeTestStop, kind, SNone(), 2),
                              Recorded(EFunction::MultiModeTestStop, kind, SNone(), 3)});
    Ask(replay, EFunction::MultiModeTestStop, kind);
    const pid_t child = fork();
    if (child == 0)
        _exit(Ask(replay, EFunction::MultiModeTestStop, kind));
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 2);
    EXPECT_EQ(Ask(replay, EFunction::MultiModeTestStop, kind), 2);
}

}  // namespace
