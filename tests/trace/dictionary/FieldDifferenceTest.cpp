// In which fields two records differ.

#include "Trace/dictionary/FieldDifference.h"

#include <gtest/gtest.h>

#include "Trace/dictionary/FieldPath.h"
#include "Trace/dictionary/Number.h"

namespace {

using ByteList = std::vector<uint8_t>;

const SFunction &Rssi()
{
    return FunctionOf(EFunction::Rssi);
}

void Put(ByteList &bytes, const SLayout &layout, std::string_view path, int64_t number)
{
    const auto found = FindField(layout, path);
    ASSERT_TRUE(found) << path;
    WriteNumber(found->field->at.type, number, std::span(bytes).subspan(found->offset));
}

std::string Words(const std::vector<SFieldDifference> &differences)
{
    std::string words;
    for (const SFieldDifference &field : differences)
        words += field.name + (field.isReading ? "*" : "") + ": " + field.one + " | " +
                 field.other + "\n";
    return words;
}

TEST(FieldDifferenceTest, EqualRecordsDifferInNothing)
{
    const ByteList bytes(Rssi().request->size);
    EXPECT_EQ(Words(RequestDifferences(Rssi(), bytes, bytes)), "");
}

TEST(FieldDifferenceTest, FieldsAreNamedInTheOrderOfTheBytes)
{
    ByteList one(Rssi().request->size);
    ByteList other = one;
    Put(one, *Rssi().request, "band", 78);
    Put(other, *Rssi().request, "dlFrequency[2]", 3500000);
    EXPECT_EQ(Words(RequestDifferences(Rssi(), one, other)), "dlFrequency[2]: 0 kHz | 3500000 kHz\n"
                                                             "band: n78 | none\n");
}

TEST(FieldDifferenceTest, ReadingsAreMarked)
{
    const ByteList request(Rssi().request->size);
    ByteList one(Rssi().answer->size);
    ByteList other = one;
    Put(other, *Rssi().answer, "rows.simultaneous.row[1].path0Div", -32);
    EXPECT_EQ(Words(AnswerDifferences(Rssi(), {one, request}, {other, request})),
              "rows.simultaneous.row[1].path0Div*: 0 dBm | -1 dBm\n");
}

TEST(FieldDifferenceTest, OtherLayoutOfAUnionIsAbsentOnTheOneSide)
{
    const ByteList answer(Rssi().answer->size);
    ByteList one(Rssi().request->size);
    ByteList other = one;
    Put(one, *Rssi().request, "singlePath", 1);
    const std::string words = Words(AnswerDifferences(Rssi(), {answer, one}, {answer, other}));
    EXPECT_NE(words.find("rows.single.mainG: 0 | absent\n"), std::string::npos);
    EXPECT_NE(words.find("rows.simultaneous.mainG: absent | 0\n"), std::string::npos);
    EXPECT_EQ(words.find("dlFrequency"), std::string::npos);
}

TEST(FieldDifferenceTest, CutAndLongRecordsDifferInSizeAndRest)
{
    const SFunction &pdValue = FunctionOf(EFunction::GetPdValue);
    EXPECT_EQ(Words(RequestDifferences(pdValue, ByteList{1, 0, 0, 0}, ByteList{1, 0})),
              "kind: 1 | absent\n(size): 4 bytes | 2 bytes\n");
    EXPECT_EQ(Words(RequestDifferences(pdValue, ByteList{1, 0, 0, 0, 5}, ByteList{1, 0, 0, 0, 6})),
              "(rest): 1 byte | other bytes\n");
    EXPECT_EQ(Words(RequestDifferences(pdValue, ByteList{1, 0, 5}, ByteList{1, 0, 6})),
              "(rest): 3 bytes | other bytes\n");
}

}  // namespace
