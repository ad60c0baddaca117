// What one thread writes before it hands a job over is there for the job, and the other way round.
// Plain variables pass between the threads on purpose: built with the thread sanitizer, the tests
// fail as soon as only their timing keeps the threads apart.
#include "Support/JobQueue.h"

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

// As a pool's thread that is told, by a way that orders nothing, that there is something to do.
void RunWhenTold(CJobQueue &queue, const std::atomic<bool> &isTold)
{
    while (!isTold.load(std::memory_order_relaxed))
        std::this_thread::yield();
    queue.RunNext();
}

TEST(JobQueueTest, JobsRunInTheOrderInWhichTheyWerePushed)
{
    CJobQueue queue;
    std::string order;
    for (const char letter : {'a', 'b', 'c'})
        queue.Push([&order, letter] { order += letter; });
    while (queue.RunNext()) {
    }
    EXPECT_EQ(order, "abc");
}

TEST(JobQueueTest, EmptyQueueRunsNothing)
{
    CJobQueue queue;
    EXPECT_FALSE(queue.RunNext());
    EXPECT_TRUE(queue.IsIdle());
}

TEST(JobQueueTest, QueueIsIdleOnlyWhenNoJobWaitsOrRuns)
{
    CJobQueue queue;
    bool wasIdleInside = true;
    queue.Push([&] { wasIdleInside = queue.IsIdle(); });
    EXPECT_FALSE(queue.IsIdle());
    queue.RunNext();
    EXPECT_FALSE(wasIdleInside);
    EXPECT_TRUE(queue.IsIdle());
}

TEST(JobQueueTest, JobMayPushAndRunTheNext)
{
    CJobQueue queue;
    std::string order;
    queue.Push([&] {
        queue.Push([&] { order += "inner "; });
        EXPECT_TRUE(queue.RunNext());
        order += "outer";
    });
    EXPECT_TRUE(queue.RunNext());
    EXPECT_EQ(order, "inner outer");
}

TEST(JobQueueTest, JobThatThrowsHasEnded)
{
    CJobQueue queue;
    queue.Push([] { throw 1; });
    EXPECT_THROW(queue.RunNext(), int);
    EXPECT_TRUE(queue.IsIdle());
}

TEST(JobQueueTest, JobIsDestroyedByTheThreadThatRanIt)
{
    CJobQueue queue;
    auto document = std::make_shared<std::string>("document");
    const std::weak_ptr<std::string> alive = document;
    queue.Push([document = std::move(document)] {});
    queue.RunNext();
    EXPECT_TRUE(alive.expired());
}

TEST(JobQueueTest, WhatWasWrittenBeforeThePushIsThereForTheJob)
{
    for (int round = 0; round < 200; ++round) {
        CJobQueue queue;
        std::atomic<bool> isTold{false};
        std::string document;
        std::string seen;
        std::thread pool([&] { RunWhenTold(queue, isTold); });
        document.assign(100, static_cast<char>('a' + round % 26));
        queue.Push([&] { seen = document; });
        isTold.store(true, std::memory_order_relaxed);
        pool.join();
        EXPECT_EQ(seen, document);
    }
}

TEST(JobQueueTest, WhatAJobWroteIsThereForWhoeverFindsTheQueueIdle)
{
    for (int round = 0; round < 200; ++round) {
        CJobQueue queue;
        std::atomic<bool> isTold{true};
        std::string result;
        queue.Push([&result] { result.assign(100, 'r'); });
        std::thread pool([&] { RunWhenTold(queue, isTold); });
        while (!queue.IsIdle())
            std::this_thread::yield();
        EXPECT_EQ(result, std::string(100, 'r'));
        pool.join();
    }
}

// A request there and its answer back, as between a page and the core.
TEST(JobQueueTest, AnswersComeBackThroughASecondQueue)
{
    constexpr int kRequests = 500;
    CJobQueue toPool;
    CJobQueue toGui;
    std::vector<std::string> answers;
    std::atomic<int> told{0};
    std::atomic<bool> isOver{false};
    std::vector<std::thread> pool;
    for (int i = 0; i < 3; ++i) {
        pool.emplace_back([&] {
            while (!isOver.load(std::memory_order_relaxed)) {
                if (!toPool.RunNext())
                    std::this_thread::yield();
            }
        });
    }
    for (int i = 0; i < kRequests; ++i) {
        toPool.Push([&, document = std::to_string(i)] {
            toGui.Push([&answers, answer = document + " done"] { answers.push_back(answer); });
            told.fetch_add(1, std::memory_order_relaxed);
        });
        toGui.RunNext();
    }
    while (told.load(std::memory_order_relaxed) < kRequests || !toGui.IsIdle())
        toGui.RunNext();
    isOver.store(true, std::memory_order_relaxed);
    for (std::thread &thread : pool)
        thread.join();
    EXPECT_EQ(answers.size(), std::size_t(kRequests));
}

}  // namespace
