// What readings are held against, and the words when they do not hold.
#include "Runner/run/Expectations.h"

#include <gtest/gtest.h>

namespace {

std::string Judged(const SPlanExpect &expect, const QStringList &readings,
                   const QStringList &minus = {})
{
    return JudgeReadings(expect, readings, minus).toStdString();
}

SPlanExpect Within(double min, double max, EOf of = EOf::Each)
{
    SPlanExpect expect;
    expect.of = of;
    expect.min = min;
    expect.max = max;
    return expect;
}

TEST(ExpectationsTest, readingsOnTheirLimitsHold)
{
    EXPECT_EQ(Judged(Within(-97, -95), {"-97", " -95.0 ", ""}), "");
}

TEST(ExpectationsTest, theFirstReadingBeyondIsToldWithTheNumberOfAll)
{
    EXPECT_EQ(Judged(Within(-97, -95), {"-96", "-97.5", "-96", "-90"}),
              "a reading is -97.5, below -97; so are or exceed 2 of 4");
    EXPECT_EQ(Judged(Within(-97, -95), {"-94.5"}), "a reading is -94.5, above -95");
}

TEST(ExpectationsTest, oneReadingStandsForAll)
{
    const QStringList readings{"1", "2", "6"};
    EXPECT_EQ(Judged(Within(3, 3, EOf::Mean), readings), "");
    EXPECT_EQ(Judged(Within(4, 9, EOf::Mean), readings), "the mean is 3, below 4");
    EXPECT_EQ(Judged(Within(2, 9, EOf::Min), readings), "the least reading is 1, below 2");
    EXPECT_EQ(Judged(Within(0, 5, EOf::Max), readings), "the greatest reading is 6, above 5");
    EXPECT_EQ(Judged(Within(0, 5, EOf::Last), readings), "the last reading is 6, above 5");
}

TEST(ExpectationsTest, aTextIsThatOfEachReadingOrOfTheLast)
{
    SPlanExpect expect;
    expect.value = "PASS";
    EXPECT_EQ(Judged(expect, {"PASS", "", "PASS"}), "");
    EXPECT_EQ(Judged(expect, {"FAIL", "PASS"}), "it is \"FAIL\", not \"PASS\"");
    expect.of = EOf::Last;
    EXPECT_EQ(Judged(expect, {"FAIL", "PASS"}), "");
    EXPECT_EQ(Judged(expect, {"PASS", "FAIL"}), "it is \"FAIL\", not \"PASS\"");
}

TEST(ExpectationsTest, oneValueIsSubtractedFromAllOrOneFromEach)
{
    EXPECT_EQ(Judged(Within(-1, 1), {"10", "11"}, {"10.5"}), "");
    EXPECT_EQ(Judged(Within(-1, 1), {"10", "20"}, {"10", "20.5"}), "");
    EXPECT_EQ(Judged(Within(-1, 1), {"10", "20"}, {"10", "22"}), "a reading is -2, below -1");
    EXPECT_EQ(Judged(Within(-1, 1), {"1", "2", "3"}, {"1", "2"}),
              "3 readings, but 2 values to subtract");
}

TEST(ExpectationsTest, whatIsNoNumberIsNamed)
{
    EXPECT_EQ(Judged(Within(0, 9), {"1", "NA"}), "\"NA\" is no number");
    EXPECT_EQ(Judged(Within(0, 9), {"1", "inf"}), "\"inf\" is no number");
    EXPECT_EQ(Judged(Within(0, 9), {"1", "2"}, {"NA"}), "\"NA\" is no number");
    EXPECT_EQ(Judged(Within(0, 9), {"1", "2"}, {"1", "off"}), "\"off\" is no number");
}

TEST(ExpectationsTest, blankCellsAreNoReadings)
{
    EXPECT_EQ(Judged(Within(0, 9), {"", " "}), "there is no reading");
    EXPECT_EQ(Judged(Within(0, 9), {}), "there is no reading");
}

}  // namespace
