#include "Runner/bench/CleanStdout.h"

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

CCleanStdout::CCleanStdout()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::fflush(stdout);
    m_file = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (m_file >= 0)
        dup2(STDERR_FILENO, STDOUT_FILENO);
}

CCleanStdout::~CCleanStdout()
{
    if (m_file < 0)
        return;
    std::fflush(stdout);
    dup2(m_file, STDOUT_FILENO);
    close(m_file);
}

bool CCleanStdout::Write(const QByteArray &bytes)
{
    const char *at = bytes.constData();
    const char *const end = at + bytes.size();
    while (m_file >= 0 && at < end) {
        const ssize_t written = write(m_file, at, static_cast<size_t>(end - at));
        if (written < 0 && errno != EINTR)
            return false;
        at += written > 0 ? written : 0;
    }
    return m_file >= 0;
}
