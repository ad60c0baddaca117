#include "Support/Lock.h"

#include <thread>

#include <gtest/gtest.h>

namespace {

bool TryLockInAnotherThread(CLockableObject &lock)
{
    bool taken = false;
    std::thread([&] {
        taken = lock.TryLock();
        if (taken)
            lock.Unlock();
    }).join();
    return taken;
}

}  // namespace

TEST(PortableCriticalSection, TryLockTakesAFreeLock)
{
    PortableCriticalSection lock;
    ASSERT_TRUE(lock.TryLock());
    EXPECT_FALSE(TryLockInAnotherThread(lock));
    lock.Unlock();
    EXPECT_TRUE(TryLockInAnotherThread(lock));
}

TEST(PortableCriticalSection, HoldingThreadMayTakeItAgain)
{
    PortableCriticalSection lock;
    lock.Lock();
    lock.Lock();
    EXPECT_TRUE(lock.TryLock());
    lock.Unlock();
    lock.Unlock();
    EXPECT_FALSE(TryLockInAnotherThread(lock));
    lock.Unlock();
    EXPECT_TRUE(TryLockInAnotherThread(lock));
}

TEST(PortableCriticalSection, LockKeepsOtherThreadsOut)
{
    PortableCriticalSection section;
    CLockableObject &lock = section;
    int count = 0;
    auto add = [&] {
        for (int i = 0; i < 10000; ++i) {
            lock.Lock();
            ++count;
            lock.Unlock();
        }
    };
    std::thread first(add);
    std::thread second(add);
    first.join();
    second.join();
    EXPECT_EQ(count, 20000);
}
