// Every record of every function, set through its struct, comes out of the program as it was set.

#include <gtest/gtest.h>

#include "Trace/lines/TraceWriter.h"
#include "tests/cli/CliFolder.h"
#include "tests/cli/ShownJson.h"
#include "tests/trace/records/FilledRecords.h"

namespace {

STraceView ViewOf(const std::vector<uint8_t> &bytes)
{
    return bytes.empty() ? STraceView() : STraceView{bytes.data(), bytes.size()};
}

// A call for each record, with nothing in its other record but what the layout hangs on.
void WriteTrace(const std::string &path)
{
    CTraceWriter writer({.path = path, .who = "test"}, {.tool = "0.1"});
    for (const SFilledRecord &record : FilledRecords()) {
        const STraceView bytes = ViewOf(record.bytes);
        CTraceWriter::Line line =
            writer.Begin({.function = &FunctionOf(record.function),
                          .handle = 1,
                          .timeoutMs = 10000,
                          .request = record.isAnswer ? ViewOf(record.request) : bytes});
        writer.End(
            std::move(line),
            {.answer = record.isAnswer ? bytes : STraceView(), .text = "Success", .durationNs = 5});
    }
}

// The first name in which two differ; empty when they are alike.
template <class Value>
std::string FirstDifference(const std::map<std::string, Value> &set,
                            const std::map<std::string, Value> &shown)
{
    auto one = set.begin();
    auto other = shown.begin();
    for (; one != set.end() && other != shown.end(); ++one, ++other) {
        if (*one != *other)
            return one->first + " or " + other->first;
    }
    if (one != set.end())
        return one->first + " is not shown";
    return other != shown.end() ? other->first + " was not set" : "";
}

void ExpectAsSet(const SFilledRecord &record, const SJsonRecord &shown)
{
    EXPECT_EQ(shown.size, record.bytes.size());
    EXPECT_TRUE(shown.isWhole);
    EXPECT_EQ(FirstDifference(record.numbers, shown.numbers), "");
    EXPECT_EQ(FirstDifference(record.texts, shown.texts), "");
}

std::string NameOf(const SFilledRecord &record)
{
    return std::string(FunctionOf(record.function).name) +
           (record.isAnswer ? " answer" : " request");
}

// "show" leaves out what is zero.
SFilledRecord WithoutZeros(SFilledRecord record)
{
    std::erase_if(record.numbers, [](const auto &field) { return field.second == 0; });
    return record;
}

TEST(FilledJsonTest, ShowTellsEveryFieldOfEveryRecordAsItWasSet)
{
    const CCliFolder folder;
    WriteTrace(folder.Path("all.jsonl"));
    const SCliRun run = folder.Run("trace show all.jsonl --json");
    ASSERT_EQ(run.exitCode, 0) << run.err;
    const std::vector<SJsonCall> calls = ShownCalls(run.out);
    ASSERT_EQ(calls.size(), FilledRecords().size());
    for (std::size_t i = 0; i < calls.size(); ++i) {
        const SFilledRecord &record = FilledRecords()[i];
        SCOPED_TRACE(NameOf(record));
        EXPECT_EQ(calls[i].function, FunctionOf(record.function).name);
        const auto &own = record.isAnswer ? calls[i].answer : calls[i].request;
        const auto &other = record.isAnswer ? calls[i].request : calls[i].answer;
        ASSERT_TRUE(own.has_value());
        ExpectAsSet(WithoutZeros(record), *own);
        EXPECT_EQ(other.has_value(), !record.request.empty());
    }
}

TEST(FilledJsonTest, DecodeTellsEveryFieldOfEveryRecordAsItWasSet)
{
    const CCliFolder folder;
    for (const SFilledRecord &record : FilledRecords()) {
        SCOPED_TRACE(NameOf(record));
        folder.Write("record", record.bytes);
        folder.Write("request", record.request);
        const SCliRun run =
            folder.Run("decode " + std::string(FunctionOf(record.function).name) +
                       (record.isAnswer ? " answer @record" : " request @record") +
                       (record.request.empty() ? "" : " --request @request") + " --json");
        ASSERT_EQ(run.exitCode, 0) << run.err;
        ExpectAsSet(record, DecodedRecord(run.out));
    }
}

}  // namespace
