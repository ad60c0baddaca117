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

}  // namespace
