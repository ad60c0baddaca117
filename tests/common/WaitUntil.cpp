#include "tests/common/WaitUntil.h"

#include <algorithm>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

int ClockSpeed()
{
    static const int speed = std::max(1, qEnvironmentVariableIntValue("QUORLIN_CLOCK_SPEED"));
    return speed;
}

bool WaitUntil(const std::function<bool()> &condition, int deadlineMs)
{
    bool isLate = false;
    QTimer deadline;
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, [&isLate] { isLate = true; });
    deadline.start(deadlineMs * ClockSpeed());
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
