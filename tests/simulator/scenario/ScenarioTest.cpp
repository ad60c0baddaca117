// Scenarios: which step takes place on which call, what they leave behind, and how they are saved.

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <unistd.h>

#include <nlohmann/json.hpp>

#include "tests/simulator/flash/CalFixture.h"
#include "tests/simulator/radio/MeasuringFixture.h"
#include "tests/simulator/steer/SteerText.h"

namespace {

using nlohmann::json;

std::string Scenario(const std::string &steps, int seed = 1)
{
    return R"({"name": "of a test", "about": "for a test", "seed": )" + std::to_string(seed) +
           R"(, "steps": [)" + steps + "]}";
}

std::string State()
{
    return TextOf([](char *text, uint32_t size) {
        return VondSim_GetStateAsScenario("saved", "as it was", text, size);
    });
}

class ScenarioTest : public CMeasuringTest
{
protected:
    static void Put(const std::string &steps, int seed = 1)
    {
        ASSERT_EQ(VondSim_SetScenarioText(Scenario(steps, seed).c_str()), 0) << SimError();
    }

    static VOND_RESULT Call() { return VOND_NRf_ResetMixRxReportV7_r(kHandle, kTimeoutMs); }

    // "1" for each call that fails.
    static std::string Calls(int count)
    {
        std::string failures;
        for (int i = 0; i < count; ++i)
            failures += Call() == VOND_SUCCESS ? '0' : '1';
        return failures;
    }

    static double Level()
    {
        return json::parse(TextOf(VondSim_GetRadioText))["levelDbm"]["default"];
    }
};

TEST_F(ScenarioTest, FaultStrikesOnTheNamedCallAlone)
{
    Put(R"({"when": {"function": "VOND_NRf_ResetMixRxReportV7_r", "call": 3},
            "fault": {"function": "VOND_NRf_ResetMixRxReportV7_r", "kind": "fail"}})");
    EXPECT_EQ(Calls(6), "001000");
    EXPECT_EQ(FaultAt(0).source, eVondSimFaultOfScenario);
    EXPECT_EQ(FaultAt(0).firedCount, 1u);
    EXPECT_EQ(FaultAt(0).isOver, 1);
}

TEST_F(ScenarioTest, FaultStrikesOnEachNthCall)
{
    Put(R"({"when": {"function": "*", "every": 2}, "fault": {"function": "*", "kind": "fail"}})");
    EXPECT_EQ(Calls(7), "0101010");
    EXPECT_EQ(FaultAt(0).firedCount, 3u);
}

TEST_F(ScenarioTest, FaultOfAnotherFunctionStrikesItsNextCall)
{
    Put(R"({"when": {"function": "VOND_NRf_TestStop_r", "call": 1},
            "fault": {"function": "VOND_NRf_ResetMixRxReportV7_r", "kind": "fail"}})");
    EXPECT_EQ(Calls(2), "00");
    EXPECT_EQ(VOND_NRf_TestStop_r(kHandle, kTimeoutMs), VOND_SUCCESS);
    EXPECT_EQ(Calls(3), "100");
}

TEST_F(ScenarioTest, SeedMakesChanceRepeatable)
{
    const char *const steps = R"({"when": {"function": "*", "probability": 0.5},
                                  "fault": {"function": "*", "kind": "fail"}})";
    Put(steps, 3);
    const std::string first = Calls(64);
    EXPECT_NE(first.find('0'), std::string::npos);
    EXPECT_NE(first.find('1'), std::string::npos);
    Put(steps, 3);
    EXPECT_EQ(Calls(64), first);
    Put(steps, 4);
    EXPECT_NE(Calls(64), first);
}

TEST_F(ScenarioTest, SeedStartsTheChanceOfReadingsToo)
{
    Put("", 5);
    const int16_t first = ReportOf(RsrpForcedCommand()).RSRP0[0];
    ReportOf(RsrpForcedCommand());
    Put("", 5);
    EXPECT_EQ(ReportOf(RsrpForcedCommand()).RSRP0[0], first);
}

TEST_F(ScenarioTest, StepWithoutConditionTakesPlaceAtOnce)
{
    Put(R"({"radio": {"levelDbm": {"default": -90}}},
           {"fault": {"function": "*", "kind": "fail", "nth": 2}})");
    EXPECT_EQ(Level(), -90.0);
    EXPECT_EQ(Calls(3), "010");
}

TEST_F(ScenarioTest, RadioChangesUnderARunningTest)
{
    Plug(QuietRadio(-70));
    Put(R"({"when": {"function": "VOND_NRf_GetMixRxReportV7_r", "call": 2},
            "radio": {"levelDbm": {"default": -80}}})");
    StartRsrp(RsrpForcedCommand());
    const double first = Report().RSRP0[0] * kPer128;
    EXPECT_NEAR(Report().RSRP0[0] * kPer128 - first, -10.0, 0.05);
}

TEST_F(ScenarioTest, PlugIsPulledOnTheCallAndPutInAgain)
{
    Put(R"({"when": {"function": "VOND_NRf_ResetMixRxReportV7_r", "call": 2}, "plugged": false},
           {"when": {"function": "VOND_NRf_ResetMixRxReportV7_r", "call": 4}, "plugged": true})");
    EXPECT_EQ(Calls(5), "01100");
}

TEST_F(ScenarioTest, PowerIsCutInTheNamedRound)
{
    Put(R"({"when": {"function": "VOND_MMRf_SetCalDataV7_r", "call": 2},
            "fault": {"kind": "powerCut", "block": 1}})");
    SMMSetCalDataCnfV7 answer = {};
    CCalDownload download;
    download.Type1(1, {});
    EXPECT_EQ(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &download.Request(), &answer), 0);
    SType1Block block = {};
    block.band = 1;
    CCalDownload second;
    second.Type1(1, {block});
    EXPECT_NE(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &second.Request(), &answer), 0);
    EXPECT_EQ(VondSim_IsPlugged(), 0);
    VondSim_SetPlugged(1);
    EXPECT_EQ(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &second.Request(), &answer), 0);
}

TEST_F(ScenarioTest, NextScenarioUndoesTheOneBefore)
{
    ASSERT_EQ(VondSim_AddFault(R"({"function": "*", "kind": "delay", "ms": 0})"), 0);
    Put(R"({"radio": {"levelDbm": {"default": -90}}}, {"plugged": false},
           {"fault": {"function": "*", "kind": "fail"}})");
    EXPECT_EQ(Calls(1), "1");
    EXPECT_EQ(VondSim_FaultCount(), 2u);
    ASSERT_EQ(VondSim_SetScenario(""), 0);
    EXPECT_EQ(Calls(1), "0");
    EXPECT_EQ(Level(), -65.0);
    EXPECT_EQ(VondSim_FaultCount(), 1u);
    EXPECT_EQ(TextOf(VondSim_GetScenarioText), "");
}

TEST_F(ScenarioTest, ProfileStartsTheScenarioAnew)
{
    Put(R"({"radio": {"levelDbm": {"default": -90}}},
           {"when": {"function": "VOND_NRf_ResetMixRxReportV7_r", "call": 2},
            "fault": {"function": "*", "kind": "fail"}})");
    EXPECT_EQ(Calls(3), "010");
    ASSERT_EQ(VondSim_SetProfile("largest"), 0);
    EXPECT_EQ(Level(), -90.0);
    EXPECT_EQ(Calls(3), "010");
}

TEST_F(ScenarioTest, AddedStepJoinsTheScenarioInForce)
{
    ASSERT_EQ(VondSim_AddStep(R"({"when": {"function": "VOND_NRf_ResetMixRxReportV7_r", "call": 2},
                                  "plugged": false})"),
              0);
    EXPECT_EQ(Calls(3), "011");
    VondSim_SetPlugged(1);
    EXPECT_EQ(Calls(3), "000");
    EXPECT_EQ(VondSim_AddStep(R"({"plug": false})"), -1);
    EXPECT_EQ(SimError(), "step: needs one of \"fault\", \"radio\" and \"plugged\"");
}

TEST_F(ScenarioTest, SavedStateDoesTheSameAgain)
{
    Put(R"({"when": {"function": "VOND_NRf_ResetMixRxReportV7_r", "every": 3},
            "fault": {"function": "*", "kind": "fail"}},
           {"when": {"function": "VOND_NRf_TestStop_r", "call": 7}, "plugged": false})",
        12);
    ASSERT_EQ(VondSim_SetRadio(R"({"levelDbm": {"n78": -77}})"), 0);
    ASSERT_EQ(VondSim_AddFault(R"({"function": "*", "kind": "delay", "ms": 1})"), 0);
    ASSERT_EQ(VondSim_AddFault(R"({"function": "*", "kind": "delay", "ms": 2})"), 0);
    ASSERT_EQ(VondSim_SwitchFault(FaultAt(2).id, 0), 0);
    const std::string saved = State();
    const json scenario = json::parse(saved);
    EXPECT_EQ(scenario["name"], "saved");
    EXPECT_EQ(scenario["about"], "as it was");
    EXPECT_EQ(scenario["seed"], 12);
    ASSERT_EQ(scenario["steps"].size(), 4u) << saved;
    EXPECT_EQ(scenario["steps"][0].dump(), R"({"radio":{"levelDbm":{"n78":-77.0}}})");
    VondSim_Reset();
    ASSERT_EQ(VondSim_SetScenarioText(saved.c_str()), 0) << SimError();
    EXPECT_EQ(Calls(6), "001001");
    EXPECT_EQ(State(), saved);
}

TEST_F(ScenarioTest, SavedStateLeavesOutWhatIsOver)
{
    Put(R"({"when": {"function": "VOND_NRf_ResetMixRxReportV7_r", "call": 1},
            "fault": {"function": "*", "kind": "fail"}},
           {"when": {"function": "VOND_NRf_ResetMixRxReportV7_r", "call": 2},
            "radio": {"noiseFigureDb": 9}})");
    Calls(2);
    const json scenario = json::parse(State());
    ASSERT_EQ(scenario["steps"].size(), 1u);
    EXPECT_EQ(scenario["steps"][0]["radio"]["noiseFigureDb"], 9.0);
}

TEST_F(ScenarioTest, FileAndEnvironmentNameOne)
{
    const std::string path = ::testing::TempDir() + "scenario-" + std::to_string(getpid());
    std::ofstream(path) << Scenario(R"({"radio": {"levelDbm": {"default": -71}}})");
    setenv("VOND_SIM_SCENARIO", path.c_str(), 1);
    VondSim_Reset();
    EXPECT_EQ(Level(), -71.0);
    setenv("VOND_SIM_SCENARIO", "/no/such/file", 1);
    VondSim_Reset();
    EXPECT_EQ(Level(), -65.0);
    unsetenv("VOND_SIM_SCENARIO");
    ASSERT_EQ(VondSim_SetScenario(path.c_str()), 0);
    EXPECT_EQ(Level(), -71.0);
    std::filesystem::remove(path);
}

}  // namespace
