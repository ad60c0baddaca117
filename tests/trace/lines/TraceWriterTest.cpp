// What a writer writes is what a reader reads.
#include "Trace/lines/TraceWriter.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include <unistd.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "Trace/lines/TraceReader.h"

using namespace std::string_view_literals;

namespace {

class TraceWriterTest : public ::testing::Test
{
protected:
    ~TraceWriterTest() override
    {
        std::error_code error;
        std::filesystem::remove(m_path, error);
    }

    std::string Text() const
    {
        std::ostringstream text;
        text << std::ifstream(m_path).rdbuf();
        return text.str();
    }

    const std::string m_path =
        ::testing::TempDir() + "trace-writer-" + std::to_string(getpid()) + ".jsonl";
    const STraceHeader m_header = {
        .tool = "1.2", .core = "libVondCore.so", .coreBuildId = "5a1c", .app = "libVondApp.so"};
};

STraceBegin BeginOf(EFunction function, STraceView request = {})
{
    return {.function = &FunctionOf(function), .handle = 7, .timeoutMs = 10000, .request = request};
}

TEST_F(TraceWriterTest, CallIsReadAsItWasWritten)
{
    const std::array<uint8_t, 4> request = {0x01, 0x00, 0xfe, 0x00};
    const std::array<uint8_t, 2> answer = {0x00, 0xf6};
    CTraceWriter writer({.path = m_path, .who = "Test"}, m_header);
    CTraceWriter::Line line =
        writer.Begin(BeginOf(EFunction::GetPdValue, {request.data(), request.size()}));
    writer.End(std::move(line), {.answer = {answer.data(), answer.size()},
                                 .result = -5,
                                 .text = "Target: \"no\"",
                                 .status = 3,
                                 .durationNs = 81000});
    const STrace trace = ReadTrace(m_path, ECutLine::Refused);
    EXPECT_EQ(trace.header.tool, "1.2");
    EXPECT_EQ(trace.header.core, "libVondCore.so");
    EXPECT_EQ(trace.header.coreBuildId, "5a1c");
    EXPECT_EQ(trace.header.appBuildId, "");
    EXPECT_EQ(trace.header.time.size(), std::string("2026-11-22T12:30:00.250Z").size());
    ASSERT_EQ(trace.calls.size(), 1u);
    const STraceCall &call = trace.calls[0];
    EXPECT_EQ(call.index, 0u);
    EXPECT_EQ(call.function, &FunctionOf(EFunction::GetPdValue));
    EXPECT_EQ(call.handle, 7u);
    EXPECT_EQ(call.timeoutMs, 10000u);
    EXPECT_EQ(call.request, std::vector<uint8_t>(request.begin(), request.end()));
    EXPECT_EQ(call.answer, std::vector<uint8_t>(answer.begin(), answer.end()));
    EXPECT_EQ(call.result, -5);
    EXPECT_EQ(call.text, "Target: \"no\"");
    EXPECT_EQ(call.status, 3u);
    EXPECT_EQ(call.durationNs, 81000u);
    EXPECT_EQ(call.process, static_cast<uint64_t>(getpid()));
    EXPECT_EQ(call.thread, static_cast<uint64_t>(gettid()));
    EXPECT_TRUE(call.isEnded);
}

// Milliseconds since 1970 of a text such as "2026-11-22T12:30:00.250Z".
int64_t MillisecondsOf(const std::string &time)
{
    std::tm utc = {};
    const char *const rest = strptime(time.c_str(), "%Y-%m-%dT%H:%M:%S", &utc);
    int milliseconds = -1;
    if (rest == nullptr || std::sscanf(rest, ".%3dZ", &milliseconds) != 1)
        return 0;
    return int64_t{timegm(&utc)} * 1000 + milliseconds;
}

TEST_F(TraceWriterTest, HeaderHasTheTimeOfDayWhenTheTraceBegan)
{
    const auto now = [] {
        using namespace std::chrono;
        return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
    };
    const int64_t before = now();
    const CTraceWriter writer({.path = m_path, .who = "Test"}, m_header);
    const int64_t written = MillisecondsOf(ReadTrace(m_path, ECutLine::Refused).header.time);
    EXPECT_GE(written, before);
    EXPECT_LE(written, now());
}

TEST_F(TraceWriterTest, LinesStandInTheFileAtOnce)
{
    CTraceWriter writer({.path = m_path, .who = "Test"}, m_header);
    CTraceWriter::Line line = writer.Begin(BeginOf(EFunction::NrTestStop));
    std::istringstream lines(Text());
    std::string header, begin, more;
    ASSERT_TRUE(std::getline(lines, header) && std::getline(lines, begin));
    EXPECT_FALSE(std::getline(lines, more));
    EXPECT_EQ(header.rfind("{\"vondTrace\":1,\"tool\":\"1.2\",\"time\":\"", 0), 0u) << header;
    const nlohmann::json keys = nlohmann::json::parse(begin);
    EXPECT_EQ(keys.at("begin"), 0);
    EXPECT_EQ(keys.at("function"), "VOND_NRf_TestStop_r");
    EXPECT_EQ(keys.size(), 5u);
    const STrace open = ReadTrace(m_path, ECutLine::Refused);
    ASSERT_EQ(open.calls.size(), 1u);
    EXPECT_FALSE(open.calls[0].isEnded);
    writer.End(std::move(line), {.text = "Success"});
    EXPECT_TRUE(ReadTrace(m_path, ECutLine::Refused).calls[0].isEnded);
}

TEST_F(TraceWriterTest, NullPointersAndSizesOfZeroAreToldApart)
{
    const uint8_t byte = 0;
    CTraceWriter writer({.path = m_path, .who = "Test"}, m_header);
    CTraceWriter::Line line = writer.Begin(BeginOf(EFunction::NrCapability, {&byte, 0}));
    writer.End(std::move(line), {.answer = {nullptr, 36}});
    const std::string text = Text();
    EXPECT_NE(text.find("\"request\":\"\",\"answer\":null,"), std::string::npos) << text;
}

TEST_F(TraceWriterTest, NotesMayBeAnyText)
{
    constexpr std::string_view kAny =
        "quote \" back \\ line \n tab \t null \0 \x01 \x7f \xc3\xa4 \xf0\x9f\x93\xa1"sv;
    CTraceWriter writer({.path = m_path, .who = "Test"}, m_header);
    writer.Note("RSSI: Start");
    const CTraceWriter::Line line = writer.Begin(BeginOf(EFunction::NrTestStop));
    writer.Note(kAny);
    writer.Note("cut \xe2\x82 long \xc0\x80 lone \xff surrogate \xed\xa0\x80");
    const STrace trace = ReadTrace(m_path, ECutLine::Refused);
    ASSERT_EQ(trace.notes.size(), 3u);
    EXPECT_EQ(trace.notes[0].text, "RSSI: Start");
    EXPECT_EQ(trace.notes[0].before, 0u);
    EXPECT_EQ(trace.notes[1].text, kAny);
    EXPECT_EQ(trace.notes[1].before, 1u);
    const std::string bad = "\xef\xbf\xbd";
    EXPECT_EQ(trace.notes[2].text, "cut " + bad + bad + " long " + bad + bad + " lone " + bad +
                                       " surrogate " + bad + bad + bad);
}

TEST_F(TraceWriterTest, ThreadsWriteWholeLinesAndEachCallHasItsNumber)
{
    constexpr int kThreads = 16;
    constexpr int kCalls = 50;
    const std::vector<uint8_t> request(2404, 0xa5);
    CTraceWriter writer({.path = m_path, .who = "Test"}, m_header);
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&] {
            for (int k = 0; k < kCalls; ++k) {
                CTraceWriter::Line line =
                    writer.Begin(BeginOf(EFunction::GetCalData, {request.data(), request.size()}));
                writer.Note("between");
                writer.End(std::move(line), {.answer = {request.data(), 7}});
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    const STrace trace = ReadTrace(m_path, ECutLine::Refused);
    ASSERT_EQ(trace.calls.size(), static_cast<std::size_t>(kThreads * kCalls));
    EXPECT_EQ(trace.notes.size(), trace.calls.size());
    for (const STraceCall &call : trace.calls)
        EXPECT_EQ(call.request, request);
}

TEST_F(TraceWriterTest, WithoutAPathNothingIsWritten)
{
    ::testing::internal::CaptureStderr();
    CTraceWriter writer({.path = "", .who = "Test"}, m_header);
    EXPECT_FALSE(writer.IsOpen());
    CTraceWriter::Line line = writer.Begin(BeginOf(EFunction::NrTestStop));
    EXPECT_EQ(line, nullptr);
    writer.End(std::move(line), {});
    writer.Note("nobody listens");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

}  // namespace
