#include "tests/common/WaitUntil.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

bool WaitUntil(const std::function<bool()> &condition, int deadlineMs)
{
    bool isLate = false;
    QTimer deadline;
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, [&isLate] { isLate = true; });
    deadline.start(deadlineMs);
    while (!condition()) {
        if (isLate)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        // Objects that were given to deleteLater, as an event loop would.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

bool EventLoopTurns()
{
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&turns] { ++turns; });
    timer.start(10);
    return WaitUntil([&turns] { return turns >= 20; });
}
