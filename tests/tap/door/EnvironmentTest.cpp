// What the variables of the environment ask for.
#include "tests/tap/door/TapRun.h"

namespace {

class TapEnvironmentTest : public CTapRun
{
protected:
    SRan Calls(const Words &environment) const
    {
        return Run("TapHost", {"many", "3"}, environment);
    }
};

TEST_F(TapEnvironmentTest, RecordNeedsAFile)
{
    for (const Words &environment :
         {Words{"VOND_TAP=record"}, Words{"VOND_TAP=record", "VOND_TAP_FILE="}}) {
        const SRan ran = Calls(environment);
        EXPECT_EQ(ran.out, "0\n1\n2\n");
        EXPECT_EQ(ran.errors, "VondTap: VOND_TAP_FILE names no file; nothing is recorded\n");
    }
}

TEST_F(TapEnvironmentTest, UnknownModePassesThrough)
{
    const SRan ran = Calls({"VOND_TAP=rekord", "VOND_TAP_FILE=" + TracePath()});
    EXPECT_EQ(ran.out, "0\n1\n2\n");
    EXPECT_EQ(ran.errors,
              "VondTap: VOND_TAP is neither record nor replay, but 'rekord'; all calls pass "
              "through\n");
    EXPECT_EQ(TextOfFile(TracePath()), "");
}

TEST_F(TapEnvironmentTest, ReplayAnswersWithoutThePair)
{
    Record("TapHost", {"calls"});
    const SRan bare = Run("TapHost", {"calls"}, {}, "");
    const SRan replayed = Run("TapHost", {"calls"},
                              {"VOND_TAP=replay", "VOND_TAP_FILE=" + TracePath(),
                               "VOND_TAP_MATCH=strict", "VOND_TAP_OUT=" + Folder() + "/again"});
    EXPECT_EQ(replayed.exitCode, 0);
    EXPECT_EQ(replayed.errors, "");
    const STrace first = Trace();
    const STrace again = ReadTrace(Folder() + "/again", ECutLine::Refused);
    ASSERT_EQ(again.calls.size(), first.calls.size());
    for (std::size_t i = 0; i < first.calls.size(); ++i) {
        EXPECT_EQ(again.calls[i].request, first.calls[i].request) << i;
        EXPECT_EQ(again.calls[i].answer, first.calls[i].answer) << i;
        EXPECT_EQ(again.calls[i].result, first.calls[i].result) << i;
        EXPECT_EQ(again.calls[i].text, first.calls[i].text) << i;
        EXPECT_EQ(again.calls[i].status, first.calls[i].status) << i;
    }
    // The errno of a call is no part of a trace, so the lines are compared without it.
    EXPECT_EQ(replayed.out.size(), bare.out.size() - 1);
}

TEST_F(TapEnvironmentTest, ReplayDoesNotWriteOverItsTrace)
{
    Record("TapHost", {"many", "3"});
    const std::string text = TextOfFile(TracePath());
    const SRan ran = Calls({"VOND_TAP=replay", "VOND_TAP_FILE=" + TracePath(),
                            "VOND_TAP_OUT=" + Folder() + "/../" +
                                Folder().substr(Folder().rfind('/') + 1) + "/run.jsonl"});
    EXPECT_EQ(ran.out, "0\n1\n2\n");
    EXPECT_EQ(ran.errors,
              "VondTap: VOND_TAP_OUT is the trace that is played back; nothing is written\n");
    EXPECT_EQ(TextOfFile(TracePath()), text);
}

TEST_F(TapEnvironmentTest, DamagedTraceFailsEveryCall)
{
    const SRan ran = Calls({"VOND_TAP=replay", "VOND_TAP_FILE=/dev/null"});
    EXPECT_EQ(ran.exitCode, 1);
    EXPECT_NE(ran.errors.find("/dev/null"), std::string::npos) << ran.errors;
}

}  // namespace
