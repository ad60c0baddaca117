// exit() while a job is at work on the pool: what the process had before its first job outlives the
// job. Qt's own statics are of that kind, and a job that looks for a codec without them dies.
//
// No test framework: the end of the process is the test.
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <future>

#include <QCoreApplication>
#include <QThreadPool>

#include "Support/Threads.h"

namespace {

std::atomic<bool> s_hasEnded{false};

struct SOlderThanTheJobs
{
    ~SOlderThanTheJobs()
    {
        if (!s_hasEnded)
            std::_Exit(1);
    }
};

}  // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    // A pool that the host used first is destroyed last, and waits no sooner.
    QThreadPool::globalInstance()->start([] {});
    static const SOlderThanTheJobs older;
    StartOnPool([] {
        // Long after exit() has begun, unless that waits.
        std::promise<void>().get_future().wait_for(std::chrono::milliseconds(300));
        s_hasEnded = true;
    });
    std::exit(0);
}
