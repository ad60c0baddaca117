// The two ways from one thread to another: a job for the pool, a call for the GUI thread.
//
// Qt tells a thread that there is something to do; what is to be done goes through a CJobQueue, so
// that the order between the threads does not hang on Qt's own locks alone.
//
// Any thread. Jobs own what they need: they run after whoever started them may be gone. The end of
// the process, by exit() or with the application object, waits for them before it destroys what
// they use; what is left for the GUI thread then does not run.
//
//   m_future = StartOnPool([document] {
//       const std::string answer = Ask(document);
//       PostToGui([answer] { Show(answer); });
//   });
#pragma once

#include <QFuture>

#include "Support/JobQueue.h"

// On a thread of the global pool.
QFuture<void> StartOnPool(CJobQueue::Job job);

// The same before all jobs that wait, and on a thread more when all are taken: the job begins
// soon, whatever the others wait for.
void StartOnPoolAtOnce(CJobQueue::Job job);

// What the end of the process calls before it waits for the pool, on the thread that ends it; it
// may start jobs, and may be called twice. As long as the process lives.
void CallAtTheEnd(CJobQueue::Job call);

// On the GUI thread, some time later; not at all once the application is going down.
void PostToGui(CJobQueue::Job call);

// All that was started on the pool has ended, and what it wrote can be read.
bool IsPoolIdle();
