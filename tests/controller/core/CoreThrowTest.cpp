// A look at the calibration items that throws, as when no memory is left: the core goes on.
#include <cstdlib>
#include <functional>
#include <future>
#include <new>
#include <thread>

#include "Model/ModelText.h"
#include "Operations/calibration/MultiRatPathLossV7.h"
#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr std::chrono::seconds kLong{20};  // ends a broken test; never waited for in a good one

// Allocations of one size fail while it is set. It is that of an object that nothing else is as
// large as, so that one allocation is told from all others.
std::atomic<std::size_t> s_failingSize{0};
std::atomic<std::size_t> s_countedSize{0};
std::atomic<int> s_counted{0};

}  // namespace

void *operator new(std::size_t size)
{
    if (size == s_failingSize.load())
        throw std::bad_alloc();
    if (size == s_countedSize.load())
        ++s_counted;
    if (void *memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

class CoreThrowTest : public CCoreTest
{
protected:
    // Did the look throw? In a thread of its own, since a lock that it kept would not hold up its
    // own thread. That thread lives until then() has returned: the next one may get its id.
    bool LookThrows(const std::function<void()> &then = [] {})
    {
        bool hasThrown = false;
        s_failingSize = sizeof(CMultiRatPathLossV7);
        std::thread([&] {
            try {
                m_core.GetAptCalibrationData("{}");
            } catch (const std::bad_alloc &) {
                hasThrown = true;
            }
            s_failingSize = 0;
            then();
        }).join();
        return hasThrown;
    }
};

TEST_F(CoreThrowTest, LookThatThrowsGivesTheTargetBack)
{
    m_core.ResetTargetCache();
    const auto ask = [this] {
        auto status = std::async(std::launch::async, [this] { return m_core.GetSupportStatus(); });
        if (status.wait_for(kLong) == std::future_status::ready) {
            EXPECT_EQ(status.get().status, 1);
            return;
        }
        std::fputs("the core's lock was kept\n", stderr);
        std::_Exit(1);  // a thread that waits for ever cannot be ended
    };
    EXPECT_TRUE(LookThrows(ask));
}

// The items of the last DUT are made anew first, without memory for them.
TEST_F(CoreThrowTest, GuardedWriteThatThrowsIsRefusedInWords)
{
    m_core.ResetTargetCache();
    s_failingSize = sizeof(CMultiRatPathLossV7);
    const SGuardedPlan plan = m_core.PlanGuardedWrite(ECalItem::PathLoss);
    s_failingSize = 0;
    EXPECT_EQ(plan.refusal, "std::bad_alloc Nothing was sent to the target.");
    EXPECT_FALSE(plan.work);
    EXPECT_EQ(m_core.PlanGuardedWrite(ECalItem::PathLoss).refusal.indexOf("bad_alloc"), -1);
}

TEST_F(CoreThrowTest, CompareThatThrowsIsToldInWords)
{
    const SComparedSide memory = {.kind = ECalSide::Memory};
    m_core.ResetTargetCache();
    s_failingSize = sizeof(CMultiRatPathLossV7);
    const SCalCompared compared = m_core.CompareCal(ECalItem::PathLoss, memory, memory);
    const SCalSecondRead read = m_core.ReadSecondImage(ECalItem::PathLoss, memory);
    s_failingSize = 0;
    EXPECT_EQ(compared.result.message, "std::bad_alloc");
    EXPECT_NE(compared.result.status, 0);
    EXPECT_EQ(read.result.message, "std::bad_alloc");
    EXPECT_NE(read.result.status, 0);
    EXPECT_EQ(m_core.CompareCal(ECalItem::PathLoss, memory, memory).result.status, 0);
    EXPECT_EQ(m_core.ReadSecondImage(ECalItem::PathLoss, memory).result.status, 0);
}

TEST_F(CoreThrowTest, LookThatThrowsLeavesTheItemsOfTheLastDutStale)
{
    m_core.ResetTargetCache();
    ASSERT_TRUE(LookThrows());
    s_counted = 0;
    s_countedSize = sizeof(CMultiRatPathLossV7);
    m_core.GetAptCalibrationData("{}");
    constexpr int kMade = 2;  // the item, and the one that its history keeps the base in
    EXPECT_EQ(s_counted.load(), kMade) << "items of an earlier connection were kept";
    m_core.GetAptCalibrationData("{}");
    EXPECT_EQ(s_counted.load(), kMade);
    s_countedSize = 0;
}

}  // namespace
