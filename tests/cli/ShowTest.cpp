// What "trace show" and "trace summary" print.

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/cli/CliFolder.h"
#include "tests/cli/TraceText.h"

namespace {

const SCallText kPdValue = {.index = 0,
                            .function = "VOND_MMRf_GetPdValueV7_r",
                            .request = "\"01000000\"",
                            .answer = "\"00f6\"",
                            .durationNs = 81250};
const SCallText kContRx = {.index = 1,
                           .function = "VOND_MMRf_ContRxV7_r",
                           .result = 5,
                           .text = "Argument: null pointer",
                           .durationNs = 900};
const SCallText kPusch = {.index = 2,
                          .function = "VOND_NRf_PuschTxV7_r",
                          .request = "\"01000000" + std::string(184, '0') + "ff\"",
                          .status = 1,
                          .durationNs = 1500000};
const SCallText kStop = {.index = 3, .function = "VOND_NRf_TestStop_r"};

std::string Story()
{
    return TraceHeaderLine() + NoteLine("Single Tone: Read") + CallLines(kPdValue) +
           NoteLine("Continuous RX: Start") + CallLines(kContRx) + CallLines(kPusch) +
           NoteLine("then silence") + BeginLine(kStop);
}

const std::string kHead = "t.jsonl: of 2026-11-22T12:30:00Z, by Quorlin RF 0.1, with "
                          "libVondCore.so (5a1c) and libVondApp.so\n\n";

const std::string kPdValueText = "#0 VOND_MMRf_GetPdValueV7_r  Success (0)  81.2 µs\n"
                                 "    handle 1, timeout 10000 ms\n"
                                 "    request, 4 bytes\n"
                                 "      kind  1\n"
                                 "    answer, 2 bytes\n"
                                 "      value  -10 dBm\n"
                                 "\n";
const std::string kContRxText = "#1 VOND_MMRf_ContRxV7_r  Argument: null pointer (5)  900 ns\n"
                                "    handle 1, timeout 10000 ms\n"
                                "    request: none, a null pointer\n"
                                "\n";
const std::string kPuschText =
    "#2 VOND_NRf_PuschTxV7_r  Success (0), status frequency is on no NR-ARFCN (1)  1.5 ms\n"
    "    handle 1, timeout 10000 ms\n"
    "    request, 97 bytes\n"
    "      forced  forced mode (1)\n"
    "      1 byte behind its end: ff\n"
    "\n";

SCliRun RunOn(const std::string &trace, const std::string &arguments)
{
    const CCliFolder folder;
    folder.Write("t.jsonl", trace);
    return folder.Run(arguments);
}

TEST(ShowTest, LongCallsAreInSecondsAndAStatusWithoutANameIsItsNumber)
{
    SCallText call = kStop;
    call.function = "VOND_NRf_PuschTxV7_r";
    call.status = 4711;
    call.durationNs = 1234567890;
    const SCliRun run = RunOn(TraceHeaderLine() + CallLines(call), "trace show t.jsonl");
    EXPECT_NE(run.out.find("Success (0), status 4711  1.235 s\n"), std::string::npos) << run.out;
    call.durationNs = 1000000000;
    EXPECT_NE(
        RunOn(TraceHeaderLine() + CallLines(call), "trace show t.jsonl").out.find("  1.000 s\n"),
        std::string::npos);
}

// The second half of Latin-1 begins with characters that steer a terminal, too.
TEST(ShowTest, ControlCharactersOfTwoBytesAreShownAsBytes)
{
    SCallText call = kContRx;
    call.text = "caf\u00e9\u009b31m";
    const SCliRun run = RunOn(TraceHeaderLine() + CallLines(call), "trace show t.jsonl");
    EXPECT_NE(run.out.find("caf\u00e9\\xc2\\x9b31m (5)"), std::string::npos) << run.out;
}

TEST(ShowTest, TraceReadsLikeAStory)
{
    const SCliRun run = RunOn(Story(), "trace show t.jsonl");
    EXPECT_EQ(run.out,
              kHead + "== Single Tone: Read\n\n" + kPdValueText + "== Continuous RX: Start\n\n" +
                  kContRxText + kPuschText +
                  "== then silence\n\n"
                  "#3 VOND_NRf_TestStop_r  open: it was on its way when the trace ended\n\n"
                  "4 of 4 calls\n");
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.exitCode, 0);
}

TEST(ShowTest, FilterKeepsTheHeadingOfWhatItShows)
{
    EXPECT_EQ(RunOn(Story(), "trace show t.jsonl --call 1").out,
              kHead + "== Continuous RX: Start\n\n" + kContRxText + "1 of 4 calls\n");
    EXPECT_EQ(RunOn(Story(), "trace show t.jsonl --function VOND_MMRf_GetPdValueV7_r").out,
              kHead + "== Single Tone: Read\n\n" + kPdValueText + "1 of 4 calls\n");
    EXPECT_EQ(RunOn(Story(), "trace show t.jsonl --failed").out,
              kHead + "== Continuous RX: Start\n\n" + kContRxText + kPuschText + "2 of 4 calls\n");
}

// Its result and its status word are those of a success.
TEST(ShowTest, CalibrationTransferWithABadVerdictHasFailed)
{
    const std::string text = std::string(384, '0') + "\"";
    const SCallText bad = {
        .index = 0, .function = "VOND_MMRf_SetCalDataV7_r", .answer = "\"00" + text};
    const SCallText good = {
        .index = 1, .function = "VOND_MMRf_SetCalDataV7_r", .answer = "\"01" + text};
    EXPECT_EQ(
        RunOn(TraceHeaderLine() + CallLines(bad) + CallLines(good), "trace show t.jsonl --failed")
            .out,
        kHead + "#0 VOND_MMRf_SetCalDataV7_r  Success (0), verdict failure  1.0 µs\n"
                "    handle 1, timeout 10000 ms\n"
                "    request: none, a null pointer\n"
                "    answer, 193 bytes, all zero\n"
                "\n"
                "1 of 2 calls\n");
}

TEST(ShowTest, NothingToShowIsSaid)
{
    const SCliRun run = RunOn(Story(), "trace show t.jsonl --function VOND_MMRf_RssiV7_r");
    EXPECT_EQ(run.out, kHead + "0 of 4 calls\n");
    EXPECT_EQ(run.exitCode, 0);
}

TEST(ShowTest, CallOrFunctionThatIsNotThereIsTrouble)
{
    const SCliRun call = RunOn(Story(), "trace show t.jsonl --call 9");
    EXPECT_EQ(call.err, "quorlin: t.jsonl: has no call 9\n");
    EXPECT_EQ(call.out, "");
    EXPECT_EQ(call.exitCode, 2);
    const SCliRun function = RunOn(Story(), "trace show t.jsonl --function VOND_Reboot");
    EXPECT_EQ(function.err, "quorlin: --function: VOND_Reboot is none of the pair's\n");
    EXPECT_EQ(function.exitCode, 2);
}

TEST(ShowTest, JsonHasTheStoryAsData)
{
    using nlohmann::json;
    const json shown = json::parse(RunOn(Story(), "trace show t.jsonl --json").out);
    EXPECT_EQ(shown.at("header").at("core"), "libVondCore.so");
    EXPECT_EQ(shown.at("isCut"), false);
    const json &entries = shown.at("entries");
    ASSERT_EQ(entries.size(), 7u);
    EXPECT_EQ(entries[0], json::parse(R"({"note": "Single Tone: Read", "startNs": 1})"));
    EXPECT_EQ(entries[1], json::parse(R"({
        "index": 0, "function": "VOND_MMRf_GetPdValueV7_r", "thread": 11, "pid": 10, "startNs": 0,
        "ended": true, "handle": 1, "timeout": 10000,
        "request": {"size": 4, "fields": {"kind": {"raw": 1, "text": "1"}}},
        "answer": {"size": 2, "fields":
            {"value": {"raw": -2560, "text": "-10 dBm", "reading": true}}},
        "result": 0, "text": "Success", "status": 0, "durationNs": 81250})"));
    EXPECT_EQ(entries[4].at("request").at("rest"), "ff");
    EXPECT_EQ(entries[6], json::parse(R"({"index": 3, "function": "VOND_NRf_TestStop_r",
        "thread": 11, "pid": 10, "startNs": 3000, "ended": false})"));
}

TEST(ShowTest, CutTraceIsShownAndSaidToBeCut)
{
    const SCliRun run =
        RunOn(TraceHeaderLine() + CallLines(kPdValue) + "{\"begin\":1", "trace show t.jsonl");
    EXPECT_EQ(run.out, kHead + kPdValueText + "1 of 1 calls\n");
    EXPECT_EQ(run.err, "quorlin: t.jsonl: the last line is cut, and is left out\n");
    EXPECT_EQ(run.exitCode, 0);
}

TEST(ShowTest, BadLineIsNamedAndNothingShown)
{
    for (const std::string command : {"show", "summary"}) {
        const SCliRun run = RunOn(TraceHeaderLine() + CallLines(kPdValue) + "[]\n",
                                  "trace " + command + " t.jsonl");
        EXPECT_EQ(run.err, "quorlin: t.jsonl:4: is no JSON object\n");
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.exitCode, 2);
    }
}

// Control characters of a note or a name would steer the terminal.
TEST(ShowTest, ControlCharactersAreWrittenOut)
{
    const SCliRun run =
        RunOn(TraceHeaderLine() + NoteLine(R"(red \u001b[31m\n)"), "trace show t.jsonl");
    EXPECT_NE(run.out.find("== red \\x1b[31m\\x0a\n"), std::string::npos);
}

TEST(ShowTest, SummaryCountsByFunction)
{
    std::string trace = TraceHeaderLine();
    int index = 0;
    for (unsigned i = 1; i <= 100; ++i) {
        SCallText call = kPdValue;
        call.index = index++;
        call.result = i == 7 ? 2 : 0;
        call.durationNs = 1000 * i;
        trace += CallLines(call);
    }
    SCallText pusch = kPusch;
    pusch.index = index++;
    SCallText open = kStop;
    open.index = index++;
    trace += CallLines(pusch) + BeginLine(open);
    const SCliRun run = RunOn(trace, "trace summary t.jsonl");
    EXPECT_EQ(run.out,
              kHead + "calls  failed  open   median     95 %   longest  function\n"
                      "  100       1     0  50.0 µs  95.0 µs  100.0 µs  VOND_MMRf_GetPdValueV7_r\n"
                      "    1       1     0   1.5 ms   1.5 ms    1.5 ms  VOND_NRf_PuschTxV7_r\n"
                      "    1       0     1        -        -         -  VOND_NRf_TestStop_r\n"
                      "  102       2     1  51.0 µs  96.0 µs    1.5 ms  all\n");
    EXPECT_EQ(run.exitCode, 0);
}

TEST(ShowTest, SummaryOfNoCallsIsATable)
{
    EXPECT_EQ(RunOn(TraceHeaderLine(), "trace summary t.jsonl").out,
              kHead + "calls  failed  open  median  95 %  longest  function\n"
                      "    0       0     0       -     -        -  all\n");
}

}  // namespace
