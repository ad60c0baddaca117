// Recordings that can't be written, and hosts that are killed in the middle of it.
#include <csignal>
#include <sstream>

#include <sys/resource.h>

#include "tests/tap/door/TapRun.h"

namespace {

class TroubleTest : public CTapRun
{
protected:
    SRan RunInTrouble(const std::string &trouble, int at) const
    {
        return Run("TapHost", {"many", "10"},
                   {"VOND_TAP=record", "VOND_TAP_FILE=" + TracePath(), "TROUBLE=" + trouble,
                    "TROUBLE_AT=" + std::to_string(at)},
                   FilePath("libTroubleWriting.so") + ":" + TapPreload());
    }
    static std::size_t CountLines(const std::string &text)
    {
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    }
};

constexpr int kLines = 1 + 2 * 10;  // the header, and two for each call

std::string TenNumbers()
{
    return "0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n";
}

TEST_F(TroubleTest, KilledAtAnyWriteTheTraceHasWholeLines)
{
    for (int at = 1; at <= kLines; ++at) {
        for (const bool isBefore : {true, false}) {
            const SRan ran = RunInTrouble(isBefore ? "kill-before" : "kill-behind", at);
            EXPECT_EQ(ran.signal, SIGKILL);
            const std::string text = TextOfFile(TracePath());
            EXPECT_EQ(CountLines(text), static_cast<std::size_t>(isBefore ? at - 1 : at));
            if (text.empty())
                continue;
            EXPECT_EQ(text.back(), '\n');
            const STrace trace = Trace();
            EXPECT_EQ(trace.calls.size(), CountLines(text) / 2);
            // What the host was told is on record.
            EXPECT_LE(CountLines(ran.out), trace.calls.size());
        }
    }
}

TEST_F(TroubleTest, DiskThatGetsFullAtAnyWriteLeavesWholeLines)
{
    for (int at = 1; at <= kLines; ++at) {
        const SRan ran = RunInTrouble("full", at);
        EXPECT_EQ(ran.exitCode, 0);
        EXPECT_EQ(ran.out, TenNumbers());
        EXPECT_EQ(ran.errors, "VondTap: trace " + TracePath() +
                                  " ends here, the calls go on: No space left on device\n");
        const std::string text = TextOfFile(TracePath());
        EXPECT_EQ(CountLines(text), static_cast<std::size_t>(at - 1));
        if (!text.empty()) {
            EXPECT_EQ(Trace().calls.size(), static_cast<std::size_t>(at - 1) / 2);
        }
    }
}

TEST_F(TroubleTest, FullDeviceIsToldOnce)
{
    const SRan ran = Run("TapHost", {"many", "10"}, {"VOND_TAP=record", "VOND_TAP_FILE=/dev/full"});
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_EQ(ran.out, TenNumbers());
    EXPECT_EQ(ran.errors,
              "VondTap: trace /dev/full ends here, the calls go on: No space left on device\n");
}

TEST_F(TroubleTest, LimitOfTheFileSizeKillsNoHost)
{
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit = {20000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    const SRan ran = Record("TapHost", {"calls"});
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_EQ(ran.errors,
              "VondTap: trace " + TracePath() + " ends here, the calls go on: File too large\n");
    const STrace trace = Trace();
    EXPECT_GT(trace.calls.size(), 5u);
    EXPECT_LT(TextOfFile(TracePath()).size(), 20000u);
}

TEST_F(TroubleTest, FileThatCannotBeOpenedIsToldOnce)
{
    const SRan ran =
        Run("TapHost", {"many", "10"}, {"VOND_TAP=record", "VOND_TAP_FILE=/nowhere/run.jsonl"});
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_EQ(ran.out, TenNumbers());
    EXPECT_EQ(ran.errors,
              "VondTap: trace /nowhere/run.jsonl can't be opened: No such file or directory\n");
}

}  // namespace
