// What the scenarios that come along show.

#include "tests/simulator/flash/CalFixture.h"
#include "tests/simulator/radio/MeasuringFixture.h"
#include "tests/simulator/steer/SteerText.h"

namespace {

class BuiltinScenarioTest : public CMeasuringTest
{
protected:
    static void Put(const char *name) { ASSERT_EQ(VondSim_SetScenario(name), 0) << SimError(); }

    static void StartTone(double power)
    {
        SMMSingleToneCmdV7 command = SingleToneCommand();
        command.txPowerValue = static_cast<int16_t>(power * 256);
        ASSERT_EQ(VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
    }

    static double PdValue()
    {
        int16_t value = 0;
        EXPECT_EQ(VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, 1, &value), VOND_SUCCESS);
        return value * kPer256;
    }
};

TEST_F(BuiltinScenarioTest, EachHasItsNameAndWords)
{
    uint32_t count = 0;
    while (const char *name = VondSim_ScenarioName(count)) {
        ASSERT_EQ(VondSim_SetScenario(name), 0) << SimError();
        EXPECT_EQ(TextOf(VondSim_GetScenarioText), VondSim_BuiltinScenarioText(name));
        const std::string title = std::string("\"name\": \"") + name + "\"";
        EXPECT_NE(TextOf(VondSim_GetScenarioText).find(title), std::string::npos);
        ++count;
    }
    EXPECT_EQ(count, 6u);
    EXPECT_EQ(VondSim_BuiltinScenarioText("none"), nullptr);
    EXPECT_EQ(VondSim_SetScenario("torn flash"), 0);
}

TEST_F(BuiltinScenarioTest, WeakCellStartsAndLosesBlocksLater)
{
    Put("weak-cell");
    StartRsrp(RsrpForcedCommand());
    NRfTestResult_GetMixRxReportV7 report = {};
    for (int i = 0; i < 9; ++i)
        report = Report();
    EXPECT_LT(report.RSRP0[0] * kPer128, -115.0);
    const uint32_t lostAtFirst = report.BadBLK;
    for (int i = 0; i < 20; ++i)
        report = Report();
    EXPECT_GT(report.BadBLK, lostAtFirst + 100);
}

TEST_F(BuiltinScenarioTest, CableComesOffInTheThirdReport)
{
    Put("cable-off");
    StartRsrp(RsrpForcedCommand());
    Report();
    Report();
    NRfTestResult_GetMixRxReportV7 report = {};
    EXPECT_EQ(ErrorText(VOND_NRf_GetMixRxReportV7_r(kHandle, kTimeoutMs, &report)),
              "Connection: no target is connected");
    EXPECT_EQ(VondSim_IsPlugged(), 0);
}

TEST_F(BuiltinScenarioTest, FlakyLinkLosesSomeStartsAndNoQuestionOfTheTool)
{
    Put("flaky-link");
    int lost = 0;
    for (int i = 0; i < 20; ++i) {
        const SMMContRxCmdV7 command = ContRxCommand();
        lost += VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command) == 2 ? 1 : 0;
        EXPECT_EQ(VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1), VOND_SUCCESS);
    }
    EXPECT_GE(lost, 4);
    EXPECT_LE(lost, 16);
}

TEST_F(BuiltinScenarioTest, SlowDutDelaysEachCall)
{
    Put("slow-dut");
    VOND_NRf_TestStop_r(kHandle, kTimeoutMs);
    EXPECT_GE(LastCall().durationNs, 100'000'000u);
}

TEST_F(BuiltinScenarioTest, TornFlashTearsTheFirstWriteAlone)
{
    Put("torn-flash");
    SType1Block block = {};
    block.band = 1;
    CCalDownload download;
    download.Type1(1, {block});
    SMMSetCalDataCnfV7 answer = {};
    EXPECT_NE(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &download.Request(), &answer), 0);
    SVondSimFlashItem item = {};
    VondSim_GetFlashItem(0, &item);
    EXPECT_EQ(item.tornCount, 1u);
    VondSim_SetPlugged(1);
    EXPECT_EQ(download.Send().status, kVondCalSuccess);
}

TEST_F(BuiltinScenarioTest, OverheatingPaDriftsFromTheSetPower)
{
    Put("overheating-pa");
    StartTone(23.0);
    const double cold = PdValue();
    double hot = cold;
    for (int i = 0; i < 25; ++i)
        hot = PdValue();
    EXPECT_NEAR(hot - cold, -1.4 * 0.98 + 0.5, 0.45);
    SVondSimRadioState state;
    VondSim_GetRadioState(&state);
    EXPECT_EQ(state.powerDbm, 23.0);
    EXPECT_LT(state.outputDbm, 22.0);
}

}  // namespace
