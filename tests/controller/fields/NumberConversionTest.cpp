// Numbers, bands, flags and fixed point values out of a document's texts.
#include <gtest/gtest.h>

#include "Controller/fields/CommandConversions.h"

namespace {

TEST(BandNumber, IsAllBehindTheFirstCharacter)
{
    EXPECT_EQ(BandNumber("n1"), 1);
    EXPECT_EQ(BandNumber("n78"), 78);
    EXPECT_EQ(BandNumber("n257"), 257);
}

TEST(BandNumber, BandWithoutItsPrefixLosesItsFirstDigit)
{
    EXPECT_EQ(BandNumber("78"), 8);
    EXPECT_EQ(BandNumber("1"), 0);
}

TEST(BandNumber, TextThatNamesNoBandIsZero)
{
    for (const char *text : {"", "n", "nx", "n7x", "n65536", "n-1", "n1.5"})
        EXPECT_EQ(BandNumber(text), 0) << text;
}

TEST(BoolFlag, IsOneForTrueExactly)
{
    EXPECT_EQ(BoolFlag("true"), 1);
    for (const char *text : {"", "false", "True", "TRUE", "true ", "1", "truely"})
        EXPECT_EQ(BoolFlag(text), 0) << text;
}

TEST(DecimalInt, HoldsWhatFitsTheWidth)
{
    EXPECT_EQ(DecimalInt<uint8_t>("255"), 255);
    EXPECT_EQ(DecimalInt<uint16_t>("65535"), 65535);
    EXPECT_EQ(DecimalInt<uint32_t>("4294967295"), 4294967295u);
    EXPECT_EQ(DecimalInt<int8_t>("-128"), -128);
    EXPECT_EQ(DecimalInt<int16_t>("-32768"), -32768);
    EXPECT_EQ(DecimalInt<int32_t>("-2147483648"), INT32_MIN);
    EXPECT_EQ(DecimalInt<int32_t>("2147483647"), INT32_MAX);
}

TEST(DecimalInt, IsZeroForWhatDoesNotFit)
{
    EXPECT_EQ(DecimalInt<uint8_t>("256"), 0);
    EXPECT_EQ(DecimalInt<uint16_t>("65536"), 0);
    EXPECT_EQ(DecimalInt<uint32_t>("4294967296"), 0u);
    EXPECT_EQ(DecimalInt<uint16_t>("-1"), 0);
    EXPECT_EQ(DecimalInt<int16_t>("32768"), 0);
    EXPECT_EQ(DecimalInt<int16_t>("-32769"), 0);
    EXPECT_EQ(DecimalInt<uint32_t>("99999999999999999999999"), 0u);
}

TEST(DecimalInt, IsZeroForWhatIsNoDecimalNumber)
{
    for (const char *text : {"", "x", "12x", "0x10", "1.5", "1e3", "-", "1 2"})
        EXPECT_EQ(DecimalInt<uint32_t>(text), 0u) << text;
}

TEST(DecimalInt, LeadingZerosStayDecimal)
{
    EXPECT_EQ(DecimalInt<uint16_t>("010"), 10);
}

TEST(FixedPoint, PowerIsInParts256)
{
    EXPECT_EQ(FixedPoint("-10.5", kPowerScale), -2688);
    EXPECT_EQ(FixedPoint("10", kPowerScale), 2560);
    EXPECT_EQ(FixedPoint("0", kPowerScale), 0);
    EXPECT_EQ(FixedPoint("0.00390625", kPowerScale), 1);
}

TEST(FixedPoint, GainIsInParts32)
{
    EXPECT_EQ(FixedPoint("60.1", kGainScale), 1923);
    EXPECT_EQ(FixedPoint("-60.1", kGainScale), -1923);
    EXPECT_EQ(FixedPoint("0.03125", kGainScale), 1);
}

TEST(FixedPoint, MoreDigitsThanTheUnitTruncateTowardZeroOnBothSides)
{
    EXPECT_EQ(FixedPoint("10.999", kPowerScale), 2815);
    EXPECT_EQ(FixedPoint("-10.999", kPowerScale), -2815);
    EXPECT_EQ(FixedPoint("0.0039", kPowerScale), 0);
    EXPECT_EQ(FixedPoint("-0.0039", kPowerScale), 0);
    EXPECT_EQ(FixedPoint("-10.50390624", kPowerScale), -2688);
    EXPECT_EQ(FixedPoint("-10.50390625", kPowerScale), -2689);
}

TEST(FixedPoint, OverflowKeepsTheLowSixteenBits)
{
    EXPECT_EQ(FixedPoint("127.99609375", kPowerScale), 32767);
    EXPECT_EQ(FixedPoint("128", kPowerScale), -32768);
    EXPECT_EQ(FixedPoint("-128", kPowerScale), -32768);
    EXPECT_EQ(FixedPoint("-128.00390625", kPowerScale), 32767);
    EXPECT_EQ(FixedPoint("200", kPowerScale), -14336);
    EXPECT_EQ(FixedPoint("40001", kPowerScale), 16640);
    EXPECT_EQ(FixedPoint("1e10", kPowerScale), static_cast<int16_t>(2560000000000LL & 0xFFFF));
}

TEST(FixedPoint, WhatIsNoFiniteNumberIsZero)
{
    for (const char *text : {"", "x", "1,5", "nan", "-nan", "inf", "-inf", "1e300", "-1e300"})
        EXPECT_EQ(FixedPoint(text, kPowerScale), 0) << text;
}

TEST(GainModeNumber, IsAllBehindTheLetter)
{
    EXPECT_EQ(GainModeNumber("G3"), 3);
    EXPECT_EQ(GainModeNumber("g1"), 1);
    EXPECT_EQ(GainModeNumber("g12"), 12);
    EXPECT_EQ(GainModeNumber("3"), 3);
}

TEST(GainModeNumber, TextWithoutANumberIsZero)
{
    for (const char *text : {"", "G", "g", "GG1", "g256", "g-1", "g1.5"})
        EXPECT_EQ(GainModeNumber(text), 0) << text;
}

TEST(KhzOfMhzText, IsTheNumberInFrontOfTheUnit)
{
    EXPECT_EQ(KhzOfMhzText("5M", 1), 5000u);
    EXPECT_EQ(KhzOfMhzText("100MHz", 3), 100000u);
    for (const char *text : {"", "M", "MHz", "xM", "1.5M"})
        EXPECT_EQ(KhzOfMhzText(text, 1), 0u) << text;
}

TEST(UpperBoundKhz, IsTheNumberThatEndsTheRange)
{
    EXPECT_EQ(UpperBoundKhz("0 < BW0 <= 20MHz"), 20000u);
    EXPECT_EQ(UpperBoundKhz("20 < BW1 <= 100MHz"), 100000u);
    EXPECT_EQ(UpperBoundKhz("20MHz"), 20000u);
}

TEST(UpperBoundKhz, TextWithoutARangeIsZero)
{
    for (const char *text : {"", "NA", "Not found", "0 < BW0 <= MHz", "0 < BW0 <= 20MHz "})
        EXPECT_EQ(UpperBoundKhz(text), 0u) << text;
}

TEST(ToneOffsetKhz, StepsByNinetyAndIsZeroBeyondTheChoices)
{
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(ToneOffsetKhz(i), -540 + 90 * i);
    for (int i : {-1, 13, 1000})
        EXPECT_EQ(ToneOffsetKhz(i), 0);
}

}  // namespace
