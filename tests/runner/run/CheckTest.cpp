// Broken plans that only the tool can tell: each file ends with the errors that --check must give, one a
// comment line "#! line:column: what". The DUT is the handset.
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/runner/run/RunFiles.h"

namespace {

std::string FileText(const std::string &path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> LinesThatBegin(const std::string &text, const std::string &with)
{
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        if (line.rfind(with, 0) == 0)
            lines.push_back(line.substr(with.size()));
    return lines;
}

}  // namespace

TEST(CheckTest, allErrorsOfAllStepsAreToldWithTheirPlacesAndNothingStarts)
{
    int plans = 0;
    const CCliFolder folder;
    std::filesystem::copy(BROKEN_PLANS, folder.Path("broken"));
    for (const auto &entry : std::filesystem::directory_iterator(BROKEN_PLANS)) {
        const std::string name = "broken/" + entry.path().filename().string();
        const SCliRun run =
            folder.Shell("VOND_SIM_JOURNAL=j.jsonl $QUORLIN run --check --profile handset " + name);
        EXPECT_EQ(run.exitCode, 2) << name;
        EXPECT_EQ(LinesThatBegin(run.err, name + ":"),
                  LinesThatBegin(FileText(entry.path()), "#! "))
            << name;
        if (!std::filesystem::exists(folder.Path("j.jsonl")))
            continue;
        for (const SJournalEntry &call : JournalEntries(folder.Path("j.jsonl")))
            EXPECT_TRUE(call.function.find("Get") != std::string::npos ||
                        call.function.find("Query") != std::string::npos)
                << name << ": " << call.function;
        ++plans;
    }
    EXPECT_GE(plans, 25);
}

TEST(CheckTest, aPlanThatTransmitsAndWritesIsCheckedWithoutLeaveToDoSo)
{
    const CCliFolder folder;
    folder.Write("plan.yaml", "quorlin: 1\nplan: P\ntransmit: {max_dbm: 10}\nsteps:\n"
                              "  - step: a\n    page: Single Tone TX\n"
                              "    set: {txPowerValue: 10}\n    press: [Start]\n    then: [Stop]\n"
                              "  - step: b\n    page: APT Profile\n    press: [Read, Write]\n");
    const SCliRun check =
        folder.Shell("VOND_SIM_JOURNAL=j.jsonl $QUORLIN run --check --profile handset plan.yaml");
    EXPECT_EQ(check.exitCode, 0) << check.err;
    for (const SJournalEntry &call : JournalEntries(folder.Path("j.jsonl")))
        EXPECT_TRUE(call.function.find("Tx") == std::string::npos &&
                    call.function.find("SetCal") == std::string::npos)
            << call.function;
    EXPECT_EQ(folder.Shell("$QUORLIN run --profile handset plan.yaml").exitCode, 2);
}

TEST(CheckTest, aGoodPlanHasNothingToTellAndLeavesNothing)
{
    const CCliFolder folder;
    folder.Write("plan.yaml", "quorlin: 1\nplan: P\nsteps:\n  - step: a\n    page: RSSI\n"
                              "    press: [Start]\n");
    const SCliRun run = folder.Shell("$QUORLIN run --check plan.yaml && ls");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "plan.yaml\n");
}
