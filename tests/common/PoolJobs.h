// The end of what was started on the pool, for tests of code that starts it in this program. (The
// plug-in's own jobs are its own; what they leave comes through the event loop.)
//
//   core.TestStopStart(true);
//   EndPoolJobs();
//   QCOMPARE(done.size(), 1);
#pragma once

#include <QThread>
#include <QThreadPool>

#include "Support/Threads.h"

// What the jobs wrote can be read afterwards; the pool's own wait alone would not show that to a
// thread sanitizer.
inline bool EndPoolJobs(int deadlineMs = -1)
{
    if (!QThreadPool::globalInstance()->waitForDone(deadlineMs))
        return false;
    while (!IsPoolIdle())
        QThread::yieldCurrentThread();
    return true;
}
