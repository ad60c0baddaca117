#include "Runner/bench/EndSignals.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> kEndSignals = {SIGINT, SIGTERM, SIGHUP};
constexpr char kLastWords[] =
    "quorlin: ended by a second signal before RF was off: RF MAY BE ON.\n";

// What the handler touches.
volatile std::sig_atomic_t s_first = 0;
int s_pipe[2] = {-1, -1};
std::array<struct sigaction, kEndSignals.size()> s_before;

// Async-signal-safe calls alone.
void OnEndSignal(int number)
{
    if (s_first != 0) {
        const ssize_t ignored = write(STDERR_FILENO, kLastWords, sizeof kLastWords - 1);
        static_cast<void>(ignored);
        _exit(128 + number);
    }
    s_first = number;
    const char byte = 1;
    const ssize_t ignored = write(s_pipe[1], &byte, 1);
    static_cast<void>(ignored);
}

}  // namespace

CEndSignals::CEndSignals()
{
    s_first = 0;
    if (pipe2(s_pipe, O_CLOEXEC | O_NONBLOCK) == 0) {
        m_notifier = std::make_unique<QSocketNotifier>(s_pipe[0], QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
            m_notifier->setEnabled(false);
            emit Signal_Came();
        });
    }
    struct sigaction action = {};
    action.sa_handler = &OnEndSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kEndSignals.size(); ++i)
        sigaction(kEndSignals[i], &action, &s_before[i]);
}

CEndSignals::~CEndSignals()
{
    for (std::size_t i = 0; i < kEndSignals.size(); ++i)
        sigaction(kEndSignals[i], &s_before[i], nullptr);
    m_notifier.reset();
    for (int &end : s_pipe) {
        if (end >= 0)
            close(end);
        end = -1;
    }
}

int CEndSignals::Number() const
{
    return s_first;
}

QString CEndSignals::Name() const
{
    switch (Number()) {
    case SIGINT:
        return QStringLiteral("SIGINT (Ctrl-C)");
    case SIGTERM:
        return QStringLiteral("SIGTERM");
    default:
        return QStringLiteral("SIGHUP");
    }
}
