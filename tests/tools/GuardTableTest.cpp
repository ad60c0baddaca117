// scripts/guard.awk: counts of instructions against the checked-in ratios.
#include <gtest/gtest.h>

#include "tests/tools/Script.h"

namespace {

// The counts beside a table of two paths, at 2 and 3 times their floor.
SScriptRun Compare(const std::string &counts)
{
    const CScriptFolder folder;
    folder.Write("guard.csv", "path,ratio\nwalk,2.000\nwrite,3.000\n");
    folder.Write("counts.csv", counts);
    return folder.Run("awk -f $ROOT/scripts/guard.awk guard.csv counts.csv");
}

bool Says(const SScriptRun &run, const char *text)
{
    return run.output.find(text) != std::string::npos;
}

TEST(GuardTableTest, countsWithinATenthHold)
{
    const SScriptRun run = Compare("walk,21900,10000\nwrite,27100,10000\n");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(Says(run, "+9.5%")) << run.output;
    EXPECT_FALSE(Says(run, "grown")) << run.output;
    EXPECT_FALSE(Says(run, "renewed")) << run.output;
}

TEST(GuardTableTest, aPathThatHasGrownFailsAndIsNamed)
{
    const SScriptRun run = Compare("walk,20000,10000\nwrite,33300,10000\n");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Says(run, "write has grown by 11.0 %: 3.330 times its floor, 3.000 in the table."))
        << run.output;
    EXPECT_FALSE(Says(run, "walk has")) << run.output;
}

TEST(GuardTableTest, aPathThatHasFallenAsksForANewTable)
{
    const SScriptRun run = Compare("walk,17000,10000\nwrite,30000,10000\n");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(Says(run, "walk has fallen by 15.0 %; the table should be renewed")) << run.output;
}

TEST(GuardTableTest, aPathMissingOnEitherSideFails)
{
    const SScriptRun run = Compare("walk,20000,10000\nread,30000,10000\n");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Says(run, "read is not in the table")) << run.output;
    EXPECT_TRUE(Says(run, "write is in the table and was not counted.")) << run.output;
}

TEST(GuardTableTest, countsOfNothingFail)
{
    EXPECT_EQ(Compare("").exitCode, 1);
    EXPECT_EQ(Compare("walk,20000,0\nwrite,30000,10000\n").exitCode, 1);
}

TEST(GuardTableTest, badArgumentsSayTheUsageAndEndWithTwo)
{
    const SScriptRun run = CScriptFolder().Run("bash $ROOT/scripts/guard.sh --new 2>&1");
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(Says(run, "usage: scripts/guard.sh [--renew]")) << run.output;
}

}  // namespace
