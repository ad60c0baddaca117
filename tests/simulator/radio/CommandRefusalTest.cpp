// What the DUT refuses: each good command is bent in one place, and the answer names that place.

#include "tests/simulator/SimulatorFixture.h"

namespace {

// One bent command: the words of the result, or a status when the text is empty.
template <class Command>
struct SBend
{
    void (*bend)(Command &);
    const char *text;
    uint32_t status = 0;
};

class CommandRefusalTest : public CSimulatorTest
{
protected:
    // The good command passes, each bent one is refused as its row says, and nothing runs.
    template <class Command, class Rows, class Send>
    void Check(const Command &good, const Rows &rows, const Send &send)
    {
        int row = 0;
        for (const auto &entry : rows) {
            Command bent = good;
            entry.bend(bent);
            uint32_t status = 0;
            const VOND_RESULT result = send(bent, status);
            const std::string expected = entry.status != 0 ? "Success" : entry.text;
            EXPECT_EQ(ErrorText(result), expected) << "row " << row;
            EXPECT_EQ(status, entry.status) << "row " << row;
            EXPECT_STREQ(VondSim_RunningTest(), "") << "row " << row;
            ++row;
        }
        uint32_t status = 0;
        EXPECT_EQ(ErrorText(send(good, status)), "Success");
        EXPECT_EQ(status, 0u);
    }
};

constexpr char kBand[] = "Target: unknown band";
constexpr char kRoute[] = "Target: unknown route";
constexpr char kRouteBand[] = "Target: route does not serve the band";
constexpr char kRouteKind[] = "Target: route kind does not fit the route";
constexpr char kDirection[] = "Target: band does not support the direction";
constexpr char kFrequency[] = "Target: frequency is out of limits";
constexpr char kPath[] = "Target: path does not exist on the route";
constexpr char kBandwidth[] = "Target: unknown channel bandwidth";
constexpr char kPowerMode[] = "Target: unknown power mode";
constexpr char kGain[] = "Target: gain is out of limits";
constexpr char kGainMode[] = "Target: gain mode is not supported";
constexpr char kTxPower[] = "Target: TX power is out of limits";
constexpr char kBlocks[] = "Target: resource blocks do not fit the bandwidth";
constexpr char kFlag[] = "Target: flag is neither 0 nor 1";
constexpr char kMimo[] = "Target: band does not support the MIMO mode";
constexpr char kRadioKind[] = "Target: unknown radio kind";
constexpr char kSlot[] = "Target: unknown slot format";
constexpr char kCarriers[] = "Target: carrier count is out of limits";

VOND_RESULT SendContRx(const SMMContRxCmdV7 &command, uint32_t &)
{
    return VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command);
}

VOND_RESULT SendRssi(const SMMRssiCmdV7 &command, uint32_t &)
{
    SMMRssiCnfV7 answer = {};
    return VOND_MMRf_RssiV7_r(kHandle, kTimeoutMs, &command, &answer);
}

VOND_RESULT SendPusch(const SNrPuschTxCmdV7 &command, uint32_t &status)
{
    return VOND_NRf_PuschTxV7_r(kHandle, kTimeoutMs, &command, &status);
}

VOND_RESULT SendRsrp(const SNrRsrpCmdV7 &command, uint32_t &status)
{
    return VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &command, &status);
}

TEST_F(CommandRefusalTest, ContRxOnePath)
{
    using C = SMMContRxCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.band = 2; }, kBand},
        {[](C &c) { c.band = 80; }, kRouteBand},
        {[](C &c) { c.rxRoute = 99; }, kRoute},
        {[](C &c) { c.rxRoute = 3; }, kRouteBand},
        {[](C &c) { c.routeKind = 3; }, kRouteKind},
        {[](C &c) { c.routeKind = 2; }, kRouteKind},
        {[](C &c) { c.rxRoute = 101; }, kRouteKind},
        {[](C &c) { c.dlFrequency = 1919999; }, kFrequency},
        {[](C &c) { c.dlFrequency = 2170001; }, kFrequency},
        {[](C &c) { c.path = 1; }, kPath},
        {[](C &c) { c.path = 3; }, kPath},
        {[](C &c) { c.singlePath = 0; }, kPath},
        {[](C &c) { c.singlePath = 2; }, kFlag},
        {[](C &c) { c.lowPower = 2; }, kPowerMode},
        {[](C &c) { c.dlBandwidth = 5001; }, kBandwidth},
        {[](C &c) { c.gain.single.mainRfGain = -1; }, kGain},
        {[](C &c) { c.gain.single.divRfGain = 2241; }, kGain},
    };
    Check(ContRxCommand(), rows, SendContRx);
}

TEST_F(CommandRefusalTest, ContRxBothPaths)
{
    using C = SMMContRxCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.routeKind = 1; }, kRouteKind},
        {[](C &c) { c.path = 0; }, kPath},
        {[](C &c) { c.gain.simultaneous.path1DivGainIdx = 18; }, kGain},
        {[](C &c) { c.gain.simultaneous.path1DivRfGain = -32; }, kGain},
    };
    Check(ContRxBothPathsCommand(), rows, SendContRx);
}

TEST_F(CommandRefusalTest, Type2RouteWithoutGainModeTakesRouteKindOne)
{
    using C = SMMContRxCmdV7;
    C good = ContRxBothPathsCommand();
    good.band = 78;
    good.rxRoute = 107;
    good.routeKind = 1;
    good.dlFrequency = 3500000;
    const SBend<C> rows[] = {{[](C &c) { c.routeKind = 3; }, kRouteKind}};
    Check(good, rows, SendContRx);
}

TEST_F(CommandRefusalTest, RouteLimitsAreNarrowerThanTheBand)
{
    using C = SMMContRxCmdV7;
    C good = ContRxCommand();
    good.band = 28;
    good.rxRoute = 8;
    good.dlFrequency = 788000;
    const SBend<C> rows[] = {{[](C &c) { c.dlFrequency = 788001; }, kFrequency}};
    Check(good, rows, SendContRx);
}

TEST_F(CommandRefusalTest, Rssi)
{
    using C = SMMRssiCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.band = 4; }, kBand},
        {[](C &c) { c.rxRoute = 104; }, kRouteBand},
        {[](C &c) { c.routeKind = 1; }, kRouteKind},
        {[](C &c) { c.numFreq = 0; }, "Target: frequency count is out of limits"},
        {[](C &c) { c.numFreq = 6; }, "Target: frequency count is out of limits"},
        {[](C &c) { c.numFreq = 3; }, kFrequency},
        {[](C &c) { c.dlFrequency[1] = 3800001; }, kFrequency},
        {[](C &c) { c.path = 2; }, kPath},
        {[](C &c) { c.gain.single.mainDigitalGain = 54 * 32 + 1; }, kGain},
        {[](C &c) { c.gain.single.divDigitalGain = -42 * 32 - 1; }, kGain},
        {[](C &c) { c.gain.single.mainRfGain = -1; }, kGain},
    };
    Check(RssiCommand(), rows, SendRssi);
    const SBend<C> bothRows[] = {
        {[](C &c) { c.gain.simultaneous.path1MainDigitalGain = 2000; }, kGain},
        {[](C &c) { c.gain.simultaneous.path0MainGainIdx = 18; }, kGain},
    };
    Check(RssiBothPathsCommand(), bothRows, SendRssi);
}

TEST_F(CommandRefusalTest, GainSearch)
{
    using C = SMMGainSearchCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.radioKind = 0; }, kRadioKind},
        {[](C &c) { c.lowPower = 2; }, kPowerMode},
        {[](C &c) { c.simultaneous = 2; }, kFlag},
        {[](C &c) { c.elnaModeMain = 7; }, kGainMode},
        {[](C &c) { c.search[1] = 3; }, kGainMode},
        {[](C &c) { c.elnaModeDiv = 6; }, kGainMode},
        {[](C &c) { c.lowPower = 1, c.search[0] = 2; }, kGainMode},
        {[](C &c) { c.simultaneous = 1, c.search[0] = 2, c.search[2] = 2; }, kGainMode},
    };
    Check(GainSearchCommand(), rows, [](const C &command, uint32_t &) {
        SMMGainSearchCnfV7 answer = {};
        return VOND_MMRf_GainSearchV7_r(kHandle, kTimeoutMs, &command, &answer);
    });
}

TEST_F(CommandRefusalTest, SingleTone)
{
    using C = SMMSingleToneCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.radioKind = 0; }, kRadioKind},
        {[](C &c) { c.band = 2; }, kBand},
        {[](C &c) { c.band = 75; }, kDirection},
        {[](C &c) { c.txRoute = 77; }, kRoute},
        {[](C &c) { c.txRoute = 1; }, kRouteBand},
        {[](C &c) { c.ulFrequency = 2495999; }, kFrequency},
        {[](C &c) { c.txRoute = 11, c.ulFrequency = 2500000; }, kFrequency},
        {[](C &c) { c.txPowerValue = 30 * 256 + 1; }, kTxPower},
        {[](C &c) { c.txPowerValue = -60 * 256 - 1; }, kTxPower},
        {[](C &c) { c.aggBwKhzRange = 50000; }, "Target: route has no such bandwidth region"},
        {[](C &c) { c.ulFreqOffset = 541; }, "Target: tone setting is out of limits"},
        {[](C &c) { c.afcDataType = 2; }, "Target: tone setting is out of limits"},
    };
    Check(SingleToneCommand(), rows, [](const C &command, uint32_t &) {
        return VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &command);
    });
}

TEST_F(CommandRefusalTest, PuschForced)
{
    using C = SNrPuschTxCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.forced = 2; }, kFlag},
        {[](C &c) { c.forcedMode.carrier.band = 2; }, kBand},
        {[](C &c) { c.forcedMode.carrier.band = 75; }, kDirection},
        {[](C &c) { c.forcedMode.carrier.txRoute = 5; }, kRouteBand},
        {[](C &c) { c.forcedMode.carrier.txRoute = 50; }, kRoute},
        {[](C &c) { c.forcedMode.carrier.ulFrequency = 1785005; }, "", 1},
        {[](C &c) { c.forcedMode.carrier.ulFrequency = 1747501; }, "", 1},
        {[](C &c) { c.forcedMode.carrier.txScs = 3; }, "Target: unknown subcarrier spacing"},
        {[](C &c) { c.forcedMode.carrier.ulBandwidth = 60000; }, kBandwidth},
        {[](C &c) { c.forcedMode.carrier.vrbStart = 1; }, kBlocks},
        {[](C &c) { c.forcedMode.carrier.vrbLength = 0; }, kBlocks},
        {[](C &c) { c.forcedMode.carrier.mcsMode = 9; }, "Target: unknown modulation"},
        {[](C &c) { c.forcedMode.carrier.txPowerValue = 8000; }, kTxPower},
        {[](C &c) { c.forcedMode.carrier.cellId = 1008; }, "Target: cell id is out of limits"},
        {[](C &c) { c.forcedMode.carrier.tddSlotConfig = 56; }, kSlot},
        {[](C &c) { c.forcedMode.carrier.enableCsr = 2; }, kFlag},
        {[](C &c) { c.forcedMode.carrier.enableMimo = 1; }, kMimo},
    };
    Check(PuschForcedCommand(), rows, SendPusch);
}

TEST_F(CommandRefusalTest, PuschNormal)
{
    using C = SNrPuschTxCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.normalMode.ulCCNum = 0; }, kCarriers},
        {[](C &c) { c.normalMode.ulCCNum = 3; }, kCarriers},
        {[](C &c) { c.normalMode.carrier[0].ulFrequency += 5; }, "", 1},
        {[](C &c) { c.normalMode.carrier[1].band = 81; }, kBand},
        {[](C &c) { c.normalMode.carrier[1].ulFrequency = 1000; }, "", 1},
    };
    Check(PuschNormalCommand(), rows, SendPusch);
}

TEST_F(CommandRefusalTest, SecondCarrierCountsOnlyWhenItIsInUse)
{
    SNrPuschTxCmdV7 command = PuschNormalCommand();
    command.normalMode.ulCCNum = 1;
    command.normalMode.carrier[1] = {};
    uint32_t status = 0;
    EXPECT_EQ(SendPusch(command, status), VOND_SUCCESS);
    EXPECT_EQ(status, 0u);
}

TEST_F(CommandRefusalTest, RsrpForced)
{
    using C = SNrRsrpCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.forced = 3; }, kFlag},
        {[](C &c) { c.forcedMode.carrier.common.band = 2; }, kBand},
        {[](C &c) { c.forcedMode.carrier.common.band = 80; }, kDirection},
        {[](C &c) { c.forcedMode.carrier.common.dlFrequency = 2170005; }, "", 1},
        {[](C &c) { c.forcedMode.carrier.common.dlFrequency = 2140001; }, "", 1},
        {[](C &c) { c.forcedMode.carrier.rxRoute = 99; }, kRoute},
        {[](C &c) { c.forcedMode.carrier.rxRoute = 5; }, kRouteBand},
        {[](C &c) { c.forcedMode.carrier.rxRoute = 101; }, kRouteKind},
        {[](C &c) { c.forcedMode.carrier.common.dlBandwidth = 0; }, kBandwidth},
        {[](C &c) { c.forcedMode.carrier.common.measCnt = 0; },
         "Target: measure count is out of limits"},
        {[](C &c) { c.forcedMode.carrier.common.measCnt = 11; },
         "Target: measure count is out of limits"},
        {[](C &c) { c.forcedMode.carrier.common.tddSlotConfig = 56; }, kSlot},
        {[](C &c) { c.forcedMode.carrier.common.trxMode = 2; }, kFlag},
        {[](C &c) { c.forcedMode.carrier.lpmHpmConf = 0; }, kPowerMode},
        {[](C &c) { c.forcedMode.carrier.lpmHpmConf = 4; }, kPowerMode},
    };
    Check(RsrpForcedCommand(), rows, SendRsrp);
}

TEST_F(CommandRefusalTest, RsrpWithPseudoTx)
{
    using C = SNrRsrpCmdV7;
    C good = RsrpForcedCommand();
    good.forcedMode.carrier.common.trxMode = 1;
    good.forcedMode.carrier.common.vrbLength = 52;
    good.forcedMode.carrier.common.txPowerValue = 256;
    good.forcedMode.carrier.txRoute = 1;
    const SBend<C> rows[] = {
        {[](C &c) { c.forcedMode.carrier.txRoute = 99; }, kRoute},
        {[](C &c) { c.forcedMode.carrier.txRoute = 3; }, kRouteBand},
        {[](C &c) { c.forcedMode.carrier.common.vrbLength = 53; }, kBlocks},
        {[](C &c) { c.forcedMode.carrier.common.txPowerValue = 8000; }, kTxPower},
        {[](C &c) {
             c.forcedMode.carrier.common.band = 75;
             c.forcedMode.carrier.common.dlFrequency = 1450000;
             c.forcedMode.carrier.rxRoute = 17;
         },
         kDirection},
    };
    Check(good, rows, SendRsrp);
}

TEST_F(CommandRefusalTest, TxRouteThatDoesNotPairWithTheRxRoute)
{
    const std::string text = HandsetWith(
        R"("rxType1Routes": [{"band": 1, "route": 1, "antMask": 1, "feRoute": 1,
           "ports": ["a", "b"], "srx": 0, "txRoutes": [2]}], "rxLimits": null)");
    ASSERT_EQ(VondSim_SetProfileText(text.c_str()), 0);
    SNrRsrpCmdV7 command = RsrpForcedCommand();
    command.forcedMode.carrier.common.trxMode = 1;
    command.forcedMode.carrier.common.vrbLength = 1;
    command.forcedMode.carrier.txRoute = 1;
    uint32_t status = 0;
    EXPECT_EQ(ErrorText(SendRsrp(command, status)),
              "Target: TX route does not pair with the RX route");
    command.forcedMode.carrier.txRoute = 2;
    EXPECT_EQ(SendRsrp(command, status), VOND_SUCCESS);
}

TEST_F(CommandRefusalTest, RsrpNormal)
{
    using C = SNrRsrpCmdV7;
    const SBend<C> rows[] = {
        {[](C &c) { c.normalMode.carrierCount = 0; }, kCarriers},
        {[](C &c) { c.normalMode.carrierCount = 2; }, kCarriers},
        {[](C &c) { c.normalMode.carrier[0].common.dlFrequency = 3550000; }, "", 1},
        {[](C &c) { c.normalMode.carrier[0].mimo4x4 = 2; }, kFlag},
        {[](C &c) {
             c.normalMode.carrier[0].common.band = 5;
             c.normalMode.carrier[0].common.dlFrequency = 880000;
         },
         kMimo},
    };
    Check(RsrpNormalCommand(), rows, SendRsrp);
}

TEST_F(CommandRefusalTest, RasterIsNotCheckedWhereTheProfileSaysSo)
{
    ASSERT_EQ(VondSim_SetProfileText(HandsetWith("\"rasterCheck\": false").c_str()), 0);
    SNrRsrpCmdV7 command = RsrpNormalCommand();
    command.normalMode.carrier[0].common.dlFrequency = 3550001;
    uint32_t status = 0;
    EXPECT_EQ(SendRsrp(command, status), VOND_SUCCESS);
    EXPECT_EQ(status, 0u);
}

TEST_F(CommandRefusalTest, NullCommandsAndStatusWords)
{
    const SNrRsrpCmdV7 command = RsrpForcedCommand();
    uint32_t status = 0;
    const std::string text = "Argument: null pointer";
    EXPECT_EQ(ErrorText(VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, nullptr, &status)), text);
    EXPECT_EQ(ErrorText(VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &command, nullptr)), text);
    EXPECT_EQ(ErrorText(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, nullptr)), text);
    EXPECT_EQ(ErrorText(VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, 1, nullptr)), text);
    EXPECT_EQ(ErrorText(VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, nullptr, nullptr)), text);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

}  // namespace
