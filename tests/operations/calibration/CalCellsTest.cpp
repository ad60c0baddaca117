// Numbers of calibration records as text and back: exact for every value, lenient with people.
#include "Operations/calibration/CalCells.h"

#include <climits>
#include <clocale>
#include <random>

#include <gtest/gtest.h>

namespace {

std::string Text(ECalValue kind, int64_t value, bool lone = false)
{
    std::string text;
    AppendCalValue(text, kind, value, lone);
    return text;
}

std::string Text(ECalValue kind, const CCalCells &cells)
{
    std::string text;
    cells.AppendTo(text, kind);
    return text;
}

int64_t Value(ECalValue kind, const char *text)
{
    int64_t value = -77;
    EXPECT_EQ(ParseCalValue(kind, text, value), nullptr) << text;
    return value;
}

// Five values, read over what the places held before.
std::vector<int16_t> DbList(const char *text)
{
    std::vector<int16_t> values = {7, 7, 7, 7, 7};
    const CCalCells cells(values[0], values.size(), sizeof values[0]);
    EXPECT_EQ(cells.Read(text, ECalValue::Db), nullptr);
    return values;
}

std::string VoltFailure(const char *text)
{
    uint8_t value = 9;
    const char *failure = CCalCells(value).Read(text, ECalValue::Volt);
    return failure ? failure : "";
}

using Values = std::vector<int16_t>;

}  // namespace

TEST(CalCells, EveryDbValueComesBackAsItWas)
{
    for (int value = INT16_MIN; value <= INT16_MAX; ++value) {
        ASSERT_EQ(Value(ECalValue::Db, Text(ECalValue::Db, value).c_str()), value);
        ASSERT_EQ(Value(ECalValue::Db, Text(ECalValue::Db, value, true).c_str()), value);
    }
}

TEST(CalCells, DbTextIsThatOfPrintf)
{
    for (int value = INT16_MIN; value <= INT16_MAX; ++value) {
        char list[32];
        char lone[32];
        std::snprintf(list, sizeof list, "%.5f", value / 32.0);
        std::snprintf(lone, sizeof lone, "%lf", value / 32.0);
        ASSERT_EQ(Text(ECalValue::Db, value), list);
        ASSERT_EQ(Text(ECalValue::Db, value, true), lone);
    }
}

TEST(CalCells, EveryVoltageComesBackAsItWas)
{
    for (int value = 0; value <= UINT8_MAX; ++value)
        ASSERT_EQ(Value(ECalValue::Volt, Text(ECalValue::Volt, value).c_str()), value);
    EXPECT_EQ(Text(ECalValue::Volt, 34), "3.4V");
    EXPECT_EQ(Text(ECalValue::Volt, 255), "25.5V");
}

TEST(CalCells, TenthOfAVoltIsOne)
{
    EXPECT_EQ(Value(ECalValue::Volt, "0.1V"), 1);
}

TEST(CalCells, DbAreTruncatedTowardsZero)
{
    EXPECT_EQ(Value(ECalValue::Db, "0.06249"), 1);
    EXPECT_EQ(Value(ECalValue::Db, "-0.06249"), -1);
    EXPECT_EQ(Value(ECalValue::Db, "-30.5"), -976);
    EXPECT_EQ(Value(ECalValue::Volt, "3.49V"), 34);
}

TEST(CalCells, ListIsJoinedByCommasWithoutBlanks)
{
    int16_t values[] = {0, -1, 976};
    EXPECT_EQ(Text(ECalValue::Db, CCalCells(values)), "0.00000,-0.03125,30.50000");
    uint32_t frequencies[] = {0, UINT32_MAX};
    EXPECT_EQ(Text(ECalValue::Number, CCalCells(frequencies)), "0,4294967295");
}

TEST(CalCells, LoneFieldHasTheFormOfALoneValue)
{
    int16_t value = -16;
    EXPECT_EQ(Text(ECalValue::Db, CCalCells(value)), "-0.500000");
}

TEST(CalCells, ListOfAFieldOfEachElementSkipsTheOthers)
{
    struct SLevel
    {
        uint8_t mode;
        int16_t gain;
    };
    SLevel levels[] = {{1, 32}, {2, 64}, {3, 96}};
    const CCalCells gains(levels, &SLevel::gain);
    EXPECT_EQ(Text(ECalValue::Db, gains), "1.00000,2.00000,3.00000");
    EXPECT_EQ(gains.Read("-1,-2,-3", ECalValue::Db), nullptr);
    EXPECT_EQ(levels[2].gain, -96);
    EXPECT_EQ(levels[2].mode, 3);
}

TEST(CalCells, DbOfPlainNotationIsThatOfADouble)
{
    std::mt19937 random(31);
    for (int round = 0; round < 200000; ++round) {
        const int decimals = 4 + static_cast<int>(random() % 3);
        const double value = static_cast<int>(random() % 2048001) / 1000.0 - 1024;
        char text[32];
        std::snprintf(text, sizeof text, "%.*f", decimals,
                      value + static_cast<int>(random() % 100) / 1e6);
        int16_t units[] = {7, 7};
        ASSERT_EQ(CCalCells(units).Read(std::string(text) + ",0.50000", ECalValue::Db), nullptr);
        ASSERT_EQ(units[0], static_cast<int16_t>(std::strtod(text, nullptr) * 32)) << text;
        ASSERT_EQ(units[1], 16);
    }
}

TEST(CalCells, PlainNotationThatIsSpoiltIsReadLikeAnyOther)
{
    EXPECT_EQ(DbList("1.00000x,1.0000x,-.50000,12345678.00000,-"), (Values{32, 32, -16, 32767, 0}));
    EXPECT_EQ(DbList("1.00000,"), (Values{32, 0, 0, 0, 0}));
    EXPECT_EQ(DbList("-1.0000"), (Values{-32, 0, 0, 0, 0}));
    EXPECT_EQ(DbList("1.00000 ,+2.00000,--1.00000,1.000000,99999999999999999999.00000"),
              (Values{32, 64, 0, 32, 32767}));
}

TEST(CalCells, ShortListLeavesTheTailZero)
{
    EXPECT_EQ(DbList("1,2"), (Values{32, 64, 0, 0, 0}));
    EXPECT_EQ(DbList("1,"), (Values{32, 0, 0, 0, 0}));
    EXPECT_EQ(DbList(""), (Values{0, 0, 0, 0, 0}));
}

TEST(CalCells, LongListLosesWhatIsTooMuch)
{
    EXPECT_EQ(DbList("1,2,3,4,5,6,seven"), (Values{32, 64, 96, 128, 160}));
}

TEST(CalCells, WhatIsNoNumberIsZero)
{
    EXPECT_EQ(DbList("x,,nan,1e999,--2"), (Values{0, 0, 0, 0, 0}));
    EXPECT_EQ(Value(ECalValue::Number, "x"), 0);
    EXPECT_EQ(Value(ECalValue::Number, ""), 0);
    EXPECT_EQ(Value(ECalValue::Number, "+-5"), 0);
    EXPECT_EQ(Value(ECalValue::Number, "+"), 0);
}

TEST(CalCells, BlanksPlusAndUnitsAroundANumberDoNotMatter)
{
    EXPECT_EQ(DbList(" 1 ,\t+2,3 dB,.5,5."), (Values{32, 64, 96, 16, 160}));
    EXPECT_EQ(Value(ECalValue::Number, " 3500000 kHz"), 3500000);
    EXPECT_EQ(Value(ECalValue::Volt, " 3.4V "), 34);
}

TEST(CalCells, NumberBeyondTheFieldIsHeldToItsRange)
{
    EXPECT_EQ(DbList("1024,-1024.1,1e300,-1e300,inf"),
              (Values{INT16_MAX, INT16_MIN, INT16_MAX, INT16_MIN, INT16_MAX}));
    uint8_t byte = 0;
    uint16_t word = 0;
    uint32_t number = 0;
    CCalCell(byte).Set(Value(ECalValue::Number, "256"));
    CCalCell(word).Set(Value(ECalValue::Number, "99999999999999999999999"));
    CCalCell(number).Set(Value(ECalValue::Number, "-99999999999999999999999"));
    EXPECT_EQ(byte, UINT8_MAX);
    EXPECT_EQ(word, UINT16_MAX);
    EXPECT_EQ(number, 0u);
    CCalCell(byte).Set(Value(ECalValue::Volt, "-1.0V"));
    EXPECT_EQ(byte, 0);
}

TEST(CalCells, FailedVoltageIsToldInItsWords)
{
    EXPECT_EQ(VoltFailure("V"), "invalid stod argument");
    EXPECT_EQ(VoltFailure("highV"), "invalid stod argument");
    EXPECT_EQ(VoltFailure(",3.4V"), "invalid stod argument");
    EXPECT_EQ(VoltFailure("1e999V"), "stod argument out of range");
    EXPECT_EQ(VoltFailure("3.4V"), "");
}

TEST(CalCells, VoltagesWithoutTextAreZeroAndNoFailure)
{
    uint8_t values[] = {9, 9};
    EXPECT_EQ(CCalCells(values).Read("3.4V", ECalValue::Volt), nullptr);
    EXPECT_EQ(values[0], 34);
    EXPECT_EQ(values[1], 0);
}

TEST(CalCells, DecimalPointStaysInALocaleOfCommas)
{
    for (const char *name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"})
        std::setlocale(LC_NUMERIC, name);
    EXPECT_EQ(Text(ECalValue::Db, 16), "0.50000");
    EXPECT_EQ(Value(ECalValue::Db, "0.5"), 16);
    std::setlocale(LC_NUMERIC, "C");
}
