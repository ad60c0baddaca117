// Fields are found by the names that a reader tells.

#include "Trace/dictionary/FieldPath.h"

#include <gtest/gtest.h>

#include "Trace/dictionary/CalRecordLayouts.h"
#include "Trace/dictionary/CapabilityLayouts.h"
#include "Trace/dictionary/CommandLayouts.h"
#include "Trace/dictionary/Decode.h"

namespace {

TEST(FieldPathTest, EveryNameThatIsReadIsFoundWhereItWasRead)
{
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        for (const SLayout *layout : {function.request, function.answer}) {
            if (layout == nullptr)
                continue;
            const std::vector<uint8_t> bytes(layout->size);
            Decode(*layout, bytes, {}, [&](const SFieldValue &value) {
                const auto found = FindField(*layout, value.name);
                ASSERT_TRUE(found) << value.name;
                ASSERT_EQ(found->field, value.field) << value.name;
                ASSERT_EQ(found->offset, value.offset) << value.name;
                ASSERT_EQ(found->size, value.bytes.size()) << value.name;
            });
        }
    }
}

TEST(FieldPathTest, ArraysAndRecordsAreFoundAsAWhole)
{
    const SLayout &config = kLayoutOf<SMMRfRouteConfigV7>;
    EXPECT_EQ(FindField(config, "routes.txRoute")->size, 2400u);
    EXPECT_EQ(FindField(config, "routes.txRoute")->offset, 456u);
    EXPECT_EQ(FindField(config, "routes.txRoute[2]")->offset, 504u);
    EXPECT_EQ(FindField(config, "freqRange.rx")->offset, 276u);
    EXPECT_EQ(FindField(config, "rxGainInfo[1].t2[6][2][1]")->offset, 4256u + 610 + 21 + 61);
}

TEST(FieldPathTest, PartOfAUnionIsFoundWhetherItHoldsOrNot)
{
    const SLayout &command = kLayoutOf<SNrPuschTxCmdV7>;
    EXPECT_EQ(FindField(command, "normalMode.carrier[1].band")->offset, 52u);
    EXPECT_EQ(FindField(command, "forcedMode.carrier.band")->offset, 4u);
}

TEST(FieldPathTest, ElementsAreThoseThatAreReadAndHaveTheirNames)
{
    const SLayout &layout = kLayoutOf<SMMGetCalDataCnfV7>;
    const std::vector<SFoundField> elements = ElementsOf(layout);
    std::size_t i = 0;
    Decode(layout, std::vector<uint8_t>(layout.size), {}, [&](const SFieldValue &value) {
        ASSERT_LT(i, elements.size());
        ASSERT_EQ(elements[i].field, value.field) << value.name;
        ASSERT_EQ(elements[i].offset, value.offset) << value.name;
        ASSERT_EQ(elements[i].size, value.bytes.size()) << value.name;
        if (i++ % 97 == 0) {
            ASSERT_EQ(NameAt(layout, static_cast<uint32_t>(value.offset)), value.name);
        }
    });
    EXPECT_EQ(i, elements.size());
    EXPECT_EQ(NameAt(layout, elements.back().offset + elements.back().size), "");
}

TEST(FieldPathTest, NumbersAreReadByTheirName)
{
    SMMRfRouteConfigV7 config = {};
    config.freqRange.tx.low[13] = -5;
    config.routes.txRoute[99].bwRegionKhz[3] = 100000;
    const std::span bytes(reinterpret_cast<const uint8_t *>(&config), sizeof config);
    const auto read = [&](std::string_view path) {
        return NumberAt(kLayoutOf<SMMRfRouteConfigV7>, bytes, path);
    };
    EXPECT_EQ(read("freqRange.tx.low[13]"), -5);
    EXPECT_EQ(read("routes.txRoute[99].bwRegionKhz[3]"), 100000);
    EXPECT_EQ(read("routes.txRoute[99].bwRegionKhz"), std::nullopt);
    EXPECT_EQ(read("routes.txRoute[99]"), std::nullopt);
    EXPECT_EQ(read("routes.reserved6"), std::nullopt);
    EXPECT_EQ(read("routes.nothing"), std::nullopt);
    EXPECT_EQ(NumberAt(kLayoutOf<SMMRfRouteConfigV7>, bytes.first(3), "bandCount"), std::nullopt);
}

TEST(FieldPathTest, ANumberIsReadUpToTheEndOfTheBytesAndNotBeyondIt)
{
    const SLayout &command = kLayoutOf<SNrPuschTxCmdV7>;
    const char path[] = "normalMode.carrier[1].band";
    const auto found = FindField(command, path);
    ASSERT_TRUE(found);
    std::vector<uint8_t> bytes(found->offset + found->size);
    EXPECT_EQ(NumberAt(command, bytes, path), 0);
    bytes.pop_back();
    EXPECT_EQ(NumberAt(command, bytes, path), std::nullopt);
}

TEST(FieldPathTest, WhatIsNoFieldIsNotFound)
{
    const SLayout &command = kLayoutOf<SNrPuschTxCmdV7>;
    for (const char *path :
         {"", ".", "force", "forcedMod", "forced.x", "forced[0]", "forcedMode.",
          "forcedMode.carriers", "normalMode.carrier.band", "normalMode.carrier[2].band",
          "normalMode.carrier[].band", "normalMode.carrier[-1].band", "normalMode.carrier[1",
          "normalMode.carrier[1]band", "normalMode.carrier[1][0].band",
          "normalMode.carrier[99999999999].band"})
        EXPECT_FALSE(FindField(command, path)) << path;
}

}  // namespace
