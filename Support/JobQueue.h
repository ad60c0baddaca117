// Work that one thread hands to another.
//
// Whatever the pushing thread wrote before Push is seen by the job, on whichever thread runs it,
// and whatever a job wrote is seen by whoever finds the queue idle after it. Both hold through one
// std::mutex, so that a thread sanitizer sees them too; it does not see the locks inside Qt. Jobs
// begin in the order in which they were pushed. A job runs without the lock: it may push, and may
// run the next one from inside an event loop of its own.
//
// Any thread. Nothing here waits for a job.
//
//   CJobQueue queue;
//   queue.Push([document = std::move(document)] { Send(document); }, [] { WakeTheOther(); });
//   ... on another thread ...
//   queue.RunNext();
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>

class CJobQueue
{
public:
    using Job = std::function<void()>;

    // announce tells another thread that there is a job; it runs under the lock, so that what it
    // made for that is handed over with the job, and may not use this queue.
    template <typename Announce>
    void Push(Job job, const Announce &announce)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_jobs.push_back(std::move(job));
        announce();
    }
    void Push(Job job);
    // Runs the oldest job, and destroys it. False when there is none.
    bool RunNext();
    // No job waits, none runs.
    bool IsIdle() const;

private:
    mutable std::mutex m_mutex;
    std::deque<Job> m_jobs;
    std::size_t m_running = 0;
};
