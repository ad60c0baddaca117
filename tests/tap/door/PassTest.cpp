// What a host notices of the tap when nothing is asked of it: nothing.
#include "tests/tap/door/TapRun.h"

namespace {

class PassTest : public CTapRun
{
};

TEST_F(PassTest, CallsComeOutAsWithoutTheTap)
{
    const SRan bare = Run("TapHost", {"calls"}, {}, "");
    const SRan tapped = Run("TapHost", {"calls"});
    EXPECT_EQ(bare.exitCode, 0) << bare.errors;
    EXPECT_EQ(tapped.exitCode, 0);
    EXPECT_EQ(tapped.errors, "");
    EXPECT_EQ(tapped.out, bare.out);
    EXPECT_NE(bare.out.find("VOND_MMRf_SetCalDataV7_r 0 "), std::string::npos) << bare.out;
}

TEST_F(PassTest, PairOfAPluginIsFoundAndUnloadedWithIt)
{
    const SRan bare = Run("TapLoader", {FilePath("libTapPlugin.so")}, {}, "");
    const SRan tapped = Run("TapLoader", {FilePath("libTapPlugin.so")});
    EXPECT_EQ(bare.out, "2 4\n2 4\n2 4\n") << bare.errors;
    EXPECT_EQ(tapped.errors, "");
    EXPECT_EQ(tapped.out, bare.out);
}

TEST_F(PassTest, ProgramWithoutAPairRuns)
{
    const SRan ran = Run("TapLoader", {});
    EXPECT_EQ(ran.exitCode, 99);
    EXPECT_EQ(ran.errors, "");
}

}  // namespace
