// The flash as a panel shows it: file, records and their size, what differs from factory data.

#include <cstdlib>
#include <filesystem>

#include <unistd.h>

#include "tests/simulator/flash/CalFixture.h"
#include "tests/simulator/steer/SteerText.h"

namespace {

namespace fs = std::filesystem;

class FlashInfoTest : public CCalTest
{
protected:
    void TearDown() override
    {
        unsetenv("VOND_SIM_FLASH");
        CCalTest::TearDown();
    }

    static SVondSimFlashItem Item(uint32_t index)
    {
        SVondSimFlashItem item = {};
        EXPECT_EQ(VondSim_GetFlashItem(index, &item), 0);
        return item;
    }

    static void ChangeRoute1()
    {
        std::vector<SType1Block> blocks = Type1(1);
        blocks[0].loss[0][0].hpm += 32;
        ASSERT_EQ(CCalDownload().Type1(1, blocks).Send().status, kVondCalSuccess);
    }
};

TEST_F(FlashInfoTest, ItemsAddUpToTheRecords)
{
    SVondSimFlashItem item = {};
    EXPECT_EQ(VondSim_GetFlashItem(3, &item), -1);
    EXPECT_STREQ(Item(0).item, "type1");
    EXPECT_STREQ(Item(1).item, "type2");
    EXPECT_STREQ(Item(2).item, "apt");
    uint32_t records = 0;
    uint64_t bytes = 0;
    for (uint32_t i = 0; i < 3; ++i) {
        records += Item(i).recordCount;
        bytes += Item(i).byteCount;
        EXPECT_EQ(Item(i).changedCount, 0u);
    }
    EXPECT_EQ(VondSim_FlashRecordCount(), records);
    uint64_t sum = 0;
    SVondSimFlashRecord record = {};
    for (uint32_t i = 0; i < records; ++i) {
        ASSERT_EQ(VondSim_GetFlashRecord(i, &record), 0);
        sum += record.byteCount;
    }
    EXPECT_EQ(sum, bytes);
    EXPECT_STREQ(record.item, "apt");
    EXPECT_GT(record.bandwidth, 0u);
    EXPECT_EQ(VondSim_GetFlashRecord(records, &record), -1);
}

TEST_F(FlashInfoTest, ChangedRecordIsToldAndRestored)
{
    ChangeRoute1();
    SVondSimFlashRecord record = {};
    ASSERT_EQ(VondSim_GetFlashRecord(0, &record), 0);
    EXPECT_EQ(record.route, 1u);
    EXPECT_EQ(record.isChanged, 1);
    EXPECT_EQ(Item(0).changedCount, 1u);
    ASSERT_EQ(VondSim_RestoreFlash(), 0);
    EXPECT_EQ(Item(0).changedCount, 0u);
}

TEST_F(FlashInfoTest, TornRecordIsTold)
{
    ASSERT_EQ(VondSim_AddFault(R"({"kind": "powerCut", "block": 1, "torn": true})"), 0);
    std::vector<SType1Block> blocks = Type1(1);
    blocks[0].loss[0][0].hpm += 32;
    SMMSetCalDataCnfV7 answer = {};
    CCalDownload download;
    download.Type1(1, blocks);
    EXPECT_NE(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &download.Request(), &answer), 0);
    EXPECT_EQ(Item(0).tornCount, 1u);
    EXPECT_EQ(FaultAt(0).firedCount, 1u);
    EXPECT_EQ(FaultAt(0).isOver, 1);
    EXPECT_EQ(VondSim_IsPlugged(), 0);
}

TEST_F(FlashInfoTest, FileInUseIsTold)
{
    EXPECT_EQ(TextOf(VondSim_GetFlashFile), "");
    const fs::path file = fs::path(::testing::TempDir()) / ("info-" + std::to_string(getpid()));
    setenv("VOND_SIM_FLASH", file.c_str(), 1);
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(TextOf(VondSim_GetFlashFile), file.string());
    ChangeRoute1();
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(Item(0).changedCount, 1u);
    ASSERT_EQ(VondSim_RestoreFlash(), 0);
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(Item(0).changedCount, 0u);
    fs::remove(file);
}

}  // namespace
