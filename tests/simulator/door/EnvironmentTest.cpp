// VOND_SIM_PROFILE and VOND_SIM_JOURNAL: set before the first call, as a user of the tool sets
// them.

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include <unistd.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "Simulator/VondSim.h"
#include "Trace/lines/TraceReader.h"
#include "Vond/VondApp.h"
#include "Vond/VondCore.h"

namespace {

std::string JournalPath()
{
    static const std::string path =
        ::testing::TempDir() + "simulator-journal-" + std::to_string(getpid()) + ".jsonl";
    return path;
}

// Runs before main, and so before the first call.
const bool kEnvironmentIsSet = [] {
    setenv("VOND_SIM_PROFILE", "c2k", 1);
    setenv("VOND_SIM_JOURNAL", JournalPath().c_str(), 1);
    return true;
}();

std::vector<nlohmann::json> AllLines()
{
    std::vector<nlohmann::json> lines;
    std::ifstream file(JournalPath());
    for (std::string line; std::getline(file, line);)
        lines.push_back(nlohmann::json::parse(line));
    return lines;
}

// Those that tell a whole call.
std::vector<nlohmann::json> JournalLines()
{
    std::vector<nlohmann::json> lines = AllLines();
    std::erase_if(lines, [](const nlohmann::json &line) { return !line.contains("index"); });
    return lines;
}

class EnvironmentTest : public ::testing::Test
{
protected:
    static void TearDownTestSuite() { unlink(JournalPath().c_str()); }
    void TearDown() override
    {
        setenv("VOND_SIM_PROFILE", "c2k", 1);
        VondSim_Reset();
    }
};

TEST_F(EnvironmentTest, ProfileOfTheEnvironmentIsThereFromTheStart)
{
    ASSERT_TRUE(kEnvironmentIsSet);
    int32_t service = 0;
    EXPECT_EQ(VondConn_GetMdSrv(1, 0, &service), 0);
    EXPECT_EQ(service, 3);
}

TEST_F(EnvironmentTest, BrokenProfileOfTheEnvironmentUnplugs)
{
    setenv("VOND_SIM_PROFILE", "/nowhere/dut.json", 1);
    ::testing::internal::CaptureStderr();
    VondSim_Reset();
    const std::string line = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(line.find("/nowhere/dut.json"), std::string::npos) << line;
    EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
    EXPECT_STREQ(VOND_GetErrorString(VOND_NRf_TestStop_r(1, 1000)),
                 "Connection: no target is connected");
}

TEST_F(EnvironmentTest, EmptyProfileNameIsTheHandset)
{
    setenv("VOND_SIM_PROFILE", "", 1);
    VondSim_Reset();
    int32_t service = 0;
    EXPECT_EQ(VondConn_GetMdSrv(1, 0, &service), 0);
    EXPECT_EQ(service, 4);
}

TEST_F(EnvironmentTest, JournalFileHasALineForEachCallAtOnce)
{
    const std::size_t before = JournalLines().size();
    VOND_MMRf_TestStopV7_r(0x22, 4321, 7);
    ASSERT_EQ(JournalLines().size(), before + 1);
    int32_t index = -1;
    VondConn_GetMdActiveIdx(0x22, &index);
    const std::vector<nlohmann::json> lines = JournalLines();
    ASSERT_EQ(lines.size(), before + 2);
    const nlohmann::json &stop = lines[before];
    EXPECT_EQ(stop.at("index"), before);
    EXPECT_EQ(stop.at("function"), "VOND_MMRf_TestStopV7_r");
    EXPECT_EQ(stop.at("handle"), 0x22);
    EXPECT_EQ(stop.at("timeout"), 4321);
    EXPECT_EQ(stop.at("request"), "07000000");
    EXPECT_TRUE(stop.at("answer").is_null());
    EXPECT_EQ(stop.at("text"), "Target: unknown stop kind");
    EXPECT_NE(stop.at("result"), 0);
    EXPECT_EQ(stop.at("status"), 0);
    EXPECT_GT(stop.at("durationNs"), 0);
    EXPECT_EQ(lines[before + 1].at("answer"), "00000000");
}

TEST_F(EnvironmentTest, JournalFileIsATrace)
{
    SNrDlFreqCnfV7 answer;
    std::memset(&answer, 0x5a, sizeof(answer));
    VOND_NRf_GetDlFreqV7_r(1, 1000, nullptr, &answer);
    const STrace trace = ReadTrace(JournalPath(), ECutLine::Refused);
    EXPECT_EQ(trace.header.core, "libVondCore.so");
    EXPECT_EQ(trace.header.app, "libVondApp.so");
    EXPECT_FALSE(trace.header.tool.empty());
    const STraceCall &call = trace.calls.back();
    EXPECT_EQ(call.function, &FunctionOf(EFunction::GetDlFreq));
    EXPECT_EQ(call.request, std::nullopt);
    EXPECT_EQ(call.answer, std::vector<uint8_t>(sizeof(answer), 0x5a));
    EXPECT_EQ(call.text, "Argument: null pointer");
    EXPECT_EQ(call.process, static_cast<uint64_t>(getpid()));
    EXPECT_EQ(AllLines().size(), 1 + 2 * trace.calls.size());
}

TEST_F(EnvironmentTest, ClearingTheJournalLeavesTheFile)
{
    VOND_NRf_TestStop_r(1, 1000);
    const std::size_t before = JournalLines().size();
    VondSim_ClearJournal();
    EXPECT_EQ(JournalLines().size(), before);
}

}  // namespace
