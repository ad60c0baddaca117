#include "Runner/run/Progress.h"

#include <algorithm>
#include <cstdio>

#include <unistd.h>

#include "Runner/run/CaseRun.h"

namespace {

std::chrono::milliseconds KnownWait(const SRunCase &runCase)
{
    return runCase.step->wait && runCase.step->wait->time ? *runCase.step->wait->time
                                                          : std::chrono::milliseconds(0);
}

// One line whatever a plan or the DUT says.
QByteArray OneLine(QString text)
{
    for (QChar &c : text)
        if (!c.isPrint() && !c.isSurrogate())
            c = ' ';
    return text.toUtf8();
}

}  // namespace

QString LeftText(std::chrono::milliseconds left)
{
    const long long seconds = (left.count() + 999) / 1000;
    if (seconds < 60)
        return QString("%1 s").arg(seconds);
    const long long minutes = (seconds + 59) / 60;
    if (minutes < 60)
        return QString("%1 min").arg(minutes);
    return QString("%1 h %2 min").arg(minutes / 60).arg(minutes % 60);
}

CProgress::CProgress(std::vector<SRunCase> cases)
    : m_cases(std::move(cases)), m_isTerminal(isatty(STDERR_FILENO) == 1)
{
    m_clock.start();
}

CProgress::~CProgress()
{
    Clear();
}

std::chrono::milliseconds CProgress::Left(std::size_t index) const
{
    std::chrono::milliseconds left{0};
    for (std::size_t i = index; i < m_cases.size(); ++i)
        left += KnownWait(m_cases[i]);
    if (m_ended > 0) {
        const long long own = std::max<long long>(0, m_clock.elapsed() - m_waited.count());
        left += std::chrono::milliseconds(own * static_cast<long long>(m_cases.size() - index) /
                                          static_cast<long long>(m_ended));
    }
    return left;
}

void CProgress::Begin(std::size_t index)
{
    if (!m_isTerminal)
        return;
    QString line = QString("[%1/%2] %3")
                       .arg(index + 1)
                       .arg(m_cases.size())
                       .arg(CaseName(CaseBefore(m_cases[index])));
    if (m_ended > 0 || Left(index).count() > 0)
        line += ", " + LeftText(Left(index)) + " left";
    std::fprintf(stderr, "\r\x1b[K%s", OneLine(line.left(200)).constData());
    std::fflush(stderr);
}

void CProgress::End(const SCaseResult &result)
{
    Clear();
    m_waited += KnownWait(m_cases[std::min(m_ended, m_cases.size() - 1)]);
    ++m_ended;
    QString line = QString("%1  %2").arg(VerdictText(result.verdict), -7).arg(CaseName(result));
    if (!result.reasons.isEmpty())
        line += ": " + result.reasons.join("; ");
    std::printf("%s\n", OneLine(line).constData());
    std::fflush(stdout);
}

void CProgress::Clear()
{
    if (!m_isTerminal)
        return;
    std::fprintf(stderr, "\r\x1b[K");
    std::fflush(stderr);
}
