// modelcheck's rows of data types say what the engine's say.
#include "tools/modelcheck/FormatTypes.h"

#include <gtest/gtest.h>

#include "View/engine/DataTypes.h"

namespace {

TEST(FormatTypes, AreThoseOfTheEngine)
{
    for (const SFormatType &row : AllFormatTypes()) {
        const SDataType *type = FindDataType(row.name);
        ASSERT_TRUE(type) << row.name;
        EXPECT_STREQ(row.className, type->className) << row.name;
        EXPECT_EQ((row.groups & GroupBit(1)) != 0, type->init != nullptr) << row.name;
        EXPECT_EQ((row.groups & GroupBit(2)) != 0, type->inRowTable) << row.name;
        EXPECT_EQ((row.groups & GroupBit(3)) != 0, type->makeCell != nullptr) << row.name;
        EXPECT_EQ(row.needsValue, type->readsEntry || type->cellReadsEntry) << row.name;
        EXPECT_EQ(row.publishesValue, type->valueSignal != nullptr) << row.name;
        EXPECT_EQ(row.publishesStatus, type->statusSignal != nullptr) << row.name;
        EXPECT_EQ(row.followsAsRow, type->relateCell != nullptr) << row.name;
    }
}

TEST(FormatTypes, AreSixWithDistinctNames)
{
    EXPECT_EQ(AllFormatTypes().count, 6U);
    for (const SFormatType &row : AllFormatTypes())
        EXPECT_EQ(FindFormatType(row.name), &row) << row.name;
    EXPECT_EQ(FindFormatType("slider"), nullptr);
}

}  // namespace
