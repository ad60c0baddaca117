#include "Model/NrArfcn.h"

#include <gtest/gtest.h>

namespace {

// TS 38.104, table 5.4.2.1-1, the ends of its rows; band edges of table 5.4.2.3-1.
struct SPoint
{
    qint64 arfcn;
    double khz;
};
constexpr SPoint kPoints[] = {
    {0, 0},
    {599999, 2999995},
    {600000, 3000000},
    {2016666, 24249990},
    {2016667, 24250080},
    {3279165, 99999960},
    {422000, 2110000},
    {499200, 2496000},
    {620000, 3300000},
    {653333, 3799995},
    {693334, 4400010},
    {636667, 3550005},
};

TEST(NrArfcnTest, EachNumberIsAFrequencyAndBack)
{
    for (const SPoint &point : kPoints) {
        EXPECT_EQ(KhzOfArfcn(point.arfcn), point.khz);
        EXPECT_EQ(ArfcnOfKhz(point.khz), point.arfcn);
    }
}

TEST(NrArfcnTest, AFrequencyBetweenTwoPointsHasTheNearestOne)
{
    EXPECT_EQ(ArfcnOfKhz(2110002), 422000);
    EXPECT_EQ(ArfcnOfKhz(2110003), 422001);
    EXPECT_EQ(ArfcnOfKhz(2999998), 600000);
    EXPECT_EQ(ArfcnOfKhz(24250030), 2016666);
    EXPECT_EQ(ArfcnOfKhz(24250040), 2016667);
}

TEST(NrArfcnTest, OutsideOfTheRasterThereIsNone)
{
    EXPECT_EQ(KhzOfArfcn(-1), std::nullopt);
    EXPECT_EQ(KhzOfArfcn(3279166), std::nullopt);
    EXPECT_EQ(ArfcnOfKhz(100000100), std::nullopt);
    EXPECT_EQ(ArfcnOfKhz(-10), std::nullopt);
}

TEST(NrArfcnTest, TheRasterOfABandGoesByTheScsWhereItDoes)
{
    EXPECT_EQ(NearestRasterKhz("n1", 15, 2140049), 2140000);
    EXPECT_EQ(NearestRasterKhz("n1", 30, 2140051), 2140100);
    EXPECT_EQ(NearestRasterKhz("n78", 15, 3550000), 3550005);
    EXPECT_EQ(NearestRasterKhz("n78", 30, 3550000), 3549990);
    EXPECT_EQ(NearestRasterKhz("n78", 0, 3550000), 3550005);
    EXPECT_EQ(NearestRasterKhz("n79", 30, 4400000), 4400010);
    EXPECT_EQ(NearestRasterKhz("n41", 30, 2496010), 2496000);
    EXPECT_EQ(NearestRasterKhz("n46", 30, 5160000), 5160000);
    EXPECT_EQ(NearestRasterKhz("n78", 30, -5), std::nullopt);
}

TEST(NrArfcnTest, AnEntryIsAFrequencyInAnyUnitOrANumber)
{
    const auto entered = [](const char *text) { return KhzOfEntry(text, 3300000, 3800000); };
    EXPECT_EQ(entered("3549990"), 3549990);
    EXPECT_EQ(entered(" 3549990k "), 3549990);
    EXPECT_EQ(entered("3549990 kHz"), 3549990);
    EXPECT_EQ(entered("3549.99M"), 3549990);
    EXPECT_EQ(entered("3549.99 mhz"), 3549990);
    EXPECT_EQ(entered("3.54999G"), 3549990);
    EXPECT_EQ(entered("636666"), 3549990);
    EXPECT_EQ(entered("0"), 0);  // neither: as it stands
}

TEST(NrArfcnTest, WhatIsNeitherIsNone)
{
    for (const char *text : {"", "n78", "3,5G", "-5", "1e99", "nan", "inf", "M", "3549.99 T"})
        EXPECT_EQ(KhzOfEntry(text, 3300000, 3800000), std::nullopt) << text;
}

}  // namespace
