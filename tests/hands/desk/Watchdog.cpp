#include "tests/hands/desk/Watchdog.h"

#include "Simulator/VondSim.h"

namespace {

constexpr unsigned long kPatienceMs = 20000;

}  // namespace

CWatchdog::CWatchdog()
{
    start();
}

CWatchdog::~CWatchdog()
{
    {
        const QMutexLocker lock(&m_mutex);
        m_isEnding = true;
        m_changed.wakeAll();
    }
    wait();
}

void CWatchdog::Guard(const QByteArray &function)
{
    const QMutexLocker lock(&m_mutex);
    m_function = function;
    m_isFed = true;
    m_changed.wakeAll();
}

void CWatchdog::Feed()
{
    const QMutexLocker lock(&m_mutex);
    m_isFed = true;
}

bool CWatchdog::HasBitten()
{
    const QMutexLocker lock(&m_mutex);
    return m_hasBitten;
}

void CWatchdog::run()
{
    const QMutexLocker lock(&m_mutex);
    while (!m_isEnding) {
        m_isFed = false;
        if (m_changed.wait(&m_mutex, kPatienceMs) || m_isFed || m_function.isEmpty())
            continue;
        m_hasBitten = true;
        VondSim_Release(m_function.constData());
        m_function.clear();
    }
}
