// Faults in each step of "quorlin cal write" and "restore": what is said is what the flash file shows.
#include <gtest/gtest.h>

#include "tests/cli/CalFolder.h"

namespace {

constexpr char kValue[] = "Tx compensation power detector coupler loss 0";

struct SStepFault
{
    const char *name;
    const char *fault;  // of the profile
    int exitCode = 0;
    const char *words = "";     // on stderr
    bool isFlashAsOld = false;  // behind the write
    bool isFlashAsWanted = false;
};

std::ostream &operator<<(std::ostream &stream, const SStepFault &fault)
{
    return stream << fault.name;
}

const SStepFault kStepFaults[] = {
    {.name = "support",
     .fault = R"({"function": "VOND_MMRf_GetRfCapability_r", "kind": "fail"})",
     .exitCode = 2,
     .words = "The DUT cannot be used",
     .isFlashAsOld = true},
    {.name = "blockInfo",
     .fault = R"({"function": "VOND_MMRf_GetCalBlkInfoV7_r", "kind": "fail", "result": 7})",
     .exitCode = 2,
     .words = "Flash could not be read",
     .isFlashAsOld = true},
    {.name = "read",
     .fault = R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail", "result": 7})",
     .exitCode = 2,
     .words = "Flash could not be read",
     .isFlashAsOld = true},
    {.name = "send",
     .fault = R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "fail", "result": 7})",
     .exitCode = 2,
     .words = "Nothing was written: flash is as it was",
     .isFlashAsOld = true},
    {.name = "sendUnanswered",
     .fault = R"({"function": "VOND_MMRf_SetCalDataV7_r", "kind": "bytes", "hex": "00"})",
     .exitCode = 0,
     .words = "",
     .isFlashAsWanted = true},
    {.name = "readBackInfo",
     .fault =
         R"({"function": "VOND_MMRf_GetCalBlkInfoV7_r", "kind": "fail", "result": 7, "nth": 2})",
     .exitCode = 1,
     .words = "Not verified: flash could not be read back.",
     .isFlashAsWanted = true},
    {.name = "readBack",
     .fault = R"({"function": "VOND_MMRf_GetCalDataV7_r", "kind": "fail", "result": 7, "nth": 2})",
     .exitCode = 1,
     .words = "Accepted by the DUT: TX route 1 BW0, TX route 1 BW1, TX route 2 BW0.",
     .isFlashAsWanted = true},
    {.name = "stuck",
     .fault = R"({"kind": "stuck", "record": "apt", "route": 1, "bandwidth": 50000, "block": 1,
                  "field": "couplerLoss[0]"})",
     .exitCode = 1,
     .words = "TX route 1 BW1 couplerLoss[0]: 1.5 dB wanted, 25.03125 dB in flash"},
    {.name = "powerCutBefore",
     .fault = R"({"kind": "powerCut", "block": 1})",
     .exitCode = 1,
     .words = "Unknown, whether written: TX route 1 BW0, TX route 1 BW1, TX route 2 BW0.",
     .isFlashAsOld = true},
    {.name = "powerCutTorn",
     .fault = R"({"kind": "powerCut", "block": 2, "torn": true})",
     .exitCode = 1,
     .words = "Unknown, whether written: TX route 1 BW0, TX route 1 BW1, TX route 2 BW0."},
};

class CalFaultTest : public ::testing::TestWithParam<SStepFault>
{
protected:
    void SetUp() override
    {
        m_folder.Edit("apt", kValue, "1.5", 3, "new.ini");
        ASSERT_EQ(m_folder.Cal("read --item apt --to old.json").exitCode, 0);
    }

    bool IsAsOld() const { return m_folder.Cal("diff old.json dut").exitCode == 0; }
    bool IsAsWanted() const { return m_folder.Cal("diff new.ini dut").exitCode == 0; }

    CCalFolder m_folder;
};

TEST_P(CalFaultTest, AWriteTellsWhatFlashIs)
{
    const SCliRun run =
        m_folder.Cal("write --item apt --from new.ini --yes", m_folder.Faulty(GetParam().fault));
    EXPECT_EQ(run.exitCode, GetParam().exitCode) << run.out << run.err;
    EXPECT_TRUE(Contains(run.err, GetParam().words)) << run.err;
    EXPECT_EQ(IsAsOld(), GetParam().isFlashAsOld);
    EXPECT_EQ(IsAsWanted(), GetParam().isFlashAsWanted);
    // Whatever happened, both ways lead on.
    EXPECT_EQ(m_folder.Cal("restore --yes --backup other old.json").exitCode, 0);
    EXPECT_TRUE(IsAsOld());
    EXPECT_EQ(m_folder.Cal("write --item apt --from new.ini --yes").exitCode, 0);
    EXPECT_TRUE(IsAsWanted());
}

TEST_P(CalFaultTest, ARestoreTellsWhatFlashIs)
{
    ASSERT_EQ(m_folder.Cal("write --item apt --from new.ini --yes").exitCode, 0);
    const SCliRun run =
        m_folder.Cal("restore --yes --backup other old.json", m_folder.Faulty(GetParam().fault));
    EXPECT_EQ(run.exitCode, GetParam().exitCode) << run.out << run.err;
    EXPECT_EQ(IsAsWanted(), GetParam().isFlashAsOld);  // now the other way round
    EXPECT_EQ(IsAsOld(), GetParam().isFlashAsWanted);
    EXPECT_EQ(m_folder.Cal("restore --yes --backup other old.json").exitCode, 0);
    EXPECT_TRUE(IsAsOld());
}

INSTANTIATE_TEST_SUITE_P(EachStep, CalFaultTest, ::testing::ValuesIn(kStepFaults),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(CalBackupFaultTest, AFullDiskEndsTheWriteBeforeItsSending)
{
    CCalFolder folder;
    folder.Edit("apt", kValue, "1.5", 3, "new.ini");
    // A limit of a file's size is a disk that is full.
    const SCliRun run = folder.Shell("export VOND_SIM_FLASH=" + folder.Path("flash.bin") +
                                     " XDG_RUNTIME_DIR=. && trap '' XFSZ && ulimit -f 20 && "
                                     "$QUORLIN cal write --item apt --from new.ini --yes "
                                     "--backup kept");
    EXPECT_EQ(run.exitCode, 2) << run.out << run.err;
    EXPECT_TRUE(Contains(run.err, "No backup could be saved")) << run.err;
    EXPECT_TRUE(Contains(run.err, "Nothing was written.")) << run.err;
    EXPECT_EQ(folder.Flash(), "");
    EXPECT_EQ(folder.Shell("ls -A kept").out, "");
}

}  // namespace
