// Numbers of calibration records as the texts of a page, at the ends of what fields and editors
// hold.
#include "Controller/calibration/CalText.h"

#include <climits>

#include <gtest/gtest.h>

namespace {

TEST(CalTextTest, EveryDbValueComesBackAsItWas)
{
    for (int value = INT16_MIN; value <= INT16_MAX; ++value)
        ASSERT_EQ(CalValue(ECalText::Db, CalText(ECalText::Db, value)), value);
}

TEST(CalTextTest, DbAreMultipliedAndTruncatedTowardZero)
{
    EXPECT_EQ(CalValue(ECalText::Db, "-30.5"), -976);
    EXPECT_EQ(CalValue(ECalText::Db, "0.0624"), 1);
    EXPECT_EQ(CalValue(ECalText::Db, "-0.0624"), -1);
    EXPECT_EQ(CalValue(ECalText::Db, "0.03"), 0);
}

// The editor of PA gain goes up to 2047 dB, the field to 1023.96875 dB.
TEST(CalTextTest, DbBeyondTheFieldAreHeldToItAndKeepTheirSign)
{
    EXPECT_EQ(CalValue(ECalText::Db, "1023.96875"), INT16_MAX);
    EXPECT_EQ(CalValue(ECalText::Db, "1024"), INT16_MAX);
    EXPECT_EQ(CalValue(ECalText::Db, "2047.00000"), INT16_MAX);
    EXPECT_EQ(CalValue(ECalText::Db, "1e300"), INT16_MAX);
    EXPECT_EQ(CalValue(ECalText::Db, "-1024"), INT16_MIN);
    EXPECT_EQ(CalValue(ECalText::Db, "-1024.1"), INT16_MIN);
    EXPECT_EQ(CalValue(ECalText::Db, "-2048"), INT16_MIN);
    EXPECT_EQ(CalValue(ECalText::WholeDb, "1024"), INT16_MAX);
    EXPECT_EQ(CalValue(ECalText::WholeDb, "-1025"), INT16_MIN);
}

TEST(CalTextTest, WhatIsNoNumberIs0)
{
    for (const char *text : {"", "x", "1,5", "nan", "inf", "-inf", "1e999", "0x10"})
        EXPECT_EQ(CalValue(ECalText::Db, text), 0) << text;
    for (const char *text : {"", "x", "1.5", "40000"})
        EXPECT_EQ(CalValue(ECalText::WholeDb, text), 0) << text;
    EXPECT_EQ(CalValue(ECalText::Number, "x"), 0);
}

}  // namespace
