#include "Support/Turns.h"

void CTurns::Begin(int depth)
{
    m_owner = std::this_thread::get_id();
    m_depth = depth;
}

void CTurns::Lock()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (IsOwn()) {
        ++m_depth;
        return;
    }
    const uint64_t own = ++m_last;
    m_line.push_back(own);
    m_changed.wait(lock, [&] {
        return IsFree() && m_places == 0 && !m_isOwnerComing && m_line.front() == own;
    });
    m_line.pop_front();
    Begin(1);
}

bool CTurns::TryLock()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (IsOwn()) {
        ++m_depth;
        return true;
    }
    if (!IsFree() || m_places > 0 || m_isOwnerComing || !m_line.empty())
        return false;
    Begin(1);
    return true;
}

void CTurns::Unlock()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (--m_depth == 0)
        m_changed.notify_all();
}

void CTurns::GiveWay()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_places == 0 || !IsOwn())
        return;
    const int depth = m_depth;
    m_depth = 0;
    m_isOwnerComing = true;
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return IsFree() && m_places == 0; });
    m_isOwnerComing = false;
    Begin(depth);
}

CTurns::CPlace::CPlace(CTurns &turns) : m_turns(turns)
{
    const std::lock_guard<std::mutex> lock(m_turns.m_mutex);
    ++m_turns.m_places;
}

void CTurns::CPlace::Take()
{
    std::unique_lock<std::mutex> lock(m_turns.m_mutex);
    m_turns.m_changed.wait(lock, [&] { return m_turns.IsFree(); });
    m_turns.Begin(1);
    m_isTaken = true;
}

CTurns::CPlace::~CPlace()
{
    const std::lock_guard<std::mutex> lock(m_turns.m_mutex);
    --m_turns.m_places;
    if (m_isTaken)
        --m_turns.m_depth;
    m_turns.m_changed.notify_all();
}
