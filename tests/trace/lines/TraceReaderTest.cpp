// What a reader makes of a trace, and the words it has for a line that is none.

#include "Trace/lines/TraceReader.h"

#include <sstream>

#include <gtest/gtest.h>

#include "Trace/lines/LineSource.h"

namespace {

const std::string kHeader = R"({"vondTrace":1,"tool":"0.1","time":"2026-11-22T12:30:00Z",)"
                            R"("core":"libVondCore.so","coreBuildId":"5a1c",)"
                            R"("app":"libVondApp.so","appBuildId":""})"
                            "\n";

std::string Begin(int index, const std::string &function)
{
    return R"({"begin":)" + std::to_string(index) + R"(,"function":")" + function +
           R"(","thread":11,"pid":10,"startNs":)" + std::to_string(100 * index) + "}\n";
}

// The keys behind the function, as given.
std::string End(int index, const std::string &function, const std::string &rest)
{
    return R"({"index":)" + std::to_string(index) + R"(,"function":")" + function + "\"," + rest +
           "}\n";
}

const std::string kStop = "VOND_NRf_TestStop_r";
const std::string kStopped = R"("handle":1,"timeout":10000,"request":null,"answer":null,)"
                             R"("result":0,"text":"OK","status":0,"durationNs":5)";

STrace Read(const std::string &text, ECutLine cut = ECutLine::Refused)
{
    std::istringstream stream(text);
    return ReadTrace(stream, "t.jsonl", cut);
}

std::string ErrorOf(const std::string &text, ECutLine cut = ECutLine::Refused)
{
    try {
        Read(text, cut);
    } catch (const CTraceError &error) {
        return error.what();
    }
    return "none";
}

TEST(TraceReaderTest, HeaderTellsWhoWroteWhenAndWithWhichPair)
{
    const STraceHeader header = Read(kHeader).header;
    EXPECT_EQ(header.tool, "0.1");
    EXPECT_EQ(header.time, "2026-11-22T12:30:00Z");
    EXPECT_EQ(header.core, "libVondCore.so");
    EXPECT_EQ(header.coreBuildId, "5a1c");
    EXPECT_EQ(header.app, "libVondApp.so");
    EXPECT_EQ(header.appBuildId, "");
}

TEST(TraceReaderTest, CallHasWhatItsTwoLinesSay)
{
    const std::string name = "VOND_MMRf_GetPdValueV7_r";
    const STrace trace = Read(kHeader + Begin(7, name) +
                              End(7, name,
                                  R"("handle":2,"timeout":10000,"request":"01000000",)"
                                  R"("answer":"00F6","result":-3,"text":"no","status":4294967295,)"
                                  R"("durationNs":81)"));
    ASSERT_EQ(trace.calls.size(), 1u);
    const STraceCall &call = trace.calls[0];
    EXPECT_EQ(call.index, 7u);
    EXPECT_EQ(call.function, &FunctionOf(EFunction::GetPdValue));
    EXPECT_EQ(call.thread, 11u);
    EXPECT_EQ(call.process, 10u);
    EXPECT_EQ(call.startNs, 700u);
    EXPECT_EQ(call.handle, 2u);
    EXPECT_EQ(call.timeoutMs, 10000u);
    EXPECT_EQ(call.request, (TraceBytes::value_type{1, 0, 0, 0}));
    EXPECT_EQ(call.answer, (TraceBytes::value_type{0, 0xf6}));
    EXPECT_EQ(call.result, -3);
    EXPECT_EQ(call.text, "no");
    EXPECT_EQ(call.status, 0xffffffffu);
    EXPECT_EQ(call.durationNs, 81u);
    EXPECT_TRUE(call.isEnded);
}

TEST(TraceReaderTest, NullIsNoRecordAndNoDigitsAreAnEmptyOne)
{
    const STrace trace = Read(kHeader + Begin(0, kStop) +
                              End(0, kStop,
                                  R"("handle":1,"timeout":1,"request":null,"answer":"","result":0,)"
                                  R"("text":"","status":0,"durationNs":0)"));
    EXPECT_EQ(trace.calls[0].request, std::nullopt);
    EXPECT_EQ(trace.calls[0].answer, TraceBytes::value_type{});
}

TEST(TraceReaderTest, CallsStandAsTheyBeganAndNotesBetweenThem)
{
    const STrace trace = Read(kHeader + R"({"note":"first","startNs":1})" + "\n" + Begin(1, kStop) +
                              Begin(0, kStop) + R"({"note":"between","startNs":2})" + "\n" +
                              End(0, kStop, kStopped) + Begin(9, kStop) + End(1, kStop, kStopped) +
                              R"({"note":"last","startNs":3})" + "\n");
    ASSERT_EQ(trace.calls.size(), 3u);
    EXPECT_EQ(trace.calls[0].index, 1u);
    EXPECT_EQ(trace.calls[1].index, 0u);
    EXPECT_FALSE(trace.calls[2].isEnded);
    ASSERT_EQ(trace.notes.size(), 3u);
    EXPECT_EQ(trace.notes[0].before, 0u);
    EXPECT_EQ(trace.notes[1].before, 2u);
    EXPECT_EQ(trace.notes[1].text, "between");
    EXPECT_EQ(trace.notes[1].startNs, 2u);
    EXPECT_EQ(trace.notes[2].before, 3u);
}

TEST(TraceReaderTest, KeysOfALaterWriterArePassedOver)
{
    EXPECT_EQ(ErrorOf(kHeader + R"({"note":"a","startNs":1,"color":"red","deep":null})" + "\n"),
              "none");
}

TEST(TraceReaderTest, CutLastLineIsRefusedOrLeftOut)
{
    const std::string text = kHeader + Begin(0, kStop) + R"({"index":0,"fun)";
    EXPECT_EQ(ErrorOf(text), "t.jsonl:3: is cut: it has no line end");
    const STrace trace = Read(text, ECutLine::LeftOut);
    EXPECT_TRUE(trace.isCut);
    EXPECT_FALSE(trace.calls.at(0).isEnded);
    EXPECT_FALSE(Read(kHeader).isCut);
}

// A whole object without its line end may be the beginning of nothing else, but was not ended either.
TEST(TraceReaderTest, LineThatLacksItsEndAloneIsCutToo)
{
    const std::string text = kHeader + R"({"note":"a","startNs":1})";
    EXPECT_TRUE(Read(text, ECutLine::LeftOut).isCut);
    EXPECT_TRUE(Read(text, ECutLine::LeftOut).notes.empty());
}

TEST(TraceReaderTest, FileThatIsNoTraceIsNamed)
{
    const auto leftOut = ECutLine::LeftOut;
    EXPECT_EQ(ErrorOf("", leftOut), "t.jsonl:1: is no header of a trace: the file is empty");
    EXPECT_EQ(ErrorOf("{\"vondTr", leftOut), "t.jsonl:1: is cut: it has no line end");
    EXPECT_EQ(ErrorOf("hello\n"), "t.jsonl:1: is no JSON at byte 1");
    EXPECT_EQ(ErrorOf("{}\n"), "t.jsonl:1: is no header of a trace: \"vondTrace\" is missing");
    EXPECT_EQ(ErrorOf("{\"vondTrace\":2}\n"),
              "t.jsonl:1: \"vondTrace\" is 2; this program reads version 1");
    EXPECT_THROW(ReadTrace("/nowhere/t.jsonl", leftOut), CTraceError);
    EXPECT_THROW(ReadTrace("/", leftOut), CTraceError);
}

struct SBadLine
{
    std::string line;
    std::string reason;
};

TEST(TraceReaderTest, FirstBadLineIsNamedWithItsReason)
{
    const std::string begun = Begin(0, kStop);
    const auto ending = [](const std::string &from, const std::string &to) {
        std::string rest = kStopped;
        return End(0, kStop, rest.replace(rest.find(from), from.size(), to));
    };
    const SBadLine lines[] = {
        {"\n", "is no JSON at byte 1"},
        {"[1]\n", "is no JSON object"},
        {"17\n", "is no JSON object"},
        {"{\"note\":\"a\xff\",\"startNs\":1}\n", "is no JSON at byte 11"},
        {"{\"note\":\"a\",\"startNs\":1} x\n", "is no JSON at byte 26"},
        {std::string("{\"note\":\"a\0b\",\"startNs\":1}\n", 27), "is no JSON at byte 11"},
        {"{\"note\":{\"a\":1},\"startNs\":1}\n", "\"note\" is an object"},
        {"{\"note\":" + std::string(100000, '[') + "\n", "\"note\" is an array"},
        {"{\"note\":\"a\",\"note\":\"b\",\"startNs\":1}\n", "\"note\" stands twice"},
        {"{\"note\":\"a\"}\n", "\"startNs\" is missing"},
        {"{\"note\":3,\"startNs\":1}\n", "\"note\" is no text"},
        {"{\"said\":\"a\"}\n", "has none of the keys \"begin\", \"index\" and \"note\""},
        {"{\"note\":\"a\",\"startNs\":1.5}\n",
         "\"startNs\" is no whole number from 0 to 18446744073709551615"},
        {"{\"note\":\"a\",\"startNs\":99999999999999999999999999}\n",
         "\"startNs\" is no whole number from 0 to 18446744073709551615"},
        {"{\"note\":\"a\",\"startNs\":1e999}\n", "is no JSON at byte 27"},
        {begun, "begins call 0 a second time"},
        {End(3, kStop, kStopped), "ends call 3, which has not begun"},
        {End(0, "VOND_NRf_ResetMixRxReportV7_r", kStopped),
         "ends call 0, which began as VOND_NRf_TestStop_r"},
        {Begin(1, "VOND_Reboot"), "\"function\" is none of the pair's: VOND_Reboot"},
        {ending("\"handle\":1", "\"handle\":4294967296"),
         "\"handle\" is no whole number from 0 to 4294967295"},
        {ending("\"timeout\":10000", "\"timeout\":-1"),
         "\"timeout\" is no whole number from 0 to 4294967295"},
        {ending("\"result\":0", "\"result\":2147483648"),
         "\"result\" is no whole number from -2147483648 to 2147483647"},
        {ending("\"request\":null", "\"request\":true"), "\"request\" is neither a text nor null"},
        {ending("\"request\":null", "\"request\":\"012\""),
         "\"request\" has an odd number of digits"},
        {ending("\"answer\":null", "\"answer\":\"010g\""),
         "\"answer\" has a sign that is no hexadecimal digit, in byte 1"},
        {ending("\"text\":\"OK\",", ""), "\"text\" is missing"},
    };
    for (const SBadLine &bad : lines)
        EXPECT_EQ(ErrorOf(kHeader + begun + bad.line + "not reached\n"),
                  "t.jsonl:3: " + bad.reason);
}

TEST(TraceReaderTest, LineOfAnyLengthCostsNoMoreThanTheLongestOne)
{
    const std::string text = kHeader + "{\"note\":\"" + std::string(kLongestTraceLine, 'a');
    EXPECT_EQ(ErrorOf(text), "t.jsonl:2: is longer than 16777216 bytes");
}

}  // namespace
