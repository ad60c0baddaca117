// The faults in force as a table: told one by one, edited, switched, removed.

#include "tests/simulator/SimulatorFixture.h"
#include "tests/simulator/steer/SteerText.h"

namespace {

constexpr char kTwiceText[] =
    R"({"function":"VOND_NRf_ResetMixRxReportV7_r","kind":"fail","nth":2,"result":7})";

class FaultTableTest : public CSimulatorTest
{
protected:
    static VOND_RESULT Call() { return VOND_NRf_ResetMixRxReportV7_r(kHandle, kTimeoutMs); }

    static uint32_t Add(const char *text)
    {
        EXPECT_EQ(VondSim_AddFault(text), 0) << text;
        return FaultAt(VondSim_FaultCount() - 1).id;
    }
};

TEST_F(FaultTableTest, FaultIsToldWithItsTextAndCounts)
{
    EXPECT_EQ(VondSim_FaultCount(), 0u);
    const uint32_t id = Add(kTwiceText);
    EXPECT_EQ(Call(), 0);
    EXPECT_EQ(FaultAt(0).callCount, 1u);
    EXPECT_EQ(FaultAt(0).firedCount, 0u);
    EXPECT_EQ(FaultAt(0).isOver, 0);
    EXPECT_EQ(Call(), 7);
    const SVondSimFault fault = FaultAt(0);
    EXPECT_STREQ(fault.function, "VOND_NRf_ResetMixRxReportV7_r");
    EXPECT_STREQ(fault.kind, "fail");
    EXPECT_EQ(fault.source, eVondSimFaultAdded);
    EXPECT_EQ(fault.isOn, 1);
    EXPECT_EQ(fault.firedCount, 1u);
    EXPECT_EQ(fault.isOver, 1);
    EXPECT_EQ(FaultText(id), kTwiceText);
    SVondSimFault none;
    EXPECT_EQ(VondSim_GetFault(1, &none), -1);
    EXPECT_EQ(FaultText(id + 1), "");
}

TEST_F(FaultTableTest, FaultThatIsOffDoesNotCount)
{
    const uint32_t id = Add(kTwiceText);
    ASSERT_EQ(VondSim_SwitchFault(id, 0), 0);
    EXPECT_EQ(Call(), 0);
    EXPECT_EQ(Call(), 0);
    EXPECT_EQ(FaultAt(0).isOn, 0);
    EXPECT_EQ(FaultAt(0).callCount, 0u);
    ASSERT_EQ(VondSim_SwitchFault(id, 1), 0);
    EXPECT_EQ(Call(), 0);
    EXPECT_EQ(Call(), 7);
}

TEST_F(FaultTableTest, EditedFaultKeepsItsPlaceAndCountsAnew)
{
    const uint32_t first = Add(kTwiceText);
    Add(R"({"function": "*", "kind": "delay", "ms": 0})");
    Call();
    Call();
    ASSERT_EQ(VondSim_SetFault(first, R"({"function": "*", "kind": "fail", "result": 9})"), 0);
    EXPECT_EQ(FaultAt(0).id, first);
    EXPECT_STREQ(FaultAt(0).function, "*");
    EXPECT_EQ(FaultAt(0).firedCount, 0u);
    EXPECT_EQ(Call(), 9);
}

TEST_F(FaultTableTest, BrokenEditIsRefusedInWordsAndChangesNothing)
{
    const uint32_t id = Add(kTwiceText);
    EXPECT_EQ(VondSim_SetFault(id, R"({"function": "*", "kind": "fall"})"), -1);
    EXPECT_EQ(SimError(), "fault.kind: \"fall\" is an unknown kind");
    EXPECT_EQ(FaultText(id), kTwiceText);
    EXPECT_EQ(VondSim_SetFault(id + 5, R"({"function": "*", "kind": "fail"})"), -1);
    EXPECT_EQ(SimError(), "there is no fault " + std::to_string(id + 5));
    EXPECT_EQ(VondSim_SwitchFault(id + 5, 1), -1);
    EXPECT_EQ(VondSim_RemoveFault(id + 5), -1);
}

TEST_F(FaultTableTest, RemovedFaultIsGoneAndItsIdIsNotGivenAgain)
{
    const uint32_t first = Add(R"({"function": "*", "kind": "fail", "result": 5})");
    const uint32_t second = Add(R"({"function": "*", "kind": "delay", "ms": 0})");
    ASSERT_EQ(VondSim_RemoveFault(first), 0);
    EXPECT_EQ(VondSim_FaultCount(), 1u);
    EXPECT_EQ(FaultAt(0).id, second);
    EXPECT_EQ(Call(), 0);
    EXPECT_GT(Add(kTwiceText), second);
}

TEST_F(FaultTableTest, ProfilesFaultIsToldAsItsOwnUntilItIsEdited)
{
    const std::string profile =
        HandsetWith(R"("faults": [{"function": "*", "kind": "fail", "nth": 3}])");
    ASSERT_EQ(VondSim_SetProfileText(profile.c_str()), 0);
    EXPECT_EQ(FaultAt(0).source, eVondSimFaultOfProfile);
    ASSERT_EQ(VondSim_SetFault(FaultAt(0).id, kTwiceText), 0);
    EXPECT_EQ(FaultAt(0).source, eVondSimFaultAdded);
    ASSERT_EQ(VondSim_SetProfile("handset"), 0);
    EXPECT_EQ(VondSim_FaultCount(), 1u);
}

TEST_F(FaultTableTest, NextCallFailsOnceAndTheFaultIsGone)
{
    VondSim_FailNextCall(0);
    EXPECT_EQ(VondSim_FaultCount(), 1u);
    EXPECT_STRNE(ErrorText(0).c_str(), "(null)");  // a text can't fail, and doesn't count
    EXPECT_EQ(ErrorText(Call()), "Target: failure on demand");
    EXPECT_EQ(VondSim_FaultCount(), 0u);
    EXPECT_EQ(Call(), 0);
    VondSim_FailNextCall(2);
    EXPECT_EQ(Call(), 2);
}

TEST_F(FaultTableTest, FaultOfEveryFunctionCountsTheCallsThatCanShowIt)
{
    Add(R"({"function": "*", "kind": "fail", "result": 8, "nth": 2})");
    EXPECT_EQ(Call(), 0);
    ErrorText(0);
    EXPECT_EQ(Call(), 8);
}

TEST_F(FaultTableTest, FlashFaultHasNoFunction)
{
    Add(R"({"kind": "powerCut", "block": 5})");
    EXPECT_STREQ(FaultAt(0).function, "");
    EXPECT_STREQ(FaultAt(0).kind, "powerCut");
}

}  // namespace
