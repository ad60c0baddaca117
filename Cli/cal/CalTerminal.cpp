#include "Cli/cal/CalTerminal.h"

#include <cerrno>
#include <cstdio>

#include <unistd.h>

#include <QFile>

namespace {

bool s_isProgressShown = false;
int s_outputError = 0;

QByteArray Printable(QString text)
{
    for (QChar &character : text) {
        if (!character.isPrint() && character != QLatin1Char('\n') && !character.isSurrogate())
            character = QLatin1Char('?');
    }
    return text.toUtf8();
}

void NoteOutputError()
{
    if (s_outputError == 0 && errno != EPIPE)
        s_outputError = errno;
}

const char *StepName(EGuardStep step)
{
    switch (step) {
    case EGuardStep::Read:
        return "Reading flash";
    case EGuardStep::Send:
        return "Writing";
    default:
        return "Reading back";
    }
}

}  // namespace

void Say(const QString &text)
{
    SayBytes(Printable(text) + '\n');
}

void SayBytes(const QByteArray &bytes)
{
    EndProgress();
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size)
        NoteOutputError();
}

int OutputError()
{
    if (std::fflush(stdout) != 0)
        NoteOutputError();
    return s_outputError;
}

void Complain(const QString &text)
{
    EndProgress();
    std::fflush(stdout);
    std::fputs(("quorlin: " + Printable(text) + '\n').constData(), stderr);
}

bool CanAsk()
{
    return isatty(STDIN_FILENO) != 0;
}

bool Ask(const QString &question)
{
    EndProgress();
    std::fflush(stdout);
    std::fputs((Printable(question) + " [y/N] ").constData(), stderr);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return false;
    const QByteArray answer = input.readLine().trimmed().toLower();
    return answer == "y" || answer == "yes";
}

void ShowProgress(EGuardStep step, int routesDone, int routesInAll)
{
    if (isatty(STDERR_FILENO) == 0)
        return;
    std::fprintf(stderr, "\r\x1b[K%s: %d of %d routes", StepName(step), routesDone, routesInAll);
    std::fflush(stderr);
    s_isProgressShown = true;
}

void EndProgress()
{
    if (s_isProgressShown)
        std::fputs("\r\x1b[K", stderr);
    s_isProgressShown = false;
}

CUndisturbed::CUndisturbed()
{
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        m_before[i] = std::signal(kSignals[i], SIG_IGN);
}

CUndisturbed::~CUndisturbed()
{
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        std::signal(kSignals[i], m_before[i]);
}
