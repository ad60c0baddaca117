// tools/bench.sh --against: its arguments, and the rows of its table.
#include <sstream>
#include <vector>

#include <gtest/gtest.h>

#include "tests/tools/Script.h"

namespace {

struct SLine
{
    const char *name;
    double time;
    const char *unit;
};

// As Google Benchmark writes its file, as far as the script reads it.
std::string Results(const std::vector<SLine> &lines)
{
    std::ostringstream text;
    text << "{\n  \"context\": {\n    \"num_cpus\": 2\n  },\n  \"benchmarks\": [\n";
    for (const SLine &line : lines) {
        text << "    {\n      \"name\": \"" << line.name
             << "\",\n      \"run_type\": \"iteration\",\n"
             << "      \"real_time\": " << line.time << ",\n      \"cpu_time\": 1.0e+00,\n"
             << "      \"time_unit\": \"" << line.unit << "\"\n    },\n";
    }
    text << "  ]\n}\n";
    return text.str();
}

constexpr char kTable[] = "awk -f $ROOT/tools/bench-against.awk X.old.*.json X.new.*.json";

TEST(BenchAgainstTest, rowHasTheMedianOfTheRoundsAndTheirEnds)
{
    const CScriptFolder folder;
    const double before[] = {10, 20, 10};
    const double after[] = {12, 20, 9};
    for (int round = 0; round < 3; ++round) {
        const std::string end = '.' + std::to_string(round + 1) + ".json";
        folder.Write("X.old" + end, Results({{"Walk/8", before[round], "us"}}));
        folder.Write("X.new" + end, Results({{"Walk/8", after[round], "us"}}));
    }
    EXPECT_EQ(folder.Run(kTable).output, "| X | Walk/8 | 0.01 | 0.012 | 1.000 | 0.900 | 1.200 |\n");
}

TEST(BenchAgainstTest, anEvenNumberOfRoundsHasItsMedianBetweenTheTwo)
{
    const CScriptFolder folder;
    folder.Write("X.old.1.json", Results({{"Walk", 10, "ms"}}));
    folder.Write("X.old.2.json", Results({{"Walk", 10, "ms"}}));
    folder.Write("X.new.1.json", Results({{"Walk", 30, "ms"}}));
    folder.Write("X.new.2.json", Results({{"Walk", 10, "ms"}}));
    EXPECT_EQ(folder.Run(kTable).output, "| X | Walk | 10 | 20 | 2.000 | 1.000 | 3.000 |\n");
}

TEST(BenchAgainstTest, timesOfOtherUnitsAndOtherCountsOfTurnsAreOneLine)
{
    const CScriptFolder folder;
    folder.Write("X.old.1.json", Results({{"Walk/iterations:25", 2000, "us"}}));
    folder.Write("X.new.1.json", Results({{"Walk/iterations:50", 1, "ms"}}));
    EXPECT_EQ(folder.Run(kTable).output, "| X | Walk | 2 | 1 | 0.500 | 0.500 | 0.500 |\n");
}

TEST(BenchAgainstTest, aLineOfOneBuildSaysSo)
{
    const CScriptFolder folder;
    folder.Write("X.old.1.json", Results({{"Gone", 5, "ms"}, {"Both", 1, "ms"}}));
    folder.Write("X.new.1.json", Results({{"Both", 1, "ms"}, {"Come", 7, "ms"}}));
    EXPECT_EQ(folder.Run(kTable).output, "| X | Gone | 5 | | only old | | |\n"
                                         "| X | Both | 1 | 1 | 1.000 | 1.000 | 1.000 |\n"
                                         "| X | Come | | 7 | only new | | |\n");
}

TEST(BenchAgainstTest, aLineThatFailedInARoundHasTheOtherRounds)
{
    const CScriptFolder folder;
    folder.Write("X.old.1.json", Results({{"Walk", 10, "ms"}}));
    folder.Write("X.old.2.json", Results({{"Walk", 0, "ms"}}));
    folder.Write("X.new.1.json", Results({{"Walk", 11, "ms"}}));
    folder.Write("X.new.2.json", Results({{"Walk", 50, "ms"}}));
    EXPECT_EQ(folder.Run(kTable).output, "| X | Walk | 10 | 30.5 | 1.100 | 1.100 | 1.100 |\n");
}

TEST(BenchAgainstTest, badArgumentsSayTheUsageAndEndWithTwo)
{
    const CScriptFolder folder;
    for (const char *arguments :
         {"--against", "--against .", "--faster", "NoSuchBench", "--rounds 3",
          "--against . --rounds 0", "--against . --rounds many"}) {
        const SScriptRun run =
            folder.Run(std::string("bash $ROOT/tools/bench.sh ") + arguments + " 2>&1 >/dev/null");
        EXPECT_EQ(run.exitCode, 2) << arguments;
        EXPECT_NE(run.output.find("usage: tools/bench.sh [--against BUILD [--rounds N]]"),
                  std::string::npos)
            << arguments;
    }
}

}  // namespace
