#include "Model/NrBandwidth.h"

#include <gtest/gtest.h>

namespace {

TEST(NrBandwidthTest, MegahertzAreThemselves)
{
    EXPECT_EQ(ChannelKhz("5M", 15), 5000);
    EXPECT_EQ(ChannelKhz(" 100 MHz ", 0), 100000);
}

TEST(NrBandwidthTest, ResourceBlocksGoByTheScs)
{
    EXPECT_EQ(ChannelKhz("25 RB", 15), 5000);
    EXPECT_EQ(ChannelKhz("11 RB", 30), 5000);
    EXPECT_EQ(ChannelKhz("11 RB", 60), 10000);
    EXPECT_EQ(ChannelKhz("273RB", 30), 100000);
    EXPECT_EQ(ChannelKhz("270 RB", 15), 50000);
}

TEST(NrBandwidthTest, WhatTheTableLacksIsNone)
{
    EXPECT_EQ(ChannelKhz("273 RB", 15), std::nullopt);
    EXPECT_EQ(ChannelKhz("0 RB", 15), std::nullopt);
    EXPECT_EQ(ChannelKhz("25 RB", 0), std::nullopt);
    EXPECT_EQ(ChannelKhz("BW0", 15), std::nullopt);
    EXPECT_EQ(ChannelKhz("", 15), std::nullopt);
}

}  // namespace
