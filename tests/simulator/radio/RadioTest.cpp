// What runs, what stops it, and what a running test keeps out.

#include <functional>

#include "tests/simulator/SimulatorFixture.h"

namespace {

struct STest
{
    const char *name;
    std::function<VOND_RESULT()> start;
    std::function<VOND_RESULT()> stop;
    std::function<VOND_RESULT()> otherStop;
};

VOND_RESULT StopNr()
{
    return VOND_NRf_TestStop_r(kHandle, kTimeoutMs);
}

VOND_RESULT StopMultiMode()
{
    return VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1);
}

VOND_RESULT StartContRx()
{
    const SMMContRxCmdV7 command = ContRxCommand();
    return VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &command);
}

VOND_RESULT StartSingleTone()
{
    const SMMSingleToneCmdV7 command = SingleToneCommand();
    return VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &command);
}

VOND_RESULT StartPusch()
{
    const SNrPuschTxCmdV7 command = PuschForcedCommand();
    uint32_t status = 0;
    return VOND_NRf_PuschTxV7_r(kHandle, kTimeoutMs, &command, &status);
}

VOND_RESULT StartRsrp()
{
    const SNrRsrpCmdV7 command = RsrpForcedCommand();
    uint32_t status = 0;
    return VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &command, &status);
}

VOND_RESULT MeasureRssi()
{
    const SMMRssiCmdV7 command = RssiCommand();
    SMMRssiCnfV7 answer = {};
    return VOND_MMRf_RssiV7_r(kHandle, kTimeoutMs, &command, &answer);
}

const STest kTests[] = {
    {"ContRx", StartContRx, StopMultiMode, StopNr},
    {"SingleToneTx", StartSingleTone, StopMultiMode, StopNr},
    {"PuschTx", StartPusch, StopNr, StopMultiMode},
    {"Rsrp", StartRsrp, StopNr, StopMultiMode},
};

class RadioTest : public CSimulatorTest, public ::testing::WithParamInterface<STest>
{
};

TEST_P(RadioTest, RunsFromStartToStop)
{
    EXPECT_STREQ(VondSim_RunningTest(), "");
    ASSERT_EQ(GetParam().start(), VOND_SUCCESS);
    EXPECT_STREQ(VondSim_RunningTest(), GetParam().name);
    ASSERT_EQ(GetParam().stop(), VOND_SUCCESS);
    EXPECT_STREQ(VondSim_RunningTest(), "");
    EXPECT_EQ(GetParam().start(), VOND_SUCCESS);
}

TEST_P(RadioTest, KeepsEveryOtherStartOut)
{
    ASSERT_EQ(GetParam().start(), VOND_SUCCESS);
    for (const STest &other : kTests)
        EXPECT_EQ(ErrorText(other.start()), "Target: a test is running already") << other.name;
    EXPECT_EQ(ErrorText(MeasureRssi()), "Target: a test is running already");
    EXPECT_STREQ(VondSim_RunningTest(), GetParam().name);
}

TEST_P(RadioTest, RunsOnThroughTheStopOfTheOtherKind)
{
    ASSERT_EQ(GetParam().start(), VOND_SUCCESS);
    EXPECT_EQ(GetParam().otherStop(), VOND_SUCCESS);
    EXPECT_STREQ(VondSim_RunningTest(), GetParam().name);
}

TEST_P(RadioTest, StopOfAnIdleRadioSucceeds)
{
    EXPECT_EQ(GetParam().stop(), VOND_SUCCESS);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

INSTANTIATE_TEST_SUITE_P(Each, RadioTest, ::testing::ValuesIn(kTests),
                         [](const auto &info) { return std::string(info.param.name); });

class RadioStopTest : public CSimulatorTest
{
};

TEST_F(RadioStopTest, UnknownStopKindIsRefusedAndStopsNothing)
{
    ASSERT_EQ(StartContRx(), VOND_SUCCESS);
    EXPECT_EQ(ErrorText(VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 2)),
              "Target: unknown stop kind");
    EXPECT_STREQ(VondSim_RunningTest(), "ContRx");
}

TEST_F(RadioStopTest, RssiLeavesTheRadioIdle)
{
    EXPECT_EQ(MeasureRssi(), VOND_SUCCESS);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(RadioStopTest, ZeroTimeoutFailsAsTimedOutAndStartsNothing)
{
    const SMMContRxCmdV7 command = ContRxCommand();
    EXPECT_EQ(ErrorText(VOND_MMRf_ContRxV7_r(kHandle, 0, &command)),
              "Connection: the target did not answer in time");
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

}  // namespace
