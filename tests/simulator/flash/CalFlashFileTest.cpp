// VOND_SIM_FLASH: what was written is there at the next start, and no file is lost to a mistake.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <unistd.h>

#include "tests/simulator/flash/CalFixture.h"

namespace {

namespace fs = std::filesystem;

class CalFlashFileTest : public CCalTest
{
protected:
    void SetUp() override
    {
        m_folder = fs::path(::testing::TempDir()) /
                   ("flash-" + std::to_string(getpid()) + "-" +
                    ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directory(m_folder);
        m_path = m_folder / "dut.flash";
        setenv("VOND_SIM_FLASH", m_path.c_str(), 1);
        CCalTest::SetUp();
    }

    void TearDown() override
    {
        unsetenv("VOND_SIM_FLASH");
        CCalTest::TearDown();
        fs::permissions(m_folder, fs::perms::owner_all);
        fs::remove_all(m_folder);
    }

    // What the process of the next start does.
    static void Restart(const char *profile = "handset")
    {
        VondSim_Reset();
        ASSERT_EQ(VondSim_SetProfile(profile), 0);
    }

    // Changes one value of type 1 route 5; returns the status byte.
    static int Write(int16_t value)
    {
        std::vector<SType1Block> blocks = Type1(5);
        blocks[0].plOffset[0] = value;
        return CCalDownload().Type1(5, blocks).Send().status;
    }

    static int16_t Read() { return Type1(5)[0].plOffset[0]; }

    // The value after a start, and what the start said.
    int16_t ReadAfterRestart(std::string &words, const char *profile = "handset")
    {
        ::testing::internal::CaptureStderr();
        Restart(profile);
        const int16_t value = Read();
        words = ::testing::internal::GetCapturedStderr();
        return value;
    }

    std::string Contents() const
    {
        std::ifstream file(m_path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    void Put(const std::string &bytes) const { std::ofstream(m_path, std::ios::binary) << bytes; }

    void ExpectOneLine(const std::string &words, const std::string &part) const
    {
        EXPECT_NE(words.find(m_path.string()), std::string::npos) << words;
        EXPECT_NE(words.find(part), std::string::npos) << words;
        EXPECT_EQ(words.find('\n'), words.size() - 1) << words;
    }

    fs::path m_folder;
    fs::path m_path;
};

TEST_F(CalFlashFileTest, WrittenDataIsThereAtTheNextStart)
{
    std::vector<SType1Block> type1 = Type1(1);
    std::vector<SType2Block> type2 = Type2(105);
    std::vector<SAptBlock> tx = Tx(14, 100000);
    type1[3].loss[15][15].hpm = 32767;
    type2[2].loss[0][283].lpm = -32768;
    tx[3].level[9].dc2dcLevel = 255;
    CCalDownload download;
    ASSERT_EQ(download.Type1(1, type1).Type2(105, type2).Tx(14, 100000, tx).Send().status, 1);
    const auto other = BytesOf(Type2(101));
    ::testing::internal::CaptureStderr();
    Restart();
    EXPECT_EQ(BytesOf(Type1(1)), BytesOf(type1));
    EXPECT_EQ(BytesOf(Type2(105)), BytesOf(type2));
    EXPECT_EQ(BytesOf(Tx(14, 100000)), BytesOf(tx));
    EXPECT_EQ(BytesOf(Type2(101)), other);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST_F(CalFlashFileTest, FileComesWithTheFirstAcceptedDownload)
{
    Read();
    EXPECT_FALSE(fs::exists(m_path));
    CCalDownload refused;
    refused.Request().version = 9;
    EXPECT_EQ(refused.Send().status, 0);
    EXPECT_FALSE(fs::exists(m_path));
    EXPECT_EQ(Write(77), 1);
    EXPECT_TRUE(fs::exists(m_path));
}

TEST_F(CalFlashFileTest, NothingButTheFileStaysBehind)
{
    ASSERT_EQ(Write(1), 1);
    ASSERT_EQ(Write(2), 1);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_folder), fs::directory_iterator()), 1);
}

TEST_F(CalFlashFileTest, EmptyFileIsAFreshFlash)
{
    Put("");
    std::string words;
    const int16_t factory = ReadAfterRestart(words);
    EXPECT_EQ(words, "");
    ASSERT_EQ(Write(static_cast<int16_t>(factory + 1)), 1);
    EXPECT_EQ(ReadAfterRestart(words), factory + 1);
}

TEST_F(CalFlashFileTest, DamagedFileGivesTheProfilesDataAndIsReplaced)
{
    const int16_t factory = Read();
    ASSERT_EQ(Write(77), 1);
    const std::string good = Contents();
    std::string flipped = good;
    flipped[good.size() / 2] = static_cast<char>(flipped[good.size() / 2] ^ 1);
    for (const std::string &bytes :
         {flipped, good.substr(0, good.size() / 2), good.substr(0, 17), good + "x"}) {
        Put(bytes);
        std::string words;
        EXPECT_EQ(ReadAfterRestart(words), factory);
        ExpectOneLine(words, "the profile's calibration data is taken");
        EXPECT_EQ(Contents(), bytes);
        ASSERT_EQ(Write(78), 1);
        EXPECT_EQ(ReadAfterRestart(words), 78);
        EXPECT_EQ(words, "");
    }
}

TEST_F(CalFlashFileTest, ForeignFileStaysAsItIs)
{
    const int16_t factory = Read();
    Put("All my calibration notes, with no copy.\n");
    std::string words;
    EXPECT_EQ(ReadAfterRestart(words), factory);
    ExpectOneLine(words, "is no flash of a simulated DUT");
    EXPECT_EQ(Write(77), 1);
    EXPECT_EQ(Read(), 77);
    EXPECT_EQ(Contents(), "All my calibration notes, with no copy.\n");
}

TEST_F(CalFlashFileTest, FlashOfAnotherDutStaysAsItIs)
{
    ASSERT_EQ(Write(77), 1);
    const std::string contents = Contents();
    std::string words;
    EXPECT_NE(ReadAfterRestart(words, "largest"), 77);
    ExpectOneLine(words, "is the flash of another DUT");
    EXPECT_EQ(Write(78), 1);
    EXPECT_EQ(Contents(), contents);
    EXPECT_EQ(ReadAfterRestart(words), 77);
}

// The records of one stand at the front of the other.
TEST_F(CalFlashFileTest, FlashOfMoreOrFewerRoutesIsAnotherDuts)
{
    const auto dut = [](const char *txRoutes) {
        return std::string(R"({"name": "few", "base": "largest", "generate": {"rxType1Routes": 5,
            "rxType2Routes": 0, "freqLimits": 0, "pairedTxRoutes": 0, "txRoutes": )") +
               txRoutes + "}}";
    };
    for (const auto &[writer, reader] : {std::pair("3", "2"), std::pair("2", "3")}) {
        fs::remove(m_path);
        ASSERT_EQ(VondSim_SetProfileText(dut(writer).c_str()), 0);
        ASSERT_EQ(Write(77), 1);
        ::testing::internal::CaptureStderr();
        ASSERT_EQ(VondSim_SetProfileText(dut(reader).c_str()), 0);
        EXPECT_NE(Read(), 77);
        const std::string words = ::testing::internal::GetCapturedStderr();
        EXPECT_EQ(words.find('\n'), words.size() - 1) << words;
    }
}

TEST_F(CalFlashFileTest, FlashOutsideTheProfilesLimitsIsAnotherDuts)
{
    ASSERT_EQ(Write(77), 1);
    const std::string narrow =
        HandsetWith(R"("rxLimits": [{"band": 5, "route": 5, "kHz": [890000, 894000]}])");
    ::testing::internal::CaptureStderr();
    ASSERT_EQ(VondSim_SetProfileText(narrow.c_str()), 0);
    EXPECT_NE(Read(), 77);
    ExpectOneLine(::testing::internal::GetCapturedStderr(), "is the flash of another DUT (route");
}

TEST_F(CalFlashFileTest, DutWithTheSameRoutesSharesTheFlash)
{
    ASSERT_EQ(Write(77), 1);
    std::string words;
    EXPECT_EQ(ReadAfterRestart(words, "c2k"), 77);
    EXPECT_EQ(words, "");
}

TEST_F(CalFlashFileTest, FolderInItsPlaceStaysAsItIs)
{
    fs::create_directory(m_path);
    std::string words;
    ReadAfterRestart(words);
    ExpectOneLine(words, "is no file");
    EXPECT_EQ(Write(77), 1);
    EXPECT_TRUE(fs::is_directory(m_path));
}

TEST_F(CalFlashFileTest, DownloadThatCannotBeKeptIsRefusedAndChangesNothing)
{
    const int16_t factory = Read();
    setenv("VOND_SIM_FLASH", (m_folder / "nowhere" / "dut.flash").c_str(), 1);
    Restart();
    CCalDownload download;
    std::vector<SType1Block> first = Type1(5);
    std::vector<SType1Block> second = first;
    first[0].plOffset[0] = 77;
    second[0].plOffset[0] = 78;
    download.Type1(5, first).Type1(5, second);
    ::testing::internal::CaptureStderr();
    const SMMSetCalDataCnfV7 answer = download.Send();
    const std::string words = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(words.find("cannot be written"), std::string::npos) << words;
    EXPECT_EQ(answer.status, 0);
    EXPECT_STREQ(answer.type1Text, "the flash cannot be written");
    EXPECT_STREQ(answer.txText, "the flash cannot be written");
    EXPECT_EQ(Read(), factory);
}

TEST_F(CalFlashFileTest, WithoutTheVariableARestartForgets)
{
    unsetenv("VOND_SIM_FLASH");
    Restart();
    const int16_t factory = Read();
    ASSERT_EQ(Write(static_cast<int16_t>(factory + 1)), 1);
    std::string words;
    EXPECT_EQ(ReadAfterRestart(words), factory);
    EXPECT_EQ(words, "");
    EXPECT_FALSE(fs::exists(m_path));
}

}  // namespace
