#include "tests/campaign/LateAnswer.h"

#include "Simulator/VondSim.h"

namespace {

constexpr int kTurns = 20;
constexpr int kTurnEveryMs = 1;
constexpr int kSecondMs = 1000;
// Between two turns of a loop that turns every millisecond, on a busy machine; a loop that waited for
// the answer would stand for the whole second.
constexpr int kLongestStandMs = 900;

}  // namespace

CLateAnswer::CLateAnswer(const SDoorFault &fault, EDelay delay, std::function<QString()> look)
    : m_function(WaitingFunction(fault)), m_delay(delay), m_look(std::move(look))
{
    m_sinceStart.start();
    m_sinceTurn.start();
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Turn(); });
    m_timer.start(kTurnEveryMs);
}

void CLateAnswer::Turn()
{
    m_longestMs = qMax(m_longestMs, m_sinceTurn.restart());
    if (m_delay == EDelay::Clock || m_isOpen)
        return;
    if (VondSim_WaitUntilHeld(m_function.constData(), 0) == 0 || ++m_turns < kTurns)
        return;
    m_isOpen = true;
    m_seen = m_look();
    VondSim_Release(m_function.constData());
}

QString CLateAnswer::Problem() const
{
    if (m_delay == EDelay::Gate)
        return m_isOpen ? m_seen : QString("no caller stood at the gate while the loop turned");
    if (m_sinceStart.elapsed() < kSecondMs)
        return QString("over after %1 ms").arg(m_sinceStart.elapsed());
    return m_longestMs < kLongestStandMs ? QString()
                                         : QString("the loop stood for %1 ms").arg(m_longestMs);
}
