#include "Support/JobQueue.h"

namespace {

// A job that throws has ended too.
class CRunning
{
public:
    CRunning(std::mutex &mutex, std::size_t &running) : m_mutex(mutex), m_running(running) {}
    ~CRunning()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        --m_running;
    }
    CRunning(const CRunning &) = delete;
    CRunning &operator=(const CRunning &) = delete;

private:
    std::mutex &m_mutex;
    std::size_t &m_running;
};

}  // namespace

void CJobQueue::Push(Job job)
{
    Push(std::move(job), [] {});
}

bool CJobQueue::RunNext()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_jobs.empty())
        return false;
    ++m_running;
    const CRunning running(m_mutex, m_running);
    const Job job = std::move(m_jobs.front());
    m_jobs.pop_front();
    lock.unlock();
    job();
    return true;
}

bool CJobQueue::IsIdle() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_jobs.empty() && m_running == 0;
}
