// A flash that loses its power in the middle of a download, and fields of it that keep their values.

#include <cstdlib>
#include <cstring>
#include <filesystem>

#include <unistd.h>

#include "tests/simulator/flash/CalFixture.h"

namespace {

namespace fs = std::filesystem;

constexpr char kNotConnectedText[] = "Connection: no target is connected";

template <class Block>
bool IsSame(const Block &left, const Block &right)
{
    return std::memcmp(&left, &right, sizeof(Block)) == 0;
}

// First half of the one, second half of the other.
template <class Block>
Block Halves(const Block &first, const Block &second)
{
    Block mixed = second;
    std::memcpy(&mixed, &first, sizeof(Block) / 2);
    return mixed;
}

class FlashFaultTest : public CCalTest
{
protected:
    void SetUp() override
    {
        m_file = fs::path(::testing::TempDir()) /
                 ("power-" + std::to_string(getpid()) + "-" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
        setenv("VOND_SIM_FLASH", m_file.c_str(), 1);
        CCalTest::SetUp();
    }

    void TearDown() override
    {
        unsetenv("VOND_SIM_FLASH");
        fs::remove(m_file);
        CCalTest::TearDown();
    }

    static void Add(const std::string &json)
    {
        ASSERT_EQ(VondSim_AddFault(json.c_str()), 0) << json;
    }

    // What the process of the next start does.
    static void StartAgain()
    {
        VondSim_Reset();
        ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    }

    static VOND_RESULT Set(CCalDownload &download)
    {
        SMMSetCalDataCnfV7 answer = {};
        return VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &download.Request(), &answer);
    }

    // The record of type 1 route 1, four blocks, each changed in both halves.
    static std::vector<SType1Block> Changed()
    {
        std::vector<SType1Block> blocks = Type1(1);
        for (SType1Block &block : blocks) {
            block.loss[0][0].lpm = static_cast<int16_t>(block.loss[0][0].lpm + 1);
            block.plOffset[7] = static_cast<int16_t>(block.plOffset[7] + 1);
        }
        return blocks;
    }

    fs::path m_file;
};

TEST_F(FlashFaultTest, CutLeavesTheBlocksBeforeItAndTakesTheDutAway)
{
    const std::vector<SType1Block> old = Type1(1);
    const std::vector<SType1Block> fresh = Changed();
    ASSERT_EQ(fresh.size(), 4u);
    Add(R"({"kind": "powerCut", "block": 3})");
    CCalDownload download;
    download.Type1(1, fresh);
    EXPECT_EQ(ErrorText(Set(download)), kNotConnectedText);
    EXPECT_EQ(ErrorText(Set(download)), kNotConnectedText);
    int32_t index = 0;
    EXPECT_NE(VondConn_GetMdActiveIdx(kHandle, &index), 0);

    VondSim_SetPlugged(1);
    const std::vector<SType1Block> held = Type1(1);
    ASSERT_EQ(held.size(), 4u);
    EXPECT_TRUE(IsSame(held[0], fresh[0]));
    EXPECT_TRUE(IsSame(held[1], fresh[1]));
    EXPECT_TRUE(IsSame(held[2], old[2]));
    EXPECT_TRUE(IsSame(held[3], old[3]));
}

TEST_F(FlashFaultTest, TornBlockIsHalfWrittenAlsoAtTheNextStart)
{
    const std::vector<SType1Block> old = Type1(1);
    const std::vector<SType1Block> fresh = Changed();
    Add(R"({"kind": "powerCut", "block": 2, "torn": true})");
    CCalDownload download;
    download.Type1(1, fresh);
    EXPECT_NE(Set(download), VOND_SUCCESS);

    StartAgain();
    const std::vector<SType1Block> held = Type1(1);
    ASSERT_EQ(held.size(), 4u);
    EXPECT_TRUE(IsSame(held[0], fresh[0]));
    EXPECT_TRUE(IsSame(held[1], Halves(fresh[1], old[1])));
    EXPECT_FALSE(IsSame(held[1], fresh[1]));
    EXPECT_FALSE(IsSame(held[1], old[1]));
    EXPECT_TRUE(IsSame(held[2], old[2]));
}

// A record has blocks of one band; the cut leaves some of the old one's.
TEST_F(FlashFaultTest, TornImageThatBreaksTheLimitsLoadsAsItIs)
{
    const std::string profile = HandsetWith(R"(
        "rxType1Routes": [
            {"band": 1, "route": 1, "antMask": 3, "feRoute": 8, "ports": ["M", "D"], "srx": 2,
             "txRoutes": []},
            {"band": 3, "route": 1, "antMask": 3, "feRoute": 8, "ports": ["M", "D"], "srx": 2,
             "txRoutes": []}])");
    ASSERT_EQ(VondSim_SetProfileText(profile.c_str()), 0);
    std::vector<SType1Block> fresh = Type1(1);
    ASSERT_GT(fresh.size(), 1u);
    for (SType1Block &block : fresh) {
        block = {};
        block.band = 3;
    }
    CCalDownload download;
    download.Type1(1, fresh);
    Add(R"({"kind": "powerCut", "block": 2})");
    EXPECT_NE(Set(download), VOND_SUCCESS);
    ::testing::internal::CaptureStderr();
    VondSim_Reset();
    ASSERT_EQ(VondSim_SetProfileText(profile.c_str()), 0);
    const std::vector<SType1Block> held = Type1(1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(held[0].band, 3);
    EXPECT_EQ(held[1].band, 1);
}

TEST_F(FlashFaultTest, BlocksAreCountedOverDownloadsInTheOrderOfTheRound)
{
    const std::vector<SType1Block> fresh = Changed();
    std::vector<SAptBlock> tx = Tx(14, 100000);
    const std::vector<SAptBlock> oldTx = tx;
    tx[0].couplerLoss[0] = 123;
    Add(R"({"kind": "powerCut", "block": 5})");
    CCalDownload first;
    first.Type1(1, fresh);
    ASSERT_EQ(Set(first), VOND_SUCCESS);
    CCalDownload second;
    second.Tx(14, 100000, tx);
    EXPECT_EQ(ErrorText(Set(second)), kNotConnectedText);
    VondSim_SetPlugged(1);
    EXPECT_EQ(BytesOf(Type1(1)), BytesOf(fresh));
    EXPECT_EQ(BytesOf(Tx(14, 100000)), BytesOf(oldTx));
    // It happens once.
    EXPECT_EQ(Set(second), VOND_SUCCESS);
    EXPECT_EQ(BytesOf(Tx(14, 100000)), BytesOf(tx));
}

TEST_F(FlashFaultTest, EndedDownloadMendsATornRecord)
{
    const std::vector<SType1Block> fresh = Changed();
    CCalDownload download;
    download.Type1(1, fresh);
    Add(R"({"kind": "powerCut", "block": 2, "torn": true})");
    EXPECT_NE(Set(download), VOND_SUCCESS);
    StartAgain();
    EXPECT_EQ(Set(download), VOND_SUCCESS);
    StartAgain();
    EXPECT_EQ(BytesOf(Type1(1)), BytesOf(fresh));
}

TEST_F(FlashFaultTest, PulledPlugEndsATestAndKeepsTheFlash)
{
    const auto before = BytesOf(Type1(1));
    const SMMContRxCmdV7 command = ContRxCommand();
    ASSERT_EQ(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
    ASSERT_STREQ(VondSim_RunningTest(), "ContRx");
    VondSim_SetPlugged(0);
    EXPECT_STREQ(VondSim_RunningTest(), "");
    EXPECT_EQ(ErrorText(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command)), kNotConnectedText);
    VondSim_SetPlugged(1);
    EXPECT_EQ(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
    EXPECT_EQ(BytesOf(Type1(1)), before);
}

TEST_F(FlashFaultTest, StuckFieldKeepsItsValueAndNothingElse)
{
    std::vector<SAptBlock> blocks = Tx(14, 100000);
    const SAptBlock old = blocks[1];
    blocks[1].pa[0].paGain[3] = static_cast<int16_t>(old.pa[0].paGain[3] + 10);
    blocks[1].pa[0].paGain[4] = static_cast<int16_t>(old.pa[0].paGain[4] + 10);
    Add(R"({"kind": "stuck", "record": "apt", "route": 14, "bandwidth": 100000, "block": 2,
            "field": "pa[0].paGain[3]"})");
    CCalDownload download;
    download.Tx(14, 100000, blocks);
    EXPECT_EQ(download.Send().status, 1);
    std::vector<SAptBlock> expected = blocks;
    expected[1].pa[0].paGain[3] = old.pa[0].paGain[3];
    EXPECT_EQ(BytesOf(Tx(14, 100000)), BytesOf(expected));
}

TEST_F(FlashFaultTest, WrongOnesAreRefusedInWords)
{
    const struct
    {
        const char *json;
        const char *words;
    } rows[] = {
        {R"({"kind": "powerCut", "block": 0})", "block: 0 is not within"},
        {R"({"kind": "powerCut"})", "block"},
        {R"({"kind": "powerCut", "block": 1, "nth": 2})", "nth"},
        {R"({"kind": "stuck", "record": "lte", "route": 1, "block": 1, "field": "band"})", "lte"},
        {R"({"kind": "stuck", "record": "type1", "route": 1, "block": 1, "field": "bend"})",
         "bend"},
        {R"({"kind": "stuck", "record": "type1", "route": 1, "block": 9, "field": "band"})",
         "block"},
        {R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "powerCut", "block": 1})", "function"},
    };
    for (const auto &row : rows) {
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(VondSim_AddFault(row.json), -1) << row.json;
        EXPECT_NE(::testing::internal::GetCapturedStderr().find(row.words), std::string::npos)
            << row.json;
    }
}

}  // namespace
