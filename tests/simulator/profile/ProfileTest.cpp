// The built-in profiles, and profiles from files and texts.

#include <cstdio>
#include <fstream>
#include <memory>

#include "tests/simulator/SimulatorFixture.h"

namespace {

class ProfileTest : public CSimulatorTest
{
};

TEST_F(ProfileTest, EveryBuiltInLoads)
{
    std::vector<std::string> names;
    for (uint32_t i = 0; const char *name = VondSim_ProfileName(i); ++i) {
        EXPECT_EQ(VondSim_SetProfile(name), 0) << name;
        names.push_back(name);
    }
    const std::vector<std::string> expected = {"handset", "c2k",       "no-nr",
                                               "gen0",    "unplugged", "largest"};
    EXPECT_EQ(names, expected);
}

TEST_F(ProfileTest, HandsetIsTheProfileAfterReset)
{
    VondSim_SetProfile("gen0");
    VondSim_Reset();
    EXPECT_NE(std::string(VondSim_ProfileText()).find("\"name\": \"handset\""), std::string::npos);
}

TEST_F(ProfileTest, ModemOfTheHandsetIsNoC2kModem)
{
    int32_t index = -1;
    int32_t service = -1;
    ASSERT_EQ(VondConn_GetMdActiveIdx(kHandle, &index), 0);
    ASSERT_EQ(VondConn_GetMdSrv(kHandle, index, &service), 0);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(service, 4);
}

TEST_F(ProfileTest, ModemOfTheC2kProfileHasServiceTypeThree)
{
    VondSim_SetProfile("c2k");
    int32_t service = -1;
    ASSERT_EQ(VondConn_GetMdSrv(kHandle, 0, &service), 0);
    EXPECT_EQ(service, 3);
}

TEST_F(ProfileTest, AnotherModemIndexIsRefused)
{
    int32_t service = -1;
    EXPECT_EQ(ErrorText(VondConn_GetMdSrv(kHandle, 1, &service)), "Connection: unknown modem");
    EXPECT_EQ(service, -1);
}

TEST_F(ProfileTest, UnpluggedFailsEveryCallWithItsText)
{
    ASSERT_EQ(VondSim_SetProfile("unplugged"), 0);
    const SMMContRxCmdV7 command = ContRxCommand();
    const uint32_t kind = 1;
    auto config = std::make_unique<SMMRfRouteConfigV7>();
    int32_t index = 7;
    const VOND_RESULT results[] = {
        VondConn_GetMdActiveIdx(kHandle, &index),
        VondConn_GetMdSrv(kHandle, 0, &index),
        VOND_QueryFunctionSupported_r(kHandle, kTimeoutMs, "VOND_MMRf_ContRxV7_r"),
        VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &kind, config.get()),
        VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command),
        VOND_NRf_TestStop_r(kHandle, kTimeoutMs),
        VOND_MMRf_GetCalDataV7_r(kHandle, kTimeoutMs, nullptr, nullptr),
    };
    for (const VOND_RESULT result : results)
        EXPECT_EQ(ErrorText(result), "Connection: no target is connected");
    EXPECT_EQ(index, 7);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(ProfileTest, FileIsReadByItsPath)
{
    const std::string path = ::testing::TempDir() + "simulator-profile.json";
    std::ofstream(path) << HandsetWith("\"modem\": {\"index\": 2}");
    ASSERT_EQ(VondSim_SetProfile(path.c_str()), 0);
    int32_t index = -1;
    ASSERT_EQ(VondConn_GetMdActiveIdx(kHandle, &index), 0);
    EXPECT_EQ(index, 2);
    std::remove(path.c_str());
}

TEST_F(ProfileTest, BrokenFileUnplugsAndNamesFileAndReasonInOneLine)
{
    const std::string path = ::testing::TempDir() + "simulator-broken.json";
    std::ofstream(path) << "{\n\"name\": ";
    ::testing::internal::CaptureStderr();
    const int32_t result = VondSim_SetProfile(path.c_str());
    const std::string line = ::testing::internal::GetCapturedStderr();
    std::remove(path.c_str());
    EXPECT_EQ(result, -1);
    EXPECT_NE(line.find(path), std::string::npos) << line;
    EXPECT_NE(line.find("parse error at line 2"), std::string::npos) << line;
    EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
    int32_t index = 0;
    EXPECT_EQ(ErrorText(VondConn_GetMdActiveIdx(kHandle, &index)),
              "Connection: no target is connected");
}

TEST_F(ProfileTest, UnknownNameUnplugs)
{
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(VondSim_SetProfile("toaster"), -1);
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("toaster"), std::string::npos);
    EXPECT_NE(VOND_NRf_TestStop_r(kHandle, kTimeoutMs), VOND_SUCCESS);
}

TEST_F(ProfileTest, AnotherProfileStopsTheRadio)
{
    const SMMContRxCmdV7 command = ContRxCommand();
    ASSERT_EQ(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command), VOND_SUCCESS);
    VondSim_SetProfile("largest");
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(ProfileTest, ListedFunctionsAloneAreOffered)
{
    const std::string text = HandsetWith("\"functions\": [\"VOND_NRf_TestStop_r\"]");
    ASSERT_EQ(VondSim_SetProfileText(text.c_str()), 0);
    EXPECT_EQ(VOND_QueryFunctionSupported_r(kHandle, kTimeoutMs, "VOND_NRf_TestStop_r"),
              VOND_SUCCESS);
    EXPECT_EQ(VOND_NRf_TestStop_r(kHandle, kTimeoutMs), VOND_SUCCESS);
    EXPECT_NE(VOND_QueryFunctionSupported_r(kHandle, kTimeoutMs, "VOND_MMRf_TestStopV7_r"),
              VOND_SUCCESS);
    EXPECT_EQ(ErrorText(VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1)),
              "Target: function is not offered");
    auto info = std::make_unique<SMMCalBlkInfoCnfV7>();
    EXPECT_EQ(ErrorText(VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, 1, info.get())),
              "Target: function is not offered");
}

TEST_F(ProfileTest, GeneratedLimitsOfANarrowBandStayWithinIt)
{
    const char *const profile = R"({"name": "narrow", "base": "largest",
        "bands": [{"band": 900, "uplink": [800000, 801000], "downlink": [810000, 810002]}],
        "generate": {"txRoutes": 1, "bwRegionsKhz": [20000], "rxType1Routes": 1,
                     "rxType2Routes": 0, "pairedTxRoutes": 0, "freqLimits": 1}})";
    ASSERT_EQ(VondSim_SetProfileText(profile), 0);
    const auto config = std::make_unique<SMMRfRouteConfigV7>();
    const uint32_t nr = 1;
    ASSERT_EQ(VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &nr, config.get()), 0);
    EXPECT_EQ(config->freqRange.tx.low[0], 800250);
    EXPECT_EQ(config->freqRange.tx.high[0], 800750);
    EXPECT_EQ(config->freqRange.rx.low[0], 810000);
    EXPECT_EQ(config->freqRange.rx.high[0], 810002);
}

TEST_F(ProfileTest, EveryProfilesOwnFaultIsInForceUntilAnotherProfileComes)
{
    const std::string text =
        HandsetWith("\"faults\": [{\"function\": \"VOND_NRf_TestStop_r\", \"kind\": \"fail\"}]");
    ASSERT_EQ(VondSim_SetProfileText(text.c_str()), 0);
    EXPECT_EQ(ErrorText(VOND_NRf_TestStop_r(kHandle, kTimeoutMs)), "Target: failure on demand");
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(VOND_NRf_TestStop_r(kHandle, kTimeoutMs), VOND_SUCCESS);
}

}  // namespace
