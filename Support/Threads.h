// The two ways from one thread to another: a job for the pool, a call for the GUI thread.
//
// Qt only wakes the other thread. The work goes through a CJobQueue, whose lock orders the two
// threads in a way that a thread sanitizer can follow.
//
// Any thread. A job owns what it needs, since its starter may be gone when it runs. The end of the
// process, by exit() or with the application object, waits for the jobs before it destroys what
// they use. Calls for the GUI thread that are left then do not run.
//
//   m_future = StartOnPool([document] {
//       const std::string answer = Ask(document);
//       PostToGui([answer] { Show(answer); });
//   });
#pragma once

#include <QFuture>

#include "Support/JobQueue.h"

// Runs the job on a thread of the global pool.
QFuture<void> StartOnPool(CJobQueue::Job job);

// The same, in front of all waiting jobs, and on an extra thread when all are busy. So the job
// begins soon, whatever the others wait for.
void StartOnPoolAtOnce(CJobQueue::Job job);

// Adds a call for the end of the process. It is made before the wait for the pool, on the thread
// that ends the process, maybe twice. It may start jobs. Nothing takes it back.
void CallAtTheEnd(CJobQueue::Job call);

// Makes the call on the GUI thread, some time later. It is dropped when the application ends first.
void PostToGui(CJobQueue::Job call);

// True when all jobs of the pool have ended. What they wrote can be read then.
bool IsPoolIdle();
