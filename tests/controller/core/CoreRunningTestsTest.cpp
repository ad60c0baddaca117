// Tests that run on: the core knows them, stops them under the handle of their start, and lets no
// start follow when it has stopped everything.
#include "Support/Threads.h"
#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr uint32_t kLongMs = 20000;  // ends a broken test; never waited for in a good one
constexpr char kHeldRead[] = "VOND_NRf_ResetMixRxReportV7_r";

struct SCalled
{
    std::string function;
    uint32_t handle;
    friend bool operator==(const SCalled &a, const SCalled &b)
    {
        return a.function == b.function && a.handle == b.handle;
    }
};

std::ostream &operator<<(std::ostream &out, const SCalled &call)
{
    return out << call.function << '@' << call.handle;
}

class CoreRunningTestsTest : public CCoreTest
{
protected:
    void SetUp() override
    {
        CCoreTest::SetUp();
        m_core.GetAllSupportPage();  // the capability is read
        VondSim_ClearJournal();
        QObject::connect(
            &m_core, &CNrCore::Signal_TestsRun, &m_core,
            [this](bool isAny) { m_runs.append(isAny); }, Qt::DirectConnection);
    }
    void Start(uint32_t handle = kHandle)
    {
        CNrCore::SetTargetHandle(handle);
        Run([&] { m_core.Test("Continuous RX", PackagedText(GoodValues())); });
    }
    void RfOff()
    {
        StartOnPoolAtOnce(
            [this, place = m_core.BeginRfOff()] { m_rfOff = m_core.FinishRfOff(place); });
    }
    // The target is held by a job that is nobody's test.
    void HoldTarget()
    {
        VondSim_Hold(kHeldRead);
        StartOnPool([this] { m_core.ResetMixRxCounter(); });
        ASSERT_EQ(VondSim_WaitUntilHeld(kHeldRead, kLongMs), 1);
    }
    static std::vector<SCalled> Calls()
    {
        std::vector<SCalled> calls;
        for (const SJournalCall &entry : Journal()) {
            const std::string function = entry.call.function;
            if (function == kContRx || function == kMmStop || function == kNrStop ||
                function == kHeldRead)
                calls.push_back({function, entry.call.handle});
        }
        return calls;
    }

    SEachItemOperationResult m_rfOff;
    QVector<bool> m_runs;
};

using Calls_ = std::vector<SCalled>;

TEST_F(CoreRunningTestsTest, StopUsesTheHandleOfTheStart)
{
    Start(7);
    CNrCore::SetTargetHandle(9);
    Run([&] { m_core.TestStopStart(false); });
    EXPECT_EQ(Calls(), (Calls_{{kContRx, 7}, {kMmStop, 7}}));
    Run([&] { m_core.TestStopStart(false); });
    EXPECT_EQ(Calls().back(), (SCalled{kMmStop, 9}));  // nothing runs: the current one
}

TEST_F(CoreRunningTestsTest, StopThatFailedIsTriedAgainUnderTheSameHandle)
{
    Start(7);
    CNrCore::SetTargetHandle(9);
    Fault(kMmStop, 4);
    Run([&] { m_core.TestStopStart(false); });
    EXPECT_TRUE(m_core.HasRunningTests());
    VondSim_ClearFaults();
    Run([&] { m_core.TestStopStart(false); });
    EXPECT_EQ(Calls(), (Calls_{{kContRx, 7}, {kMmStop, 7}, {kMmStop, 7}}));
    EXPECT_FALSE(m_core.HasRunningTests());
}

TEST_F(CoreRunningTestsTest, RfOffSendsBothStopsUnderTheCurrentHandleAndThatOfEachTest)
{
    Start(7);
    CNrCore::SetTargetHandle(9);
    Run([&] { RfOff(); });
    EXPECT_EQ(Calls(),
              (Calls_{{kContRx, 7}, {kNrStop, 9}, {kMmStop, 9}, {kNrStop, 7}, {kMmStop, 7}}));
    EXPECT_EQ(JournalOf(kMmStop)[0].request, QByteArray::fromHex("01000000"));
    EXPECT_EQ(m_rfOff.status, 0);
    EXPECT_EQ(m_runs, (QVector<bool>{true, false}));
}

TEST_F(CoreRunningTestsTest, RfOffWithoutATestSendsBothStopsOnce)
{
    CNrCore::SetTargetHandle(9);
    Run([&] { RfOff(); });
    EXPECT_EQ(Calls(), (Calls_{{kNrStop, 9}, {kMmStop, 9}}));
    EXPECT_TRUE(m_runs.isEmpty());
}

TEST_F(CoreRunningTestsTest, RfOffGoesOnBehindAFailedStopAndTellsIt)
{
    Start(7);
    Fault(kNrStop, 4);
    Run([&] { RfOff(); });
    EXPECT_EQ(m_rfOff.status, 3);
    EXPECT_EQ(m_rfOff.message, QString("Target: failure on demand"));
    EXPECT_STREQ(VondSim_RunningTest(), "");
    EXPECT_FALSE(m_core.HasRunningTests());
}

TEST_F(CoreRunningTestsTest, RfOffIsNextBehindTheCallUnderWayAndStartsBehindItAreCalledOff)
{
    HoldTarget();
    m_core.Test("Continuous RX", PackagedText(GoodValues()));
    m_core.TestStopStart(false);
    RfOff();
    VondSim_Release(kHeldRead);
    WaitForPool();
    const Calls_ calls = Calls();
    ASSERT_EQ(calls.size(), 3u);
    EXPECT_EQ(calls[0].function, kHeldRead);
    EXPECT_EQ(calls[1].function, kNrStop);
    EXPECT_EQ(calls[2].function, kMmStop);
    ASSERT_EQ(m_testsDone.size(), 1);
    EXPECT_EQ(m_testsDone[0].result.status, 4);
    EXPECT_TRUE(m_testsDone[0].result.message.isEmpty());
    // The page's own stop waited too: what it was to stop is stopped.
    ASSERT_EQ(m_stopsDone.size(), 1);
    EXPECT_EQ(m_stopsDone[0].status, 0);
}

TEST_F(CoreRunningTestsTest, StartAskedForBehindRfOffRuns)
{
    HoldTarget();
    RfOff();
    m_core.Test("Continuous RX", PackagedText(GoodValues()));
    VondSim_Release(kHeldRead);
    WaitForPool();
    EXPECT_EQ(m_testsDone.value(0).result.status, 0);
    EXPECT_STREQ(VondSim_RunningTest(), "ContRx");
}

// Two threads of the pool at most may be taken: it is on a thread of its own.
TEST_F(CoreRunningTestsTest, RfOffDoesNotWaitForAThreadOfThePool)
{
    HoldTarget();
    for (int i = 0; i < 50; ++i)
        StartOnPool([this] { m_core.WaitForTurn(); });
    RfOff();
    VondSim_Release(kHeldRead);
    WaitForPool();
    EXPECT_EQ(Calls().size(), 3u);
    EXPECT_EQ(m_rfOff.status, 0);
}

// It may run: a start that timed out, and one whose status was noise.
TEST_F(CoreRunningTestsTest, FailedStartThatReachedTheTargetCountsUntilAStop)
{
    Fault(kContRx, 7);
    Start();
    EXPECT_EQ(m_testsDone.value(0).result.status, 3);
    EXPECT_TRUE(m_core.HasRunningTests());
    Run([&] { RfOff(); });
    EXPECT_FALSE(m_core.HasRunningTests());
    EXPECT_EQ(m_runs, (QVector<bool>{true, false}));
}

TEST_F(CoreRunningTestsTest, StartThatDidNotReachTheTargetDoesNotCount)
{
    Plug("gen0");
    Start();
    EXPECT_EQ(m_testsDone.value(0).result.status, 2);
    EXPECT_FALSE(m_core.HasRunningTests());
}

TEST_F(CoreRunningTestsTest, ResetStopsOnceUnderTheHandleOfTheStartBeforeAnythingIsReadAnew)
{
    Start(7);
    CNrCore::SetTargetHandle(9);
    VondSim_ClearJournal();
    VondSim_Hold(kMmStop);
    m_core.ResetTargetCache();  // does not wait
    m_core.ResetTargetCache();
    StartOnPool([this] { m_core.GetAllSupportPage(); });
    ASSERT_EQ(VondSim_WaitUntilHeld(kMmStop, kLongMs), 1);
    EXPECT_EQ(VondSim_CallCount(), 0u);
    VondSim_Release(kMmStop);
    WaitForPool();
    EXPECT_EQ(Calls(), (Calls_{{kMmStop, 7}}));
    EXPECT_EQ(CalledFunctions().front(), std::string(kMmStop));
    EXPECT_GT(VondSim_CallCount(), 1u);  // the caches were dropped
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

// With a stop that fails, a stop of its own of each reset would be seen.
TEST_F(CoreRunningTestsTest, ResetsThatWaitTogetherSendOneStop)
{
    Start(7);
    Fault(kMmStop, 4);
    HoldTarget();
    m_core.ResetTargetCache();
    m_core.ResetTargetCache();
    m_core.StopRunningTests();
    VondSim_Release(kHeldRead);
    WaitForPool();
    EXPECT_EQ(CountCalls(kMmStop), 1);
    EXPECT_TRUE(m_core.HasRunningTests());
}

TEST_F(CoreRunningTestsTest, ResetBehindAFailedStopStopsAgain)
{
    Start(7);
    Fault(kMmStop, 4);
    Run([&] { m_core.ResetTargetCache(); });
    EXPECT_TRUE(m_core.HasRunningTests());
    VondSim_ClearFaults();
    Run([&] { m_core.ResetTargetCache(); });
    EXPECT_EQ(CountCalls(kMmStop), 2);
    EXPECT_FALSE(m_core.HasRunningTests());
}

TEST_F(CoreRunningTestsTest, StopOfAllTestsKeepsWhatWasReadOfTheTarget)
{
    Start();
    Run([&] { m_core.ResetTargetCache(); });
    m_core.GetAllSupportPage();
    for (int round = 0; round < 2; ++round) {
        Start();
        Run([&] { m_core.StopRunningTests(); });
        EXPECT_FALSE(m_core.HasRunningTests());
        VondSim_ClearJournal();
        m_core.GetAllSupportPage();
        EXPECT_EQ(VondSim_CallCount(), 0u) << round;
    }
}

TEST_F(CoreRunningTestsTest, ResetWhileAStartIsAtTheTargetStopsItBehindItsAnswer)
{
    VondSim_Hold(kContRx);
    m_core.Test("Continuous RX", PackagedText(GoodValues()));
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    m_core.Test("Continuous RX", PackagedText(GoodValues()));  // does not reach it any more
    m_core.ResetTargetCache();
    VondSim_Release(kContRx);
    WaitForPool();
    EXPECT_EQ(Calls(), (Calls_{{kContRx, kHandle}, {kMmStop, kHandle}}));
    EXPECT_EQ(m_testsDone.value(0).result.status, 0);
    EXPECT_EQ(m_testsDone.value(1).result.status, 4);
}

TEST_F(CoreRunningTestsTest, PageStopThatWaitsDuringAResetIsNotSentASecondTime)
{
    Start();
    HoldTarget();
    m_core.TestStopStart(false);
    m_core.ResetTargetCache();
    VondSim_Release(kHeldRead);
    WaitForPool();
    EXPECT_EQ(CountCalls(kMmStop), 1);
    EXPECT_EQ(m_stopsDone.value(0).status, 0);
}

TEST_F(CoreRunningTestsTest, UnknownPageAnswersTwoAndReachesNoTarget)
{
    Run([&] { m_core.Test("No such page", PackagedText(GoodValues())); });
    ASSERT_EQ(m_testsDone.size(), 1);
    EXPECT_EQ(m_testsDone[0].result.itemName, QString("No such page"));
    EXPECT_EQ(m_testsDone[0].result.status, 2);
    EXPECT_TRUE(m_testsDone[0].result.message.isEmpty());
    EXPECT_EQ(VondSim_CallCount(), 0u);
}

}  // namespace
