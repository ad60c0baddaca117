// tools/mutants: a program with mutants in it, one of which is alive at a time.
#include <gtest/gtest.h>

#include "tests/tools/Script.h"

namespace {

constexpr char kProgram[] = R"(
static int Sum(int count)
{
    int sum = 0;
    for (int i = 0; i < count; ++i) {
        sum += i;
    }
    return sum;
}

int main()
{
    return Sum(4) == 6 && Sum(0) == 0 ? 0 : 1;
}
)";

// What a command says and how it ends where ./program holds the one mutant that the list shows so.
SScriptRun RunWith(const std::string &mutant, const std::string &command)
{
    const CScriptFolder folder;
    folder.Write("sum.cpp", kProgram);
    return folder.Run(
        "weave=\"python3 -B $ROOT/tools/mutants/weave.py sum.cpp\"\n"
        "number=$($weave | grep -F '" +
        mutant +
        "' | cut -d ' ' -f 1)\n"
        "$weave $number >woven.cpp && c++ -std=c++20 -I $ROOT woven.cpp -o program\n" +
        command);
}

TEST(MutantTest, aMutantThatChangesTheSumIsNoticed)
{
    EXPECT_EQ(
        RunWith("relation i < count > i <= count", "QUORLIN_MUTANT=$number ./program").exitCode, 1);
    EXPECT_EQ(
        RunWith("arithmetic sum += i > sum -= i", "QUORLIN_MUTANT=$number ./program").exitCode, 1);
}

TEST(MutantTest, anEquivalentMutantIsNotNoticed)
{
    // The sum from 1 on is that from 0 on.
    const SScriptRun run = RunWith("line 5 constant 0 >", "QUORLIN_MUTANT=$number ./program");
    EXPECT_EQ(run.exitCode, 0) << run.output;
}

TEST(MutantTest, aMutantThatIsReachedIsWrittenDownAndDoesNothing)
{
    const SScriptRun run =
        RunWith("relation i < count > i <= count",
                "QUORLIN_REACHED=reached ./program && test \"$(cat reached)\" = \"$number\"");
    EXPECT_EQ(run.exitCode, 0) << run.output;
}

}  // namespace
