// Jobs of the core run one at a time; a reset waits for none of them.
#include <atomic>
#include <future>
#include <thread>

#include <QThread>

#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr uint32_t kLongMs = 20000;  // ends a broken test; never waited for in a good one

class CoreLockTest : public CCoreTest
{
};

TEST_F(CoreLockTest, StartsComeBackWhileTheTargetIsBusyAndStopsWaitForTheirTurn)
{
    VondSim_Hold(kContRx);
    m_core.Test("Continuous RX", PackagedText(GoodValues()));
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    m_core.TestStopStart(false);
    VondSim_Release(kContRx);
    WaitForPool();
    EXPECT_EQ(m_order, QStringList({"test", "stop"}));
    EXPECT_EQ(CalledFunctions().back(), std::string(kMmStop));
    EXPECT_STREQ(VondSim_RunningTest(), "");
}

TEST_F(CoreLockTest, AnswersAreGivenOnAPoolThread)
{
    QThread *answered = nullptr;
    QObject::connect(
        &m_core, &CNrCore::Signal_TestDone, &m_core, [&] { answered = QThread::currentThread(); },
        Qt::DirectConnection);
    Run([&] { m_core.Test("Continuous RX", PackagedText(GoodValues())); });
    EXPECT_NE(answered, nullptr);
    EXPECT_NE(answered, QThread::currentThread());
}

TEST_F(CoreLockTest, ResetDuringAHeldReadDoesNotWaitAndTheNextJobReadsAnew)
{
    VondSim_Hold(kNrCapability);
    auto status = std::async(std::launch::async, [this] { return m_core.GetSupportStatus(); });
    ASSERT_EQ(VondSim_WaitUntilHeld(kNrCapability, kLongMs), 1);
    m_core.ResetTargetCache();  // comes back while the read is held
    EXPECT_EQ(CountCalls(kNrCapability), 0);
    VondSim_Release(kNrCapability);
    EXPECT_EQ(status.get().status, 1);
    ASSERT_EQ(VondSim_SetProfile("no-nr"), 0);
    m_core.ResetTargetCache();
    EXPECT_EQ(m_core.GetSupportStatus().status, 2);
}

TEST_F(CoreLockTest, ResetDuringARunningTestLeavesItsAnswerWhole)
{
    VondSim_Hold(kContRx);
    m_core.Test("Continuous RX", PackagedText(GoodValues()));
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    m_core.ResetTargetCache();
    VondSim_Release(kContRx);
    WaitForPool();
    ASSERT_EQ(m_testsDone.size(), 1);
    EXPECT_EQ(m_testsDone[0].result.status, 0);
    EXPECT_EQ(m_core.GetAllSupportPage().isEmpty(), false);
    EXPECT_EQ(CountCalls(kNrCapability), 2);
}

TEST_F(CoreLockTest, ManyJobsAndResetsAtOnceAllAnswer)
{
    constexpr int kJobs = 40;
    std::atomic<bool> go{true};
    std::thread resetter([&] {
        while (go)
            m_core.ResetTargetCache();
    });
    for (int i = 0; i < kJobs; ++i) {
        m_core.Test("Continuous RX", PackagedText(GoodValues()));
        m_core.TestStopStart(i % 2 == 0);
        m_core.GetAllSupportPage();
    }
    WaitForPool();
    go = false;
    resetter.join();
    EXPECT_EQ(m_testsDone.size(), kJobs);
    EXPECT_EQ(m_stopsDone.size(), kJobs);
    for (const STestAnswer &answer : m_testsDone)
        // 4: a reset came before its turn.
        EXPECT_TRUE(answer.result.status == 0 || answer.result.status == 3 ||
                    answer.result.status == 4)
            << qPrintable(answer.result.message);
}

}  // namespace
