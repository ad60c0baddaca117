// Gates: held callers stand until they are released, whatever happens to the DUT meanwhile.

#include <future>

#include "tests/simulator/SimulatorFixture.h"

namespace {

constexpr char kContRx[] = "VOND_MMRf_ContRxV7_r";
constexpr uint32_t kLongMs = 20000;  // ends a broken test; never waited for in a good one

class GateTest : public CSimulatorTest
{
protected:
    std::future<VOND_RESULT> StartInThread()
    {
        return std::async(std::launch::async, [] {
            const SMMContRxCmdV7 command = ContRxCommand();
            return VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command);
        });
    }

    static bool Ended(std::future<VOND_RESULT> &call)
    {
        return call.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    }
};

TEST_F(GateTest, HeldCallDoesNothingUntilItIsReleased)
{
    VondSim_Hold(kContRx);
    auto call = StartInThread();
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    EXPECT_FALSE(Ended(call));
    EXPECT_STREQ(VondSim_RunningTest(), "");
    EXPECT_EQ(VondSim_CallCount(), 0u);
    VondSim_Release(kContRx);
    EXPECT_EQ(call.get(), VOND_SUCCESS);
    EXPECT_STREQ(VondSim_RunningTest(), "ContRx");
    EXPECT_EQ(VondSim_CallCount(), 1u);
}

TEST_F(GateTest, OtherFunctionsPassAHeldGate)
{
    VondSim_Hold(kContRx);
    auto call = StartInThread();
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    EXPECT_EQ(VOND_NRf_TestStop_r(kHandle, kTimeoutMs), VOND_SUCCESS);
    VondSim_Release(kContRx);
    EXPECT_EQ(call.get(), VOND_SUCCESS);
    EXPECT_STREQ(CallAt(0).function, "VOND_NRf_TestStop_r");
    EXPECT_STREQ(CallAt(1).function, kContRx);
}

TEST_F(GateTest, WaitingForNobodyEndsWithTheTime)
{
    VondSim_Hold(kContRx);
    EXPECT_EQ(VondSim_WaitUntilHeld(kContRx, 1), 0);
}

TEST_F(GateTest, ReleaseLetsAllGoEvenWhenTheGateIsHeldAgainAtOnce)
{
    VondSim_Hold(kContRx);
    auto first = StartInThread();
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    VondSim_Release(kContRx);
    VondSim_Hold(kContRx);
    EXPECT_EQ(first.get(), VOND_SUCCESS);
    auto second = StartInThread();
    EXPECT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    VondSim_Release(kContRx);
    EXPECT_EQ(ErrorText(second.get()), "Target: a test is running already");
}

TEST_F(GateTest, ProfileMayChangeWhileACallIsHeld)
{
    VondSim_Hold(kContRx);
    auto call = StartInThread();
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    EXPECT_EQ(VondSim_SetProfile("unplugged"), 0);
    VondSim_Release(kContRx);
    EXPECT_EQ(ErrorText(call.get()), "Connection: no target is connected");
}

TEST_F(GateTest, ResetOpensTheGates)
{
    VondSim_Hold(kContRx);
    auto call = StartInThread();
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    VondSim_Reset();
    EXPECT_EQ(call.get(), VOND_SUCCESS);
}

TEST_F(GateTest, UnknownFunctionIsReportedAndHoldsNothing)
{
    ::testing::internal::CaptureStderr();
    VondSim_Hold("VOND_Dance_r");
    EXPECT_EQ(VondSim_WaitUntilHeld("VOND_Dance_r", kLongMs), 0);
    VondSim_Release(nullptr);
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("VOND_Dance_r"), std::string::npos);
}

}  // namespace
