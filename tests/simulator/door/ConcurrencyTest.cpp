// Many threads at once: calls, resets, profile changes, faults, gates and journal reads. The
// checks are few; a sanitizer sees the rest.

#include <atomic>
#include <memory>
#include <thread>

#include "tests/simulator/SimulatorFixture.h"

namespace {

constexpr int kRounds = 300;

class ConcurrencyTest : public CSimulatorTest
{
};

TEST_F(ConcurrencyTest, EveryCallOfTwoThreadsIsInTheJournal)
{
    const auto calls = [] {
        for (int i = 0; i < kRounds; ++i) {
            const SMMContRxCmdV7 command = ContRxCommand();
            VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command);
            VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1);
        }
    };
    std::thread one(calls);
    std::thread other(calls);
    one.join();
    other.join();
    EXPECT_EQ(VondSim_CallCount(), 4u * kRounds);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(ConcurrencyTest, OneStartWinsAmongMany)
{
    std::atomic<int> started{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            const SMMContRxCmdV7 command = ContRxCommand();
            if (VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command) == VOND_SUCCESS)
                ++started;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(started, 1);
}

TEST_F(ConcurrencyTest, SteeringWhileCallsRunIsSafe)
{
    std::atomic<bool> end{false};
    std::thread caller([&] {
        auto config = std::make_unique<SMMRfRouteConfigV7>();
        const uint32_t kind = 1;
        while (!end) {
            const VOND_RESULT result =
                VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &kind, config.get());
            if (result == VOND_SUCCESS) {
                EXPECT_TRUE(config->bandCount == 11 || config->bandCount == 25);
            }
            const char *name = VOND_NRf_GetChipIdName(41);
            EXPECT_TRUE(name == nullptr || std::string(name) == "VR6241");
        }
    });
    std::thread reader([&] {
        while (!end) {
            for (uint32_t i = 0; i < VondSim_CallCount(); ++i) {
                SVondSimCall call = {};
                VondSim_GetCall(i, &call);
            }
            VondSim_ClearJournal();
        }
    });
    for (int i = 0; i < kRounds / 10; ++i) {
        VondSim_SetProfile("largest");
        VondSim_AddFault(R"({"function": "*", "kind": "fail", "probability": 0.5})");
        VondSim_Hold("VOND_NRf_GetChipIdName");
        VondSim_SetProfile("unplugged");
        VondSim_Release("VOND_NRf_GetChipIdName");
        VondSim_Reset();
    }
    end = true;
    caller.join();
    reader.join();
}

// What panels do while a test measures: they set sliders, look at everything, and save.
TEST_F(ConcurrencyTest, PanelsMayWorkWhileATestMeasures)
{
    std::atomic<bool> end{false};
    std::thread caller([&] {
        const SNrRsrpCmdV7 command = RsrpForcedCommand();
        while (!end) {
            uint32_t status = 0;
            NRfTestResult_GetMixRxReportV7 report = {};
            VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &command, &status);
            VOND_NRf_GetMixRxReportV7_r(kHandle, kTimeoutMs, &report);
            VOND_NRf_TestStop_r(kHandle, kTimeoutMs);
        }
    });
    std::thread reader([&] {
        char text[4096];
        while (!end) {
            SVondSimRadioState state;
            VondSim_GetRadioState(&state);
            VondSim_GetRadioText(text, sizeof(text));
            VondSim_GetStateAsScenario("x", "", text, sizeof(text));
            VondSim_GetScenarioText(text, sizeof(text));
            SVondSimFault fault;
            for (uint32_t i = 0; VondSim_GetFault(i, &fault) == 0; ++i)
                VondSim_GetFaultText(fault.id, text, sizeof(text));
            SVondSimFlashItem item;
            VondSim_GetFlashItem(0, &item);
            EXPECT_LT(state.downlinkKhz, 6000000u);
        }
    });
    for (int i = 0; i < kRounds; ++i) {
        VondSim_SetRadio(i % 2 == 0 ? R"({"levelDbm": {"default": -90}})" : nullptr);
        VondSim_SetScenario(VondSim_ScenarioName(i % 3 == 0 ? 0 : 2));
        VondSim_AddStep(
            R"({"when": {"function": "*", "every": 3}, "radio": {"temperatureC": 30}})");
        VondSim_FailNextCall(0);
        SVondSimFault fault;
        if (VondSim_GetFault(0, &fault) == 0)
            VondSim_RemoveFault(fault.id);
        if (i % 50 == 0)
            VondSim_RestoreFlash();
    }
    end = true;
    caller.join();
    reader.join();
    VondSim_SetScenario(nullptr);
    EXPECT_EQ(VondSim_IsPlugged(), 1);
}

}  // namespace
