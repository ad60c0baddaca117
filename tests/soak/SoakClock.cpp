#include "tests/soak/SoakClock.h"

#include <algorithm>
#include <utility>

#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

#include <QEvent>
#include <QTimer>

namespace {

double Milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) * 1e-6;
}

// Of this thread, ms; asked of the system itself, past a library that makes clocks run faster.
double ProcessorTime()
{
    timespec time = {};
    syscall(SYS_clock_gettime, CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

}  // namespace

bool CSoakApplication::notify(QObject *receiver, QEvent *event)
{
    // Other threads deliver their events here, too.
    if (m_depth > 0 || QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    QElapsedTimer timer;
    timer.start();
    const double workedBefore = ProcessorTime();
    ++m_depth;
    const bool isTaken = QApplication::notify(receiver, event);
    --m_depth;
    const double worked = ProcessorTime() - workedBefore;
    m_worked += worked;
    m_longest.passed = std::max(m_longest.passed, Milliseconds(timer));
    m_longest.worked = std::max(m_longest.worked, worked);
    return isTaken;
}

SStretch CSoakApplication::TakeLongest()
{
    return std::exchange(m_longest, {});
}

void SSpread::Add(double value)
{
    ++count;
    sum += value;
    worst = std::max(worst, value);
}

bool CSoakClock::Watch(QObject *page)
{
    auto *timer = page->findChild<QTimer *>(QStringLiteral("reportTimer"));
    if (!timer)
        return false;
    // Ahead of the page's own slot.
    timer->installEventFilter(this);
    return connect(page, SIGNAL(Signal_UpdateStatus(QString)), this, SLOT(OnStatus(QString)));
}

void CSoakClock::Disturb()
{
    m_isAsked = false;
    m_isAnswered = false;
}

SFetchCost CSoakClock::TakeCost()
{
    return std::exchange(m_cost, {});
}

bool CSoakClock::eventFilter(QObject *receiver, QEvent *event)
{
    if (event->type() == QEvent::Timer)
        OnTick();
    return QObject::eventFilter(receiver, event);
}

void CSoakClock::OnTick()
{
    if (m_isAsked) {
        ++m_skipped;
        return;
    }
    const double worked = CSoakApplication::Instance()->Worked();
    if (m_isAnswered)
        m_cost.gui.Add(worked - m_workedAtTick);
    m_workedAtTick = worked;
    m_isAsked = true;
    m_isAnswered = false;
    m_sinceTick.start();
}

void CSoakClock::OnStatus(QString text)
{
    if (text.startsWith(QLatin1String("RsrpRsrq RX get report failed")))
        m_failure = text;
    if (text != QLatin1String("RsrpRsrq RX get report done."))
        return;
    ++m_answers;
    ++m_answersInTable;
    if (!m_isAsked)
        return;
    m_cost.toRows.Add(Milliseconds(m_sinceTick));
    m_isAsked = false;
    m_isAnswered = true;
}
