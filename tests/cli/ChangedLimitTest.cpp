// A recording on a DUT and one on a DUT with one limit changed differ in what hangs on the limit, and in
// nothing else.

#include <set>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/cli/CliFolder.h"

namespace {

using nlohmann::json;

// The handset, but route 106 of n78 ends at 3.5 GHz.
const std::string kChanged = R"({
    "name": "handset-changed", "base": "handset",
    "rxLimits": [
        {"band": 28, "route": 8, "kHz": [758000, 788000]},
        {"band": 41, "route": 10, "kHz": [2515000, 2675000]},
        {"band": 78, "route": 14, "kHz": [3400000, 3600000]},
        {"band": 78, "route": 106, "kHz": [3400000, 3500000]},
        {"band": 1, "route": 1, "kHz": [1920000, 2170000]}]})";

void Record(const CCliFolder &folder, const std::string &profile, const std::string &trace)
{
    const SCliRun run =
        folder.Shell("VOND_SIM_PROFILE=" + profile + " VOND_TAP=record VOND_TAP_FILE=" + trace +
                     " LD_PRELOAD='" FIRST_PRELOAD " " TAP_LIBRARY "' $BIN/SessionHost");
    ASSERT_EQ(run.exitCode, 0);
    ASSERT_EQ(run.err, "");
}

// Function and names, a call a line.
std::set<std::string> Differences(const json &diff)
{
    std::set<std::string> lines;
    for (const json &call : diff.at("calls")) {
        std::string line =
            std::to_string(call.at("a").get<int>()) + "/" + std::to_string(call.at("b").get<int>());
        for (const json &field : call.at("fields"))
            line += " " + field.at("name").get<std::string>() + "=" +
                    field.at("a").get<std::string>() + "|" + field.at("b").get<std::string>();
        lines.insert(line);
    }
    return lines;
}

TEST(ChangedLimitTest, DiffNamesExactlyTheCallsAndFieldsThatDiffer)
{
    const CCliFolder folder;
    folder.Write("changed.json", kChanged);
    Record(folder, "handset", "a.jsonl");
    Record(folder, "changed.json", "b.jsonl");
    const SCliRun run = folder.Run("trace diff a.jsonl b.jsonl --ignore readings --json");
    EXPECT_EQ(run.exitCode, 1);
    const json diff = json::parse(run.out);
    EXPECT_EQ(Differences(diff),
              (std::set<std::string>{"1/1 answer.freqRange.rx.high[3]=3600000 kHz|3500000 kHz",
                                     "5/5 answer.dlFrequency[0]=3550020 kHz|0 kHz"
                                     " answer.rows.simultaneous.divG=6|0"
                                     " answer.rows.simultaneous.path0Divg=2|0"
                                     " answer.rows.simultaneous.path1Maing=2|0"
                                     " answer.rows.simultaneous.path1Divg=2|0"
                                     " result=0|14"
                                     " text=Success|Target: frequency is out of limits"}));
    EXPECT_EQ(diff.at("sameCalls"), 6);
}

TEST(ChangedLimitTest, TwoRecordingsOfOneDutDifferInNothingButReadings)
{
    const CCliFolder folder;
    Record(folder, "handset", "a.jsonl");
    Record(folder, "handset", "b.jsonl");
    const SCliRun run = folder.Run("trace diff a.jsonl b.jsonl --ignore readings");
    EXPECT_EQ(run.out, "No difference in 8 calls\n");
    EXPECT_EQ(run.exitCode, 0);
}

}  // namespace
