// What the radio does and the test set sends, told and changed while a test runs.

#include <chrono>
#include <thread>

#include <nlohmann/json.hpp>

#include "tests/simulator/radio/MeasuringFixture.h"
#include "tests/simulator/steer/SteerText.h"

namespace {

using nlohmann::json;

class RadioStateTest : public CMeasuringTest
{
protected:
    static SVondSimRadioState State()
    {
        SVondSimRadioState state;
        VondSim_GetRadioState(&state);
        return state;
    }

    static void StartTone()
    {
        const SMMSingleToneCmdV7 command = SingleToneCommand();
        ASSERT_EQ(VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
    }

    static json Radio() { return json::parse(TextOf(VondSim_GetRadioText)); }
};

TEST_F(RadioStateTest, IdleRadioTellsThatItIsPluggedAndNothingElse)
{
    const SVondSimRadioState state = State();
    EXPECT_STREQ(state.test, "");
    EXPECT_EQ(state.isPlugged, 1);
    EXPECT_EQ(state.isReceiving + state.isTransmitting, 0);
    EXPECT_EQ(state.elapsedNs, 0u);
    EXPECT_EQ(VondSim_IsPlugged(), 1);
    VondSim_SetPlugged(0);
    EXPECT_EQ(State().isPlugged, 0);
    EXPECT_EQ(VondSim_IsPlugged(), 0);
}

TEST_F(RadioStateTest, ToneIsToldWithBandFrequencyAndPower)
{
    StartTone();
    const SVondSimRadioState state = State();
    EXPECT_STREQ(state.test, "SingleToneTx");
    EXPECT_EQ(state.isTransmitting, 1);
    EXPECT_EQ(state.isReceiving, 0);
    EXPECT_EQ(state.band, 41u);
    EXPECT_EQ(state.route, 9u);
    EXPECT_EQ(state.uplinkKhz, 2593000u);
    EXPECT_EQ(state.downlinkKhz, 0u);
    EXPECT_EQ(state.powerDbm, 10.0);
    EXPECT_NEAR(state.outputDbm, 10.0, 0.01);
}

TEST_F(RadioStateTest, ReceiverIsToldWithItsFrequency)
{
    const SMMContRxCmdV7 command = ContRxCommand();
    ASSERT_EQ(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
    const SVondSimRadioState state = State();
    EXPECT_STREQ(state.test, "ContRx");
    EXPECT_EQ(state.isReceiving, 1);
    EXPECT_EQ(state.isTransmitting, 0);
    EXPECT_EQ(state.downlinkKhz, 2140000u);
}

TEST_F(RadioStateTest, PseudoTestReceivesAndTransmitsTheDuplexDistanceBelow)
{
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    SNrRsrpCommonV7 &carrier = command.forcedMode.carrier.common;
    carrier.trxMode = 1;
    carrier.txPowerValue = 20 * 256;
    carrier.vrbLength = 1;
    command.forcedMode.carrier.txRoute = 1;
    StartRsrp(command);
    const SVondSimRadioState state = State();
    EXPECT_EQ(state.isReceiving, 1);
    EXPECT_EQ(state.isTransmitting, 1);
    EXPECT_EQ(state.downlinkKhz - state.uplinkKhz, 190000u);
    EXPECT_EQ(state.powerDbm, 20.0);
}

TEST_F(RadioStateTest, TimeRunsFromTheStartAndEndsWithTheTest)
{
    StartTone();
    const uint64_t first = State().elapsedNs;
    const auto before = std::chrono::steady_clock::now();
    while (State().elapsedNs == first)
        std::this_thread::yield();
    const auto passed = std::chrono::steady_clock::now() - before;
    EXPECT_GT(State().elapsedNs, first);
    EXPECT_LT(passed, std::chrono::seconds(10));
    VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1);
    EXPECT_EQ(State().elapsedNs, 0u);
}

TEST_F(RadioStateTest, RunningTestFollowsTheLevelAndTheLoss)
{
    Plug(QuietRadio(-70));
    StartRsrp(RsrpForcedCommand());
    const double before = Report().RSRP0[0] * kPer128;
    ASSERT_EQ(VondSim_SetRadio(R"({"levelDbm": {"n1": -60}})"), 0);
    EXPECT_NEAR(Report().RSRP0[0] * kPer128 - before, 10.0, 0.02);
    ASSERT_EQ(VondSim_SetRadio(R"({"pathLossDb": {"1": 4}})"), 0);
    EXPECT_NEAR(Report().RSRP0[0] * kPer128 - before, 6.0, 0.02);
    ASSERT_EQ(VondSim_SetRadio(R"({"levelDbm": {"n1": null}, "pathLossDb": {"1": null}})"), 0);
    EXPECT_NEAR(Report().RSRP0[0] * kPer128, before, 0.02);
    EXPECT_STREQ(VondSim_RunningTest(), "Rsrp");
}

TEST_F(RadioStateTest, NoiseFigureAndFluctuationActAtOnce)
{
    Plug(QuietRadio(-200));
    const double quiet = Rssi(RssiCommand()).rows.single.row[0].rssiMain * kPer32;
    ASSERT_EQ(VondSim_SetRadio(R"({"noiseFigureDb": 16})"), 0);
    EXPECT_NEAR(Rssi(RssiCommand()).rows.single.row[0].rssiMain * kPer32 - quiet, 10.0, 0.1);
    ASSERT_EQ(VondSim_SetRadio(R"({"levelDbm": {"default": -60}, "fluctuationDb": 6})"), 0);
    EXPECT_NE(Rssi(RssiCommand()).rows.single.row[0].rssiMain,
              Rssi(RssiCommand()).rows.single.row[0].rssiMain);
}

TEST_F(RadioStateTest, TextHasAllKeysAndCanBeSetAgain)
{
    ASSERT_EQ(VondSim_SetRadio(R"({"levelDbm": {"n78": -81.5}, "temperatureC": 40})"), 0);
    const json radio = Radio();
    EXPECT_EQ(radio["levelDbm"]["n78"], -81.5);
    EXPECT_EQ(radio["levelDbm"]["default"], -65.0);
    EXPECT_EQ(radio["pathLossDb"]["14"], 2.0);
    EXPECT_EQ(radio["temperatureC"], 40.0);
    EXPECT_EQ(radio["powerDetector"]["slope"], 0.98);
    EXPECT_EQ(VondSim_SetRadio(radio.dump().c_str()), 0);
    EXPECT_EQ(Radio(), radio);
    EXPECT_EQ(VondSim_SetRadio(nullptr), 0);
    EXPECT_FALSE(Radio()["levelDbm"].contains("n78"));
    EXPECT_EQ(Radio()["temperatureC"], 25.0);
}

TEST_F(RadioStateTest, BrokenRadioIsRefusedInWordsAndChangesNothing)
{
    const json before = Radio();
    const struct
    {
        const char *text;
        const char *reason;
    } rows[] = {
        {R"({"noiseFigureDb": 6, "temperature": 20})", "radio.temperature: is an unknown key"},
        {R"({"levelDbm": {"n78": 31}})", "radio.levelDbm.n78: 31 is out of limits"},
        {R"({"levelDbm": -60})", "radio.levelDbm: is not an object"},
        {R"([1])", "radio: is not an object"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(VondSim_SetRadio(row.text), -1) << row.text;
        EXPECT_EQ(SimError(), row.reason);
    }
    EXPECT_EQ(VondSim_SetRadio("{"), -1);
    EXPECT_NE(SimError(), "");
    EXPECT_EQ(Radio(), before);
}

TEST_F(RadioStateTest, SeedStartsTheChanceOfReadingsAnew)
{
    StartRsrp(RsrpForcedCommand());
    ASSERT_EQ(VondSim_SetRadio(R"({"seed": 9})"), 0);
    const int16_t first = Report().RSRP0[0];
    Report();
    ASSERT_EQ(VondSim_SetRadio(R"({"seed": 9})"), 0);
    EXPECT_EQ(Report().RSRP0[0], first);
}

TEST_F(RadioStateTest, ProfileBringsItsOwnRadio)
{
    ASSERT_EQ(VondSim_SetRadio(R"({"levelDbm": {"default": -90}})"), 0);
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(Radio()["levelDbm"]["default"], -65.0);
}

TEST_F(RadioStateTest, ShortRoomTakesTheStartOfATextAndAZero)
{
    char text[4] = {'x', 'x', 'x', 'x'};
    const std::string whole = TextOf(VondSim_GetRadioText);
    EXPECT_EQ(VondSim_GetRadioText(text, sizeof(text)), whole.size());
    EXPECT_EQ(std::string(text), whole.substr(0, 3));
}

}  // namespace
