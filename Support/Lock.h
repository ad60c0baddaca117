// The lock pair: an interface for whatever can be locked, and the process-local critical section.
//
// A thread that holds a PortableCriticalSection may take it again; it is free once every Lock and
// every successful TryLock has had its Unlock, in the same thread. Unlock without a lock held is an
// error of the caller. Nothing here waits with a time limit.
//
//     PortableCriticalSection guard;
//     if (guard.TryLock()) {
//         ...
//         guard.Unlock();
//     }
#pragma once

#include <mutex>

class CLockableObject
{
public:
    CLockableObject() = default;
    CLockableObject(const CLockableObject &) = delete;
    CLockableObject &operator=(const CLockableObject &) = delete;
    virtual ~CLockableObject();

    virtual void Lock() = 0;  // waits until the lock is free
    virtual void Unlock() = 0;
    virtual bool TryLock() = 0;  // true: the lock was taken; false: another thread holds it
};

class PortableCriticalSection : public CLockableObject
{
public:
    PortableCriticalSection() = default;
    ~PortableCriticalSection() override;

    void Lock() override;
    void Unlock() override;
    bool TryLock() override;

private:
    std::recursive_mutex m_mutex;
};

// Holds a lock for the life of a scope.
class CLockSentry
{
public:
    explicit CLockSentry(CLockableObject &lockable) : m_lockable(lockable) { m_lockable.Lock(); }
    ~CLockSentry() { m_lockable.Unlock(); }
    CLockSentry(const CLockSentry &) = delete;
    CLockSentry &operator=(const CLockSentry &) = delete;

private:
    CLockableObject &m_lockable;
};
