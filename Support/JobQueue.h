// Work that one thread hands to another.
//
// A job sees all that the pushing thread wrote before Push. Whoever finds the queue idle sees all
// that the jobs wrote. One std::mutex provides both. A thread sanitizer can follow it; it cannot
// follow the locks inside Qt. Jobs begin in the order in which they were pushed. A job runs without
// the lock: it may push, and may run the next one from inside an event loop of its own.
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

    // announce tells another thread that there is a job. It runs under the lock, so that thread
    // sees its writes, too. It must not use this queue.
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
