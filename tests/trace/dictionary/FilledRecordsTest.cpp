// Each field of each record has the value that was set through the struct.

#include "tests/trace/records/FilledRecords.h"

#include <gtest/gtest.h>

#include "Trace/dictionary/Decode.h"

namespace {

// What a record says, by name.
struct SRead
{
    std::map<std::string, int64_t> numbers;
    std::map<std::string, std::string> texts;
    int twice = 0;
    int reservedSet = 0;
    int uncertain = 0;
    SDecoded decoded;
};

SRead Read(const SFilledRecord &record)
{
    SRead read;
    const FieldVisitor visit = [&](const SFieldValue &value) {
        const std::string name(value.name);
        read.uncertain += !value.isCertain;
        if (value.field->at.isReserved)
            read.reservedSet += value.IsSet();
        else if (value.field->at.type == EFieldType::Text)
            read.twice += !read.texts.emplace(name, value.text).second;
        else
            read.twice += !read.numbers.emplace(name, value.number).second;
    };
    const SFunction &function = FunctionOf(record.function);
    read.decoded = record.isAnswer ? DecodeAnswer(function, record.bytes, record.request, visit)
                                   : DecodeRequest(function, record.bytes, visit);
    return read;
}

// The first name in which two differ; empty when they are alike.
template <class Value>
std::string Difference(const std::map<std::string, Value> &set,
                       const std::map<std::string, Value> &read)
{
    for (const auto &[name, value] : set) {
        const auto found = read.find(name);
        if (found == read.end())
            return name + " is not read";
        if (found->second != value)
            return name + " is read as another value";
    }
    for (const auto &[name, value] : read) {
        if (set.count(name) == 0)
            return name + " was not set";
    }
    return {};
}

TEST(FilledRecordsTest, EveryFieldIsReadAsItWasSet)
{
    for (const SFilledRecord &record : FilledRecords()) {
        SCOPED_TRACE(std::string(FunctionOf(record.function).name) +
                     (record.isAnswer ? " answer" : " request"));
        const SRead read = Read(record);
        EXPECT_EQ(Difference(record.numbers, read.numbers), "");
        EXPECT_EQ(Difference(record.texts, read.texts), "");
        EXPECT_EQ(read.twice, 0);
        EXPECT_EQ(read.reservedSet, 0);
        EXPECT_EQ(read.uncertain, 0);
        EXPECT_EQ(read.decoded.missing, 0u);
        EXPECT_EQ(read.decoded.extra, 0u);
    }
}

TEST(FilledRecordsTest, EveryRecordOfEveryFunctionIsFilled)
{
    const std::vector<SFilledRecord> &records = FilledRecords();
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        int requests = 0;
        int answers = 0;
        for (const SFilledRecord &record : records) {
            if (record.function == function.id)
                ++(record.isAnswer ? answers : requests);
        }
        EXPECT_EQ(requests > 0, function.request != nullptr) << function.name;
        EXPECT_EQ(answers > 0, function.answer != nullptr) << function.name;
    }
}

TEST(FilledRecordsTest, RssiAnswerShowsBothLayoutsWithoutItsRequest)
{
    for (SFilledRecord record : FilledResults()) {
        if (record.function != EFunction::Rssi)
            continue;
        record.request.clear();
        const SRead read = Read(record);
        EXPECT_EQ(read.numbers.count("rows.single.mainG"), 1u);
        EXPECT_EQ(read.numbers.count("rows.simultaneous.mainG"), 1u);
        EXPECT_GT(read.uncertain, 0);
        EXPECT_EQ(read.numbers.at("dlFrequency[4]"), record.numbers.at("dlFrequency[4]"));
    }
}

}  // namespace
