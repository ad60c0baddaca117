// Continuous RX and the two stops, as the target sees them.
#include "Operations/tests/MultiRatContRxV7.h"
#include "Operations/tests/TestStop.h"
#include "tests/operations/TargetFixture.h"

namespace {

using TestOperationTest = CTargetTest;

SMMContRxCmdV7 Command()
{
    SMMContRxCmdV7 command = {};
    command.routeKind = 1;
    command.dlBandwidth = 5000;
    command.band = 1;
    command.rxRoute = 1;
    command.singlePath = 1;
    command.gain.single.mainRfGain = 1923;
    command.gain.single.divRfGain = 1923;
    command.dlFrequency = 2140000;
    return command;
}

TEST_F(TestOperationTest, ContRxSendsItsCommandOnce)
{
    const SMMContRxCmdV7 command = Command();
    CMultiRatContRxV7 contRx;
    EXPECT_EQ(contRx.RunContRx(&command), 0u);
    EXPECT_STREQ(VondSim_RunningTest(), "ContRx");
    ExpectOneCall(kContRx, BytesOf(command));
    EXPECT_EQ(VondSim_CallCount(), 1u);
}

TEST_F(TestOperationTest, RefusedContRxIsNotRepeatedAndKeepsTheTargetsWords)
{
    SMMContRxCmdV7 command = Command();
    command.band = 2;
    CMultiRatContRxV7 contRx;
    EXPECT_EQ(contRx.RunContRx(&command), 3u);
    EXPECT_EQ(contRx.GetErrorMessage(), QString("Target: unknown band"));
    EXPECT_EQ(CountCalls(kContRx), 1);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(TestOperationTest, TimeOutOfTheTargetIsALibraryFailure)
{
    Fault(kContRx, 2);
    const SMMContRxCmdV7 command = Command();
    CMultiRatContRxV7 contRx;
    EXPECT_EQ(contRx.RunContRx(&command), 3u);
    EXPECT_EQ(contRx.GetErrorMessage(), QString("Connection: the target did not answer in time"));
}

TEST_F(TestOperationTest, MultiRatStopSendsItsKind)
{
    const SMMContRxCmdV7 command = Command();
    CMultiRatContRxV7().RunContRx(&command);
    CMultiRatTestStopV7 stop;
    EXPECT_EQ(stop.Stop(1), 0u);
    EXPECT_STREQ(VondSim_RunningTest(), "");
    ExpectOneCall(kMmStop, QByteArray::fromHex("01000000"));
}

TEST_F(TestOperationTest, NrStopSendsNothingButItself)
{
    CNrTestStop stop;
    EXPECT_EQ(stop.Stop(), 0u);
    ExpectOneCall(kNrStop, QByteArray());
}

TEST_F(TestOperationTest, NrStopLeavesContinuousRxRunning)
{
    const SMMContRxCmdV7 command = Command();
    CMultiRatContRxV7().RunContRx(&command);
    EXPECT_EQ(CNrTestStop().Stop(), 0u);
    EXPECT_STREQ(VondSim_RunningTest(), "ContRx");
}

TEST_F(TestOperationTest, FailedStopsKeepTheirTexts)
{
    Fault(kMmStop, 1);
    Fault(kNrStop, 4);
    CMultiRatTestStopV7 multiRat;
    CNrTestStop nr;
    EXPECT_EQ(multiRat.Stop(1), 3u);
    EXPECT_EQ(nr.Stop(), 3u);
    EXPECT_EQ(multiRat.GetErrorMessage(), QString("Connection: no target is connected"));
    EXPECT_EQ(nr.GetErrorMessage(), QString("Target: failure on demand"));
    EXPECT_EQ(CountCalls(kMmStop), 1);
    EXPECT_EQ(CountCalls(kNrStop), 1);
}

}  // namespace
