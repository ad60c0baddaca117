// Lists as this tool writes them are read in little time and to the same values as any other list.
#include "Operations/calibration/CalPlainList.h"

#include <algorithm>
#include <array>
#include <random>

#include <gtest/gtest.h>

#include "Operations/calibration/CalCells.h"
#include "Support/WideText.h"

namespace {

constexpr ECalValue kKinds[] = {ECalValue::Number, ECalValue::Db, ECalValue::Volt};

using Values = std::vector<int64_t>;

// The values of a plain list, with room for four; one value, -77, for any other.
Values Plain(ECalValue kind, const wchar_t *text)
{
    std::array<int64_t, 4> room = {};
    const std::optional<size_t> count = ReadPlainList(text, kind, room);
    return count ? Values(room.begin(), room.begin() + *count) : Values{-77};
}
const Values kNotPlain = {-77};

// Notes what is no number or beyond a range, as a page's limits do.
class CNotes : public ICalCellWatch
{
public:
    void See(CCalCell, std::string_view text, ECalValue, int64_t value, bool isNumber) override
    {
        if (!isNumber || !IsShown(value))
            m_notes += std::string(text) + ';';
    }
    bool AreFine(CCalCell, size_t, std::span<const int64_t> values) override
    {
        ++m_lists;
        return std::all_of(values.begin(), values.end(), IsShown);
    }
    const std::string &Text() const { return m_notes; }
    int Lists() const { return m_lists; }

private:
    static bool IsShown(int64_t value) { return value >= -2000 && value <= 2000; }

    std::string m_notes;
    int m_lists = 0;
};

// A list as this tool writes it, with a few characters spoilt now and then.
std::string AnyList(std::mt19937 &random, ECalValue kind)
{
    std::string list;
    for (auto i = random() % 6; i > 0; --i) {
        const int wide = random() % 4 ? 3000 : 40000;
        const auto value = static_cast<int>(random() % static_cast<unsigned>(2 * wide + 1)) - wide;
        AppendCalValue(list, kind, kind == ECalValue::Db ? value : std::abs(value), false);
        if (i > 1 || random() % 4 == 0)
            list += ',';
    }
    constexpr std::string_view kSpoilers = "0123456789.,-+ \tVxe";
    for (auto i = random() % 4; i > 1 && !list.empty(); --i)
        list[random() % list.size()] = kSpoilers[random() % kSpoilers.size()];
    return list;
}

}  // namespace

TEST(CalPlainList, NumbersOfEachKindAreTakenAsTheyAreWritten)
{
    EXPECT_EQ(Plain(ECalValue::Number, L"0,-7,4294967295"), (Values{0, -7, 4294967295}));
    EXPECT_EQ(Plain(ECalValue::Db, L"-30.50000,0.03125,0.06249"), (Values{-976, 1, 1}));
    EXPECT_EQ(Plain(ECalValue::Volt, L"3.4V,0.1V,25.5V"), (Values{34, 1, 255}));
}

TEST(CalPlainList, WhatHasNoRoomIsNotLookedAt)
{
    EXPECT_EQ(Plain(ECalValue::Number, L"1,2,3,4,x"), (Values{1, 2, 3, 4}));
    EXPECT_EQ(Plain(ECalValue::Number, L"1,2,3,4x"), kNotPlain);
}

TEST(CalPlainList, AnEmptyListAndACommaAtTheEndHoldNoValue)
{
    EXPECT_EQ(Plain(ECalValue::Db, L""), Values());
    EXPECT_EQ(Plain(ECalValue::Db, L"1.00000,"), Values{32});
    EXPECT_EQ(Plain(ECalValue::Db, L","), kNotPlain);
}

TEST(CalPlainList, AnyOtherNotationIsNotPlain)
{
    for (const wchar_t *text : {L"1", L"1.0", L"1.000000", L"-", L".50000", L"1.0000x", L"+1.00000",
                                L" 1.00000", L"1.00000 ", L"12345678.00000", L"1.00000\u00B5",
                                L"\u0661.00000", L"1.00000V", L"\uFEFF1.00000"})
        EXPECT_EQ(Plain(ECalValue::Db, text), kNotPlain) << Utf8FromWide(text);
    for (const wchar_t *text : {L"x", L"--1", L"+1", L"1.5", L"1000000000000000000"})
        EXPECT_EQ(Plain(ECalValue::Number, text), kNotPlain) << Utf8FromWide(text);
    for (const wchar_t *text : {L"V", L"3V", L"3.4", L"-3.4V", L"3.45V", L"3.4v", L".4V"})
        EXPECT_EQ(Plain(ECalValue::Volt, text), kNotPlain) << Utf8FromWide(text);
}

TEST(CalPlainList, AnyListGivesTheValuesAndNotesOfThePatientReader)
{
    std::mt19937 random(1503);
    int quick = 0;
    for (int round = 0; round < 200000; ++round) {
        const ECalValue kind = kKinds[random() % std::size(kKinds)];
        const std::string list = AnyList(random, kind);
        std::array<int16_t, 4> expected;
        std::array<int16_t, 4> read;
        expected.fill(7);
        read.fill(7);
        const auto cellsOf = [](auto &values) {
            return CCalCells(values[0], values.size(), sizeof values[0]);
        };
        CNotes expectedNotes;
        CNotes notes;
        const char *failure = cellsOf(expected).Read(list, kind, &expectedNotes);
        const std::wstring wide = WideFromUtf8(list);
        ASSERT_STREQ(cellsOf(read).Read(wide.c_str(), kind, &notes), failure) << list;
        ASSERT_EQ(read, expected) << list;
        ASSERT_EQ(notes.Text(), expectedNotes.Text()) << list;
        ASSERT_EQ(expectedNotes.Lists(), 0);
        quick += notes.Lists();
    }
    EXPECT_GT(quick, 50000);
}

TEST(CalPlainList, EveryVoltageIsThatOfADouble)
{
    for (int tenths = 0; tenths <= 99999; ++tenths) {
        std::string text;
        AppendCalValue(text, ECalValue::Volt, tenths, false);
        int64_t value = 0;
        ASSERT_EQ(ParseCalValue(ECalValue::Volt, text, value), nullptr);
        ASSERT_EQ(Plain(ECalValue::Volt, WideFromUtf8(text).c_str()), Values{value}) << text;
    }
}
