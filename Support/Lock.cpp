#include "Support/Lock.h"

CLockableObject::~CLockableObject() = default;

PortableCriticalSection::~PortableCriticalSection() = default;

void PortableCriticalSection::Lock()
{
    m_mutex.lock();
}

void PortableCriticalSection::Unlock()
{
    m_mutex.unlock();
}

bool PortableCriticalSection::TryLock()
{
    return m_mutex.try_lock();
}
