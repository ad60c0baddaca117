// While one lives, nothing interrupts its thread: no signal handler runs and no cancellation ends it.
// Signals of other threads' faults wait; those of a fault of this thread (SIGSEGV and its kin) don't.
//
//   CQuietThread quiet;
//   if (write(file, text, size) < 0)
//       quiet.ForgetWriteSignals();   // the signal that came with a failed write never arrives
#pragma once

#include <csignal>

class CQuietThread
{
public:
    CQuietThread();
    ~CQuietThread();
    CQuietThread(const CQuietThread &) = delete;
    CQuietThread &operator=(const CQuietThread &) = delete;

    // SIGXFSZ (limit of a file's size) and SIGPIPE (nobody reads the pipe) that wait for this thread,
    // as far as the thread did not block them before.
    void ForgetWriteSignals();

private:
    sigset_t m_before = {};
    int m_cancelBefore = 0;
};
