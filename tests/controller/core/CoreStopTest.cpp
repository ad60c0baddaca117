// Stops of the core.
#include "tests/controller/core/CoreFixture.h"

namespace {

class CoreStopTest : public CCoreTest
{
protected:
    SEachItemOperationResult RunStop(bool isNr)
    {
        m_stopsDone.clear();
        Run([&] { m_core.TestStopStart(isNr); });
        EXPECT_EQ(m_stopsDone.size(), 1);
        return m_stopsDone.value(0);
    }
    static void ExpectOneCall(const char *function, const QByteArray &request)
    {
        ASSERT_EQ(VondSim_CallCount(), 1u);
        const auto calls = JournalOf(function);
        ASSERT_EQ(calls.size(), 1);
        EXPECT_EQ(calls[0].call.handle, kHandle);
        EXPECT_EQ(calls[0].call.timeoutMs, 10000u);
        EXPECT_EQ(calls[0].request, request);
    }
};

TEST_F(CoreStopTest, MultiRatStopSendsKindOne)
{
    const SEachItemOperationResult result = RunStop(false);
    EXPECT_EQ(result.itemName, QString());
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.message.isEmpty());
    ExpectOneCall(kMmStop, QByteArray::fromHex("01000000"));
}

TEST_F(CoreStopTest, NrStopSendsItsOwnCommand)
{
    const SEachItemOperationResult result = RunStop(true);
    EXPECT_EQ(result.itemName, QString());
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.message.isEmpty());
    ExpectOneCall(kNrStop, QByteArray());
}

TEST_F(CoreStopTest, MultiRatStopEndsContinuousRx)
{
    Run([&] { m_core.Test("Continuous RX", PackagedText(GoodValues())); });
    ASSERT_STREQ(VondSim_RunningTest(), "ContRx");
    EXPECT_EQ(RunStop(true).status, 0);
    EXPECT_STREQ(VondSim_RunningTest(), "ContRx");
    EXPECT_EQ(RunStop(false).status, 0);
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(CoreStopTest, StopDoesNotAskForTheGeneration)
{
    Plug("gen0");
    EXPECT_EQ(RunStop(false).status, 0);
    EXPECT_EQ(CalledFunctions(), std::vector<std::string>{kMmStop});
}

TEST_F(CoreStopTest, FailedStopIsThreeWithTheText)
{
    Fault(kMmStop, 4);
    const SEachItemOperationResult result = RunStop(false);
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.message, QString("Target: failure on demand"));
    EXPECT_EQ(m_core.GetErrorMessage(), QString("Target: failure on demand"));
    EXPECT_EQ(CountCalls(kMmStop), 1);
}

TEST_F(CoreStopTest, UnpluggedTargetCannotBeStopped)
{
    Plug("unplugged");
    for (const bool isNr : {false, true}) {
        const SEachItemOperationResult result = RunStop(isNr);
        EXPECT_EQ(result.status, 3);
        EXPECT_EQ(result.message, QString("Connection: no target is connected"));
    }
}

TEST_F(CoreStopTest, TheTwoStopsKeepTheirTextsApart)
{
    Fault(kMmStop, 4);
    RunStop(false);
    EXPECT_TRUE(RunStop(true).message.isEmpty());
    EXPECT_TRUE(m_core.GetErrorMessage().isEmpty());
}

TEST_F(CoreStopTest, OldStopEntryAnswersAtOnceThatItIsTheWrongOne)
{
    m_core.Stop();
    ASSERT_EQ(m_stopsDone.size(), 1);
    EXPECT_EQ(m_stopsDone[0].itemName, QString());
    EXPECT_EQ(m_stopsDone[0].status, 2);
    EXPECT_EQ(m_stopsDone[0].message, QString("Quorlin RF tool should call the new stop function"));
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

}  // namespace
