// Broken profiles: each is refused with its own reason, and leaves the DUT unplugged.

#include "tests/simulator/SimulatorFixture.h"

namespace {

struct SBrokenProfile
{
    const char *title;
    std::string text;
    const char *reason;
};

void PrintTo(const SBrokenProfile &broken, std::ostream *stream)
{
    *stream << broken.title;
}

std::string Repeated(const std::string &part, int times)
{
    std::string text = part;
    for (int i = 1; i < times; ++i)
        text += ", " + part;
    return "[" + text + "]";
}

class BrokenProfileTest : public CSimulatorTest,
                          public ::testing::WithParamInterface<SBrokenProfile>
{
};

TEST_P(BrokenProfileTest, IsRefusedWithItsReason)
{
    ::testing::internal::CaptureStderr();
    const int32_t result = VondSim_SetProfileText(GetParam().text.c_str());
    const std::string line = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(result, -1);
    EXPECT_NE(line.find(GetParam().reason), std::string::npos) << line;
    EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
    EXPECT_NE(VOND_NRf_TestStop_r(kHandle, kTimeoutMs), VOND_SUCCESS);
}

const std::string kTxRoute = R"({"band": 1, "route": 1, "regions": []})";
const std::string kRxRoute =
    R"({"band": 1, "route": 1, "antMask": 1, "feRoute": 1, "ports": ["a", "b"], "srx": 0, )";

const SBrokenProfile kBroken[] = {
    {"Empty", "", "parse error"},
    {"NotAnObject", "[1]", "is not an object"},
    {"NoName", R"({"plugged": true})", "name: is missing"},
    {"UnknownKey", HandsetWith(R"("colour": 1)"), "colour: is an unknown key"},
    {"UnknownInnerKey", HandsetWith(R"("modem": {"speed": 1})"), "modem.speed: is an unknown key"},
    {"UnknownBase", R"({"base": "toaster"})", "base: \"toaster\" is none of"},
    {"WrongType", HandsetWith(R"("generation": "1")"), "generation: is not a whole number"},
    {"Fraction", HandsetWith(R"("generation": 1.5)"), "generation: is not a whole number"},
    {"Negative", HandsetWith(R"("generation": -1)"), "generation: -1 is not within 0 to 255"},
    {"TooWideMask", HandsetWith(R"("worldMode": {"mask": 1073741824})"), "worldMode.mask"},
    {"HugeNumber", HandsetWith(R"("generation": 18446744073709551615)"), "is not within"},
    {"NotABoolean", HandsetWith(R"("plugged": 1)"), "plugged: is neither true nor false"},
    {"UnknownFunction", HandsetWith(R"("functions": ["VOND_Dance_r"])"), "VOND_Dance_r"},
    {"TooManyBands", HandsetWith("\"bands\": " + Repeated(R"({"band": 1})", 26)),
     "bands: 26 entries, at most 25 fit"},
    {"TooManyTxRoutes", HandsetWith("\"txRoutes\": " + Repeated(kTxRoute, 101)),
     "txRoutes: 101 entries, at most 100 fit"},
    {"TooManyRegions",
     HandsetWith(R"("txRoutes": [{"band": 1, "route": 1, "regions": [1, 2, 3, 4, 5]}])"),
     "txRoutes[0].regions: 5 entries, at most 4 fit"},
    {"TooManyLimits",
     HandsetWith("\"rxLimits\": " + Repeated(R"({"band": 1, "route": 1, "kHz": [1, 2]})", 15)),
     "rxLimits: 15 entries, at most 14 fit"},
    {"TooManyMimoPairs",
     HandsetWith("\"rxType1Routes\": [" + kRxRoute + "\"mimoPairs\": [1, 2, 3, 4, 5, 6, 7]}]"),
     "rxType1Routes[0].mimoPairs: 7 entries, at most 6 fit"},
    {"TooLongPort",
     HandsetWith(R"("txRoutes": [{"band": 1, "route": 1, "regions": [{"kHz": 1, "antMask": 1,
                 "feRoute": 1, "stx": 0, "port": "0123456789abcdef"}]}])"),
     "txRoutes[0].regions[0].port: is longer than 15 bytes"},
    {"OnePort", HandsetWith(R"("rxType1Routes": [{"band": 1, "route": 1, "antMask": 1, "feRoute": 1,
                 "srx": 0, "ports": ["a"]}])"),
     "rxType1Routes[0].ports: needs 2 entries"},
    {"RepeatedBand", HandsetWith("\"bands\": " + Repeated(R"({"band": 1})", 2)),
     "band 1 is listed twice"},
    {"RepeatedRoute", HandsetWith("\"txRoutes\": " + Repeated(kTxRoute, 2)),
     "route 1 stands twice on band 1"},
    {"RouteWithoutBand", HandsetWith(R"("txRoutes": [{"band": 66, "route": 1, "regions": []}])"),
     "band 66 is not listed"},
    {"TxRouteOnDownlinkBand",
     HandsetWith(R"("txRoutes": [{"band": 75, "route": 1, "regions": []}])"),
     "band 75 does not have that direction"},
    {"UnknownPairedRoute", HandsetWith("\"rxType1Routes\": [" + kRxRoute + "\"txRoutes\": [99]}]"),
     "pairs with unknown TX route 99"},
    {"BandWithoutLimits", HandsetWith(R"("bands": [{"band": 999}])"), "is no 3GPP band"},
    {"FlagAgainstLimits", HandsetWith(R"("bands": [{"band": 1, "downlinkOnly": true}])"),
     "has limits in the direction that its flag rules out"},
    {"LimitsUpsideDown", HandsetWith(R"("bands": [{"band": 1, "uplink": [2, 1]}])"),
     "bands[0].uplink[1]"},
    {"ShortGainTable", HandsetWith(R"("gain": {"hpm": {"t1": ["111"]}})"), "gain.hpm.t1"},
    {"BadGainDigit",
     HandsetWith(R"("gain": {"lpm": {"t1": ["112", "111", "111", "111", "111", "111", "111"]}})"),
     "gain.lpm.t1[0]"},
    {"RadioIsNoObject", HandsetWith(R"("radio": 1)"), "radio: is not an object"},
    {"UnknownRadioKey", HandsetWith(R"("radio": {"colour": 1})"), "radio.colour: is an unknown"},
    {"LevelTooHigh", HandsetWith(R"("radio": {"levelDbm": {"n1": 31}})"),
     "radio.levelDbm.n1: 31 is out of limits"},
    {"LevelIsNoNumber", HandsetWith(R"("radio": {"levelDbm": {"n1": "x"}})"),
     "radio.levelDbm.n1: is not a number"},
    {"LevelOfNoBand", HandsetWith(R"("radio": {"levelDbm": {"b1": -60}})"),
     "radio.levelDbm.b1: is an unknown key"},
    {"LevelOfABandWithoutNumber", HandsetWith(R"("radio": {"levelDbm": {"n": -60}})"),
     "radio.levelDbm.n: is an unknown key"},
    {"LevelOfABandWithZeros", HandsetWith(R"("radio": {"levelDbm": {"n01": -60}})"),
     "radio.levelDbm.n01: is an unknown key"},
    {"LossOfAHugeRoute", HandsetWith(R"("radio": {"pathLossDb": {"65536": 1}})"),
     "radio.pathLossDb.65536: is an unknown key"},
    {"NegativeLoss", HandsetWith(R"("radio": {"pathLossDb": {"1": -1}})"),
     "radio.pathLossDb.1: -1 is out of limits"},
    {"NegativeFluctuation", HandsetWith(R"("radio": {"fluctuationDb": -0.1})"),
     "radio.fluctuationDb: -0.1 is out of limits"},
    {"FractionOfASeed", HandsetWith(R"("radio": {"seed": 1.5})"), "radio.seed: is not a whole"},
    {"UnknownDetectorKey", HandsetWith(R"("radio": {"powerDetector": {"gain": 1}})"),
     "radio.powerDetector.gain: is an unknown key"},
    {"CalibrationIsNoObject", HandsetWith(R"("calibration": [])"), "calibration: is not an object"},
    {"UnknownCalibrationKey", HandsetWith(R"("calibration": {"subbands": {}})"),
     "calibration.subbands: is an unknown key"},
    {"TooManySubbands", HandsetWith(R"("calibration": {"txSubbands": {"n1": 65}})"),
     "calibration.txSubbands.n1: 65 is not within 0 to 64"},
    {"TooManyType2Subbands", HandsetWith(R"("calibration": {"rxType2Subbands": {"default": 49}})"),
     "calibration.rxType2Subbands.default: 49 is not within 0 to 48"},
    {"FractionOfASubband", HandsetWith(R"("calibration": {"rxType1Subbands": {"n1": 1.5}})"),
     "calibration.rxType1Subbands.n1: is not a whole number"},
    {"SubbandsOfNoBand", HandsetWith(R"("calibration": {"txSubbands": {"band1": 4}})"),
     "calibration.txSubbands.band1: is an unknown key"},
    {"BrokenFault", HandsetWith(R"("faults": [{"function": "*", "kind": "explode"}])"),
     "faults[0].kind: \"explode\" is an unknown kind"},
    {"GenerateBesideRoutes", R"({"base": "largest", "txRoutes": []})",
     "txRoutes: cannot stand beside \"generate\""},
    {"GenerateTooMuch", R"({"base": "largest", "generate": {"txRoutes": 101}})",
     "generate.txRoutes: 101 is not within 0 to 100"},
    {"DeepNesting", std::string(100000, '['), "nests too deep"},
};

INSTANTIATE_TEST_SUITE_P(Each, BrokenProfileTest, ::testing::ValuesIn(kBroken),
                         [](const ::testing::TestParamInfo<SBrokenProfile> &info) {
                             return info.param.title;
                         });

}  // namespace
