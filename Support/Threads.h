// The two ways from one thread to another: a job for the pool, a call for the GUI thread.
//
// Qt tells a thread that there is something to do; what is to be done goes through a CJobQueue, so
// that the order between the threads does not hang on Qt's own locks alone.
//
// Any thread. Jobs own what they need: they run after whoever started them may be gone. exit()
// waits for them before it destroys what they use; what is left for the GUI thread then does not
// run.
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

// On the GUI thread, some time later; not at all once the application is going down.
void PostToGui(CJobQueue::Job call);

// All that was started on the pool has ended, and what it wrote can be read.
bool IsPoolIdle();
