// The one source that no thread sanitizer instruments (Support/CMakeLists.txt): it makes the
// objects that Qt passes between threads under locks that a sanitizer cannot see. They hold no data
// of ours.
#include "Support/Threads.h"

#include <cstdlib>
#include <limits>
#include <mutex>
#include <vector>

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <QtConcurrent>

namespace {

// Never destroyed: pool threads may still be at work while the process ends.
union UQueue
{
    UQueue() : jobs() {}
    ~UQueue() {}
    CJobQueue jobs;
};

CJobQueue &PoolJobs()
{
    static UQueue queue;
    return queue.jobs;
}

CJobQueue &GuiCalls()
{
    static UQueue queue;
    return queue.jobs;
}

CJobQueue &UrgentJobs()
{
    static UQueue queue;
    return queue.jobs;
}

// Never destroyed, as the queues.
struct SLastCalls
{
    std::mutex mutex;
    std::vector<CJobQueue::Job> calls;
};

SLastCalls &LastCalls()
{
    static auto *const calls = new SLastCalls;
    return *calls;
}

void MakeLastCalls()
{
    std::vector<CJobQueue::Job> calls;
    {
        const std::lock_guard<std::mutex> lock(LastCalls().mutex);
        calls = LastCalls().calls;
    }
    for (const CJobQueue::Job &call : calls)
        call();
}

// The pool waits for its jobs when it is destroyed: by the application object, or by exit(). That
// may be too late for Qt's codecs, resources and loggers. So the wait is registered with the first
// job: objects that were there before it are destroyed after the wait.
void WaitAtTheEnd()
{
    static const QPointer<QThreadPool> pool(QThreadPool::globalInstance());
    [[maybe_unused]] static const int once = std::atexit([] {
        if (!pool)
            return;
        MakeLastCalls();
        pool->waitForDone();
    });
}

void RunNextPoolJob()
{
    PoolJobs().RunNext();
}

void RunNextUrgentJob()
{
    UrgentJobs().RunNext();
    QThreadPool::globalInstance()->reserveThread();
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
    WaitAtTheEnd();
    return future;
}

void StartOnPoolAtOnce(CJobQueue::Job job)
{
    QThreadPool *const pool = QThreadPool::globalInstance();
    if (!pool)
        return;  // destroyed with the application object
    UrgentJobs().Push(std::move(job), [pool] {
        pool->start(&RunNextUrgentJob, std::numeric_limits<int>::max());
        pool->releaseThread();  // so that the job runs at once: one thread more meanwhile
    });
    WaitAtTheEnd();
}

void CallAtTheEnd(CJobQueue::Job call)
{
    // The application object calls these before it waits for the pool.
    [[maybe_unused]] static const bool once = [] {
        qAddPostRoutine(&MakeLastCalls);
        return true;
    }();
    const std::lock_guard<std::mutex> lock(LastCalls().mutex);
    LastCalls().calls.push_back(std::move(call));
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
    return PoolJobs().IsIdle() && UrgentJobs().IsIdle();
}
