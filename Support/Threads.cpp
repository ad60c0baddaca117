// The one source that no thread sanitizer instruments (Support/CMakeLists.txt): it makes the
// objects that Qt passes between threads under locks that a sanitizer cannot see. They hold no data
// of ours.
#include "Support/Threads.h"

#include <cstdlib>

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <QtConcurrent>

namespace {

// Never destroyed: pool threads may still be at work while the process ends.
union SQueue
{
    SQueue() : jobs() {}
    ~SQueue() {}
    CJobQueue jobs;
};

CJobQueue &PoolJobs()
{
    static SQueue queue;
    return queue.jobs;
}

CJobQueue &GuiCalls()
{
    static SQueue queue;
    return queue.jobs;
}

void RunNextPoolJob()
{
    PoolJobs().RunNext();
}

void RunNextGuiCall()
{
    GuiCalls().RunNext();
}

}  // namespace

QFuture<void> StartOnPool(CJobQueue::Job job)
{
    QFuture<void> future;
    PoolJobs().Push(std::move(job), [&future] { future = QtConcurrent::run(&RunNextPoolJob); });
    // The pool waits for its jobs when it is destroyed: by the application object, or by exit(),
    // which may be after Qt's codecs, resources and loggers have gone. What stood before the first
    // job is destroyed behind this.
    static const QPointer<QThreadPool> pool(QThreadPool::globalInstance());
    [[maybe_unused]] static const int once = std::atexit([] {
        if (pool)
            pool->waitForDone();
    });
    return future;
}

void PostToGui(CJobQueue::Job call)
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application)
        return;
    GuiCalls().Push(std::move(call), [application] {
        QMetaObject::invokeMethod(application, &RunNextGuiCall, Qt::QueuedConnection);
    });
}

bool IsPoolIdle()
{
    return PoolJobs().IsIdle();
}
