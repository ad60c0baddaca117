// What "trace diff" compares and prints.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/cli/CliFolder.h"
#include "tests/cli/TraceText.h"

namespace {

using nlohmann::json;

const SCallText kPdValue = {.index = 0,
                            .function = "VOND_MMRf_GetPdValueV7_r",
                            .request = "\"01000000\"",
                            .answer = "\"00f6\""};
const SCallText kDlFreq = {.index = 1,
                           .function = "VOND_NRf_GetDlFreqV7_r",
                           .request = "\"4e0000006054340000000000\"",
                           .answer = "\"0000000060ae0a00\""};
const SCallText kStop = {.index = 2, .function = "VOND_NRf_TestStop_r"};

SCallText With(SCallText call, int index)
{
    call.index = index;
    return call;
}

std::string Plain()
{
    return TraceHeaderLine() + CallLines(kPdValue) + CallLines(kDlFreq) + CallLines(kStop);
}

// The same calls, with another reading, limit, handle and duration, and one call more in front.
std::string Other()
{
    SCallText reading = With(kPdValue, 1);
    reading.answer = "\"80f6\"";
    SCallText limit = With(kDlFreq, 2);
    limit.request = "\"4d0000006054340000000000\"";
    limit.answer = "\"0100000000000000\"";
    limit.result = 14;
    limit.text = "Frequency";
    SCallText handle = With(kStop, 3);
    handle.handle = 7;
    handle.durationNs = 9;
    return TraceHeaderLine() + NoteLine("a note is not compared") + CallLines(With(kStop, 0)) +
           CallLines(reading) + CallLines(limit) + CallLines(handle);
}

SCliRun Diff(const std::string &one, const std::string &other, const std::string &options = "")
{
    const CCliFolder folder;
    folder.Write("a.jsonl", one);
    folder.Write("b.jsonl", other);
    return folder.Run("trace diff a.jsonl b.jsonl " + options);
}

const std::string kHeads = "A  a.jsonl: of 2026-11-22T12:30:00Z, by Quorlin RF 0.1, with "
                           "libVondCore.so (5a1c) and libVondApp.so\n"
                           "B  b.jsonl: of 2026-11-22T12:30:00Z, by Quorlin RF 0.1, with "
                           "libVondCore.so (5a1c) and libVondApp.so\n";

TEST(DiffTest, TraceIsTheSameAsItself)
{
    const SCliRun run = Diff(Plain(), Plain(), "--timing");
    EXPECT_EQ(run.out, "No difference in 3 calls\n");
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.exitCode, 0);
}

TEST(DiffTest, CallsAndFieldsThatDifferAreNamedWithBothValues)
{
    const SCliRun run = Diff(Plain(), Other());
    EXPECT_EQ(run.out,
              kHeads + "\n"
                       "B #0 alone  VOND_NRf_TestStop_r\n"
                       "A #0, B #1  VOND_MMRf_GetPdValueV7_r\n"
                       "    answer.value  -10 dBm  |  -9.5 dBm\n"
                       "A #1, B #2  VOND_NRf_GetDlFreqV7_r\n"
                       "    request.band        n78  |  n77\n"
                       "    answer.status       success (0)  |  frequency is on no NR-ARFCN (1)\n"
                       "    answer.dlFrequency  700000 kHz  |  0 kHz\n"
                       "    result              0  |  14\n"
                       "    text                Success  |  Frequency\n"
                       "A #2, B #3  VOND_NRf_TestStop_r\n"
                       "    handle  1  |  7\n"
                       "\n"
                       "3 calls with differences, 0 in A alone, 1 in B alone, 0 the same\n");
    EXPECT_EQ(run.exitCode, 1);
}

TEST(DiffTest, StatusThatDiffersIsNamedWithBothWords)
{
    SCallText pusch = kStop;
    pusch.function = "VOND_NRf_PuschTxV7_r";
    SCallText refused = pusch;
    refused.status = 1;
    const SCliRun run =
        Diff(TraceHeaderLine() + CallLines(pusch), TraceHeaderLine() + CallLines(refused));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.out.find("frequency is on no NR-ARFCN (1)"), std::string::npos) << run.out;
}

TEST(DiffTest, IgnoredFieldsAndReadingsAreNoDifference)
{
    const std::string fields = "--ignore request.band --ignore dlFrequency --ignore status "
                               "--ignore result --ignore text --ignore handle";
    const SCliRun run = Diff(Plain(), Other(), "--ignore readings " + fields);
    EXPECT_EQ(run.out, kHeads +
                           "\n"
                           "B #0 alone  VOND_NRf_TestStop_r\n"
                           "\n"
                           "0 calls with differences, 0 in A alone, 1 in B alone, 3 the same\n");
    EXPECT_EQ(run.exitCode, 1);
    const SCliRun readings = Diff(Plain(), Other(), fields);
    EXPECT_NE(readings.out.find("answer.value"), std::string::npos);
}

TEST(DiffTest, NameOfNoFieldIsTrouble)
{
    const SCliRun run = Diff(Plain(), Plain(), "--ignore dlFreqency");
    EXPECT_EQ(run.err, "quorlin: --ignore: no field is named \"dlFreqency\"\n");
    EXPECT_EQ(run.exitCode, 2);
}

TEST(DiffTest, HeaderTimesAndThreadsAreComparedWithTimingAlone)
{
    std::string other = Plain();
    const auto replace = [&](const std::string &from, const std::string &to) {
        other.replace(other.find(from), from.size(), to);
    };
    replace("12:30:00", "13:00:00");
    replace("\"thread\":11", "\"thread\":12");
    replace("\"pid\":10", "\"pid\":9");
    replace("\"startNs\":1000", "\"startNs\":1001");
    replace("\"durationNs\":1000", "\"durationNs\":900");
    EXPECT_EQ(Diff(Plain(), other).exitCode, 0);
    const SCliRun run = Diff(Plain(), other, "--timing");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out.substr(run.out.find('\n', run.out.find("\nB ") + 1) + 1),
              "    time  2026-11-22T12:30:00Z  |  2026-11-22T13:00:00Z\n"
              "\n"
              "A #0, B #0  VOND_MMRf_GetPdValueV7_r\n"
              "    thread      11  |  12\n"
              "    pid         10  |  9\n"
              "    durationNs  1000  |  900\n"
              "A #1, B #1  VOND_NRf_GetDlFreqV7_r\n"
              "    startNs  1000  |  1001\n"
              "\n"
              "2 calls with differences, 0 in A alone, 0 in B alone, 1 the same\n");
}

TEST(DiffTest, NullAndOpenDifferFromWhatIsThere)
{
    SCallText null = kPdValue;
    null.answer = "null";
    const SCliRun run = Diff(TraceHeaderLine() + CallLines(kPdValue) + CallLines(kStop),
                             TraceHeaderLine() + CallLines(null) + BeginLine(kStop));
    EXPECT_NE(run.out.find("    answer  2 bytes  |  null\n"), std::string::npos);
    EXPECT_NE(run.out.find("    ended  yes  |  no, the call is open\n"), std::string::npos);
}

TEST(DiffTest, JsonHasTheDifferencesAsData)
{
    const json same = json::parse(Diff(Plain(), Plain(), "--json").out);
    EXPECT_EQ(same, json::parse(R"({"same": true, "header": [], "calls": [], "sameCalls": 3})"));
    const SCliRun run = Diff(Plain(), Other(), "--json --ignore VOND --ignore handle");
    EXPECT_EQ(run.exitCode, 2);
    const json other = json::parse(Diff(Plain(), Other(), "--json --ignore handle").out);
    EXPECT_EQ(other.at("sameCalls"), 1);
    EXPECT_EQ(other.at("calls").size(), 3u);
    EXPECT_EQ(other.at("calls")[0], json::parse(R"(
        {"function": "VOND_NRf_TestStop_r", "a": null, "b": 0, "fields": []})"));
    EXPECT_EQ(other.at("calls")[1], json::parse(R"(
        {"function": "VOND_MMRf_GetPdValueV7_r", "a": 0, "b": 1,
         "fields": [{"name": "answer.value", "a": "-10 dBm", "b": "-9.5 dBm"}]})"));
}

TEST(DiffTest, DamagedTraceIsTrouble)
{
    const SCliRun cut = Diff(Plain(), Plain() + "{");
    EXPECT_EQ(cut.err, "quorlin: b.jsonl:8: is cut: it has no line end\n");
    EXPECT_EQ(cut.out, "");
    EXPECT_EQ(cut.exitCode, 2);
    EXPECT_EQ(Diff("", Plain()).err,
              "quorlin: a.jsonl:1: is no header of a trace: the file is empty\n");
}

}  // namespace
