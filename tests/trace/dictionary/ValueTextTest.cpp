// Values as a person reads them.

#include "Trace/dictionary/ValueText.h"

#include <cstring>

#include <gtest/gtest.h>

#include "Trace/dictionary/CalRecordLayouts.h"
#include "Trace/dictionary/CapabilityLayouts.h"
#include "Trace/dictionary/CommandLayouts.h"
#include "Trace/dictionary/ResultLayouts.h"
#include "Trace/dictionary/RouteDetailLayouts.h"

namespace {

// The field's text in a record.
template <class Record>
std::string TextIn(const Record &record, std::string_view name)
{
    std::string text = "not found";
    const std::span bytes(reinterpret_cast<const uint8_t *>(&record), sizeof record);
    Decode(kLayoutOf<Record>, bytes, {}, [&](const SFieldValue &value) {
        if (value.name == name)
            text = ValueText(value);
    });
    return text;
}

TEST(ValueTextTest, NumbersAreInTheirUnit)
{
    SNrPuschCcV7 carrier = {};
    carrier.ulFrequency = 3500000;
    carrier.vrbLength = 273;
    carrier.cellId = 7;
    EXPECT_EQ(TextIn(carrier, "ulFrequency"), "3500000 kHz");
    EXPECT_EQ(TextIn(carrier, "vrbLength"), "273 RB");
    EXPECT_EQ(TextIn(carrier, "cellId"), "7");
    carrier.ulFrequency = 4294967295u;
    EXPECT_EQ(TextIn(carrier, "ulFrequency"), "4294967295 kHz");
}

TEST(ValueTextTest, FractionsAreExact)
{
    SNrPuschCcV7 carrier = {};
    for (const auto &[raw, text] : {std::pair(-2688, "-10.5 dBm"),
                                    {1, "0.00390625 dBm"},
                                    {-1, "-0.00390625 dBm"},
                                    {256, "1 dBm"},
                                    {0, "0 dBm"},
                                    {-32768, "-128 dBm"},
                                    {32767, "127.99609375 dBm"}}) {
        carrier.txPowerValue = static_cast<int16_t>(raw);
        EXPECT_EQ(TextIn(carrier, "txPowerValue"), text);
    }
    SAptLevel level = {};
    level.dc2dcLevel = 34;
    EXPECT_EQ(TextIn(level, "dc2dcLevel"), "3.4 V");
}

TEST(ValueTextTest, ReadingsOfAReportAreDbm)
{
    NRfTestResult_GetMixRxReportV7 report = {};
    report.RSRP3[9] = -12001;
    EXPECT_EQ(TextIn(report, "RSRP3[9]"), "-93.7578125 dBm");
}

TEST(ValueTextTest, NamedValuesSayTheirNumberToo)
{
    SNrPuschCcV7 carrier = {};
    carrier.txScs = 1;
    carrier.mcsMode = 8;
    EXPECT_EQ(TextIn(carrier, "txScs"), "30 kHz (1)");
    EXPECT_EQ(TextIn(carrier, "mcsMode"), "DFT-s-OFDM 256QAM (8)");
    carrier.txScs = 3;
    EXPECT_EQ(TextIn(carrier, "txScs"), "3");
}

TEST(ValueTextTest, BandsHaveTheirPrefix)
{
    SNrDlFreqCmdV7 command = {};
    command.band = 78;
    EXPECT_EQ(TextIn(command, "band"), "n78");
    EXPECT_EQ(TextIn(SNrDlFreqCmdV7(), "band"), "none");
}

TEST(ValueTextTest, MasksNameTheirBits)
{
    STxBwRegionHw hardware = {};
    EXPECT_EQ(TextIn(hardware, "antMask"), "none");
    hardware.antMask = 0x80000005;
    EXPECT_EQ(TextIn(hardware, "antMask"), "0, 2, 31 (0x80000005)");
}

TEST(ValueTextTest, ItemWordsShowTheirValue)
{
    SMMRfCapability world = {};
    EXPECT_EQ(TextIn(world, "worldMode"), "absent");
    world.worldMode = 0x40u << 2 | 1u;
    EXPECT_EQ(TextIn(world, "worldMode"), "NR (0x40)");
    world.worldMode = 0x41u << 2 | 1u;
    EXPECT_EQ(TextIn(world, "worldMode"), "0, NR (0x41)");
    SNRfCapability nr = {};
    nr.generation = 0xfffff000 | 1u << 2 | 1u;
    EXPECT_EQ(TextIn(nr, "generation"), "1");
}

TEST(ValueTextTest, TextsEndAtTheirZeroOrFillTheirRoom)
{
    STxBwRegionHw hardware = {};
    std::memcpy(hardware.port, "TX_0\0junk", 9);
    EXPECT_EQ(TextIn(hardware, "port"), "TX_0");
    std::memset(hardware.port, 'x', sizeof hardware.port);
    EXPECT_EQ(TextIn(hardware, "port"), std::string(sizeof hardware.port, 'x'));
    std::memcpy(hardware.port, "a b\n\xff\\\0", 7);
    EXPECT_EQ(TextIn(hardware, "port"), "a b\\x0a\\xff\\x5c");
}

TEST(ValueTextTest, ReservedBytesAreDigits)
{
    SNrPuschCcV7 carrier = {};
    carrier.reserved42[1] = 0xa7;
    EXPECT_EQ(TextIn(carrier, "reserved42"), "00a7");
}

}  // namespace
