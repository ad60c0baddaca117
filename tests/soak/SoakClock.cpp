#include "tests/soak/SoakClock.h"

#include <algorithm>
#include <utility>

#include <QEvent>
#include <QTimer>

namespace {

double Milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) * 1e-6;
}

}  // namespace

bool CSoakApplication::notify(QObject *receiver, QEvent *event)
{
    // Other threads deliver their events here, too.
    if (m_depth > 0 || QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    QElapsedTimer timer;
    timer.start();
    ++m_depth;
    const bool isTaken = QApplication::notify(receiver, event);
    --m_depth;
    const double worked = Milliseconds(timer);
    m_busy += worked;
    m_longest = std::max(m_longest, worked);
    return isTaken;
}

double CSoakApplication::TakeLongest()
{
    return std::exchange(m_longest, 0);
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
    const double busy = CSoakApplication::Instance()->Busy();
    if (m_isAnswered)
        m_cost.gui.Add(busy - m_busyAtTick);
    m_busyAtTick = busy;
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
