// quorlin cal as a user starts it; the file of the flash is the witness.
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/cli/CalFolder.h"

namespace {

constexpr char kLoss[] = "Tx compensation power detector coupler loss 0";

// A folder with "new.ini": the coupler loss of TX routes 1 BW0, 1 BW1 and 2 BW0 is 1.5 dB. Flash is in its
// file.
class CalCommandTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_folder.Edit("apt", kLoss, "1.25", 1, "first.ini");
        ASSERT_EQ(m_folder.Cal("write --item apt --from first.ini --yes --backup first").exitCode,
                  0);
        m_folder.Edit("apt", kLoss, "1.5", 3, "new.ini");
        m_old = m_folder.Flash();
        ASSERT_FALSE(m_old.empty());
    }

    CCalFolder m_folder;
    std::string m_old;
};

TEST_F(CalCommandTest, WhatIsReadIsTheSameAsFlash)
{
    for (const char *item : {"apt", "rx-path-loss"}) {
        const std::string option = std::string(" --item ") + item;
        for (const char *file : {"a.ini", "a.json"}) {
            ASSERT_EQ(m_folder.Cal(std::string("read --to ") + file + option).exitCode, 0);
            EXPECT_EQ(m_folder.Cal(std::string("verify --from ") + file + option).exitCode, 0);
            EXPECT_EQ(m_folder.Cal(std::string("diff dut ") + file + option).exitCode, 0);
        }
        EXPECT_EQ(m_folder.Cal("diff a.ini a.json" + option).exitCode, 0);
    }
    EXPECT_EQ(m_folder.Flash(), m_old);
}

TEST_F(CalCommandTest, AWriteShowsKeepsSendsAndVerifies)
{
    const SCliRun run = m_folder.Cal("write --item apt --from new.ini --yes");
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.err, "");  // progress is for a terminal
    EXPECT_TRUE(Contains(run.out, "3 records differ, in 3 values.")) << run.out;
    EXPECT_TRUE(Contains(run.out, "Backup: " + m_folder.Backup())) << run.out;
    EXPECT_TRUE(Contains(run.out, "Written and verified")) << run.out;
    EXPECT_EQ(m_folder.Cal("verify --item apt --from new.ini").exitCode, 0);
    EXPECT_NE(m_folder.Flash(), m_old);
}

TEST_F(CalCommandTest, ARestoreBringsTheFlashFileBackByteForByte)
{
    ASSERT_EQ(m_folder.Cal("write --item apt --from new.ini --yes").exitCode, 0);
    const SCliRun run = m_folder.Cal("restore --yes --backup other " + m_folder.Backup());
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(m_folder.Flash(), m_old);
}

TEST_F(CalCommandTest, WithoutATerminalAndWithoutYesNothingIsWritten)
{
    EXPECT_EQ(m_folder.Cal("write --item apt --from new.ini").exitCode, 2);
    EXPECT_EQ(m_folder.Cal("restore first.json").exitCode, 2);
    EXPECT_EQ(m_folder.Flash(), m_old);
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("data")));
}

TEST_F(CalCommandTest, AtATerminalTheUserIsAsked)
{
    const SCliRun no = m_folder.CalAtTerminal("write --item apt --from new.ini", "\n");
    EXPECT_EQ(no.exitCode, 1) << no.out << no.err;
    EXPECT_TRUE(Contains(no.out, "Write 3 records to flash? [y/N]")) << no.out;
    EXPECT_TRUE(Contains(no.out, "Nothing was written.")) << no.out;
    EXPECT_TRUE(Contains(no.out, "Reading flash: ")) << no.out;
    EXPECT_EQ(m_folder.Flash(), m_old);
    const SCliRun yes = m_folder.CalAtTerminal("write --item apt --from new.ini", "y\n");
    EXPECT_EQ(yes.exitCode, 0) << yes.out << yes.err;
    EXPECT_EQ(m_folder.Cal("verify --item apt --from new.ini").exitCode, 0);
}

TEST_F(CalCommandTest, ADryRunTellsAndWritesNothing)
{
    const SCliRun run = m_folder.Cal("write --item apt --from new.ini --dry-run");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Contains(run.out, "3 records differ")) << run.out;
    EXPECT_EQ(m_folder.Flash(), m_old);
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("data")));
}

TEST_F(CalCommandTest, OnlyTheChosenRoutesAreWritten)
{
    ASSERT_EQ(m_folder.Cal("write --item apt --from new.ini --yes --only 2").exitCode, 0);
    const SCliRun diff = m_folder.Cal("diff dut new.ini");
    EXPECT_EQ(diff.exitCode, 1);
    EXPECT_TRUE(Contains(diff.out, "TX route 1 BW0")) << diff.out;
    EXPECT_FALSE(Contains(diff.out, "TX route 2")) << diff.out;
    EXPECT_EQ(m_folder.Cal("write --item apt --from new.ini --yes --only 99").exitCode, 2);
}

TEST_F(CalCommandTest, AFileOfAnotherRouteNeedsALeave)
{
    m_folder.Edit("apt", "Route", "7", 1, "other.ini");
    const SCliRun refused = m_folder.Cal("write --item apt --from other.ini --yes");
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_TRUE(Contains(refused.err, "its Route is 7")) << refused.err;
    EXPECT_EQ(m_folder.Cal("write --item apt --from other.ini --yes --allow-other-route").exitCode,
              0);
}

TEST_F(CalCommandTest, DifferencesAreNamedInEachForm)
{
    const SCliRun text = m_folder.Cal("diff dut new.ini");
    EXPECT_EQ(text.exitCode, 1);
    EXPECT_TRUE(Contains(text.out, "TX route 1 BW0 couplerLoss[0]: 1.25 dB | 1.5 dB (+0.25)\n"))
        << text.out;
    const SCliRun csv = m_folder.Cal("diff dut new.ini --csv");
    EXPECT_TRUE(Contains(csv.out, "apt,TX,1,1,20000,couplerLoss,0,1.25 dB,1.5 dB,0.25,dB,\n"))
        << csv.out;
    const SCliRun json = m_folder.Cal("diff dut new.ini --json");
    EXPECT_TRUE(Contains(json.out, "\"path\":\"couplerLoss[0]\"")) << json.out;
    EXPECT_EQ(m_folder.Cal("diff dut new.ini --json --csv").exitCode, 2);
}

TEST_F(CalCommandTest, ATolerancePassesOverSmallDifferences)
{
    m_folder.Edit("apt", kLoss, "1.28125", 1, "near.ini");
    EXPECT_EQ(m_folder.Cal("diff dut near.ini").exitCode, 1);
    EXPECT_EQ(m_folder.Cal("diff dut near.ini --tolerance 0.1dB").exitCode, 0);
    EXPECT_EQ(m_folder.Cal("diff dut near.ini --tolerance 0.01dB").exitCode, 1);
    EXPECT_EQ(m_folder.Cal("diff dut near.ini --tolerance wide").exitCode, 2);
}

TEST_F(CalCommandTest, RecordsThatOneSideLacksAreDifferences)
{
    m_folder.Write("part.ini", std::string("[NR n1 BW0 TPC]\nRoute = 1\n"));
    const SCliRun diff = m_folder.Cal("diff part.ini dut");
    EXPECT_EQ(diff.exitCode, 1);
    EXPECT_TRUE(Contains(diff.out, "TX route 1 BW1: not on the left\n")) << diff.out;
}

TEST_F(CalCommandTest, BackupsAreComparedWithoutADut)
{
    ASSERT_EQ(m_folder.Cal("read --item apt --to a.json").exitCode, 0);
    EXPECT_EQ(m_folder.Cal("diff a.json a.json", "unplugged").exitCode, 0);
    EXPECT_EQ(m_folder.Cal("diff a.json dut", "unplugged").exitCode, 2);
}

TEST_F(CalCommandTest, AWrongCommandLineIsTroubleInOneLine)
{
    for (const char *line :
         {"", "write --item apt", "read --item apt", "read --item tx --to a.ini",
          "read --item apt --to a.txt", "diff dut dut", "restore --yes none.json",
          "restore --yes new.ini", "read --item apt --to a.ini --handle x",
          "read --item apt --to a.ini --profile nope", "read --item apt --to no/folder/a.json"}) {
        const SCliRun run = m_folder.Cal(line);
        EXPECT_EQ(run.exitCode, 2) << line;
        EXPECT_TRUE(Contains(run.err, "quorlin: ")) << line << ": " << run.err;
    }
}

TEST_F(CalCommandTest, ADutThatCannotBeUsedIsTold)
{
    for (const char *profile : {"c2k", "no-nr", "gen0", "unplugged"}) {
        const SCliRun run = m_folder.Cal("read --item apt --to a.ini", profile);
        EXPECT_EQ(run.exitCode, 2) << profile;
        EXPECT_TRUE(Contains(run.err, "The DUT cannot be used: ")) << run.err;
    }
}

TEST_F(CalCommandTest, TheSecondWriterIsToldWhoHoldsTheDut)
{
    m_folder.Write("lock.sh", std::string("exec 9>>quorlin-1.lock; flock 9; echo 'bench (process "
                                          "77)' >quorlin-1.lock; exec \"$@\""));
    const SCliRun run = m_folder.Shell(
        "export VOND_SIM_FLASH=" + m_folder.Path("flash.bin") +
        " XDG_RUNTIME_DIR=. && bash lock.sh $QUORLIN cal write --item apt --from new.ini --yes");
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(Contains(run.err, "is being written by bench (process 77)")) << run.err;
    EXPECT_EQ(m_folder.Flash(), m_old);
    EXPECT_EQ(m_folder.Cal("write --item apt --from new.ini --yes --handle 2").exitCode, 0);
}

TEST_F(CalCommandTest, AnOutputThatTakesNothingIsTrouble)
{
    ASSERT_EQ(m_folder.Cal("read --item apt --to a.json").exitCode, 0);
    EXPECT_EQ(m_folder.Shell("$QUORLIN cal diff a.json a.json >/dev/full").exitCode, 2);
    EXPECT_EQ(m_folder.Shell("($QUORLIN cal diff a.json a.json; echo $? >&2) | true").err, "0\n");
}

TEST_F(CalCommandTest, OtherCommandsNeedNoPair)
{
    EXPECT_EQ(m_folder.Shell("ldd $QUORLIN | grep -c libVond").out, "0\n");
}

}  // namespace
