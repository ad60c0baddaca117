// tools/coverage.py: lines and branches by folder.
#include <gtest/gtest.h>

#include "tests/tools/Script.h"

namespace {

// A function of six lines that ran twice, but for its lines 4 and 5; its condition on line 2 was true alone.
// Beside it a header of the system.
constexpr char kExport[] = R"(
printf '{"data": [{"files": [
    {"filename": "%s/Vond/VondCore.h",
     "segments": [[1,1,2,true,true,false], [3,5,0,true,true,false], [5,1,2,true,false,false],
                  [6,2,0,false,false,false]],
     "branches": [[2,1,2,4,2,0,0,0,4]]},
    {"filename": "/usr/include/string.h", "segments": [[1,1,0,true,true,false]], "branches": []}
]}]}' "$ROOT" >all.json
)";

TEST(CoverageTableTest, linesAndBranchesOfAFolderAreCounted)
{
    const SScriptRun run = CScriptFolder().Run(
        std::string(kExport) +
        "python3 -B $ROOT/tools/coverage.py all.json --uncovered uncovered.txt\n"
        "cut -d : -f 1-3 uncovered.txt");
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "| Folder | Lines | run | Branches | run |\n"
                          "|---|---:|---:|---:|---:|\n"
                          "| Vond | 6 | 66.7 % | 2 | 50.0 % |\n"
                          "| all | 6 | 66.7 % | 2 | 50.0 % |\n"
                          "Vond/VondCore.h:2: never false\n"
                          "Vond/VondCore.h:4: no run\n"
                          "Vond/VondCore.h:5: no run\n");
}

TEST(CoverageTableTest, fewerLinesOrBranchesThanTheLeastFail)
{
    const SScriptRun run = CScriptFolder().Run(
        std::string(kExport) + "count() { python3 -B $ROOT/tools/coverage.py all.json --uncovered "
                               "uncovered.txt $@ 2>&1 >table.txt; }\n"
                               "count --least-lines 66.6 --least-branches 50; echo $?\n"
                               "count --least-lines 66.7 --least-branches 50; echo $?\n"
                               "count --least-branches 50.5; echo $?");
    EXPECT_EQ(run.output, "0\n"
                          "66.67 % of all lines ran; 66.7 % is the least.\n"
                          "1\n"
                          "50.00 % of all branches ran; 50.5 % is the least.\n"
                          "1\n");
}

// A function of two lines of the file a.h, the first this one, that never ran.
std::string ExportOfOneFunction(int line)
{
    const std::string at = std::to_string(line);
    const std::string behind = std::to_string(line + 1);
    return R"(printf '{"data": [{"functions": [{"count": 0, "filenames": ["%s/a.h"], "regions": [[)" +
           at + ",1," + std::to_string(line + 1) +
           R"(,2,0,0,0,0]]}], "files": [{"filename": "%s/a.h", "segments": [[)" + at +
           ",1,0,true,true,false], [" + behind +
           R"(,2,0,false,false,false]], "branches": []}]}]}' "$PWD" "$PWD" >all.json
)";
}

TEST(CoverageTableTest, functionsThatOnlyTheCompilerRanCountForNothing)
{
    const std::string script = "mkdir tools; cp $ROOT/tools/coverage.py tools\n"
                               "printf 'int constexpr_none;\\nint Plain()\\n{\\n}\\nconstexpr int "
                               "Table()\\n{\\n}\\n' >a.h\n";
    const auto uncovered = [&](int line) {
        return CScriptFolder()
            .Run(script + ExportOfOneFunction(line) +
                 "python3 -B tools/coverage.py all.json --uncovered uncovered.txt >table.txt\n"
                 "cut -d : -f 1-3 uncovered.txt")
            .output;
    };
    EXPECT_EQ(uncovered(3), "a.h:3: no run\na.h:4: no run\n");
    EXPECT_EQ(uncovered(6), "");
}

}  // namespace
