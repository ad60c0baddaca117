// Keeps writers of one DUT apart, those of other programs, too: one guarded write at a time.
//
// It is an flock on quorlin-HANDLE.lock in XDG_RUNTIME_DIR, or in the folder for temporary files where
// there is none. The file tells who holds it (program and process id), and stays when the lock is gone;
// the system frees the lock with the process, however that ends. One thread.
//
//   CDutLock lock;
//   const QString why = lock.Take(TargetHandle());   // empty: taken
//   // "The DUT with handle 1 is being written by quorlin (process 4711). ..."
#pragma once

#include <cstdint>

#include <QString>

class CDutLock
{
public:
    CDutLock() = default;
    CDutLock(const CDutLock &) = delete;
    CDutLock &operator=(const CDutLock &) = delete;
    ~CDutLock() { Release(); }

    // Never waits. Empty when the lock is taken; else a sentence with who holds it, or why the file
    // cannot be opened.
    QString Take(uint32_t handle);
    void Release();

    static QString FileOf(uint32_t handle);

private:
    int m_file = -1;
};
