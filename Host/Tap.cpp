#include "Host/Tap.h"

#include <cerrno>

#include <dlfcn.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "Host/Options.h"

namespace {

using TakeNote = void (*)(const char *text);

constexpr char kProgram[] = "/proc/self/exe";
constexpr char kPreload[] = "LD_PRELOAD";
constexpr char kTapMode[] = "VOND_TAP";
constexpr char kRecordMode[] = "record";
constexpr char kReplayMode[] = "replay";

TakeNote TakerOfNotes()
{
    static const auto taker = reinterpret_cast<TakeNote>(dlsym(RTLD_DEFAULT, "VondTap_Note"));
    return taker;
}

QString TapFile()
{
    const QString program = QFileInfo(kProgram).symLinkTarget();
    return QFileInfo(QFileInfo(program).path() + "/../lib/libVondTap.so").absoluteFilePath();
}

// Empty: the trace can be opened. The tap opens it later, where nobody could refuse any more.
QString TraceTrouble(const QString &file, QIODevice::OpenMode mode)
{
    QFile trace(file);
    if (trace.open(mode))
        return {};
    return QString("Can't open the trace %1: %2.").arg(file, trace.errorString());
}

QString StartAnew(char **argv)
{
    const QString tap = TapFile();
    if (!QFileInfo(tap).isFile())
        return QString("There is no tap %1.").arg(tap);
    if (tap.contains(' ') || tap.contains(':'))
        return QString("The tap %1 can't be preloaded: its path has a space or a colon.").arg(tap);
    const QString preloaded = qEnvironmentVariable(kPreload);
    if (preloaded.split(':').contains(tap))
        return QString("The tap %1 can't be preloaded.").arg(tap);
    // Behind what is there: the runtime of a sanitizer wants to be first.
    qputenv(kPreload, (preloaded.isEmpty() ? tap : preloaded + ":" + tap).toUtf8());
    execv(kProgram, argv);
    return QString("Can't start this program under the tap: %1.").arg(qt_error_string(errno));
}

}  // namespace

QString RunUnderTap(const SHostOptions &options, char **argv)
{
    const bool isRecord = !options.recordFile.isEmpty();
    const QString file = isRecord ? options.recordFile : options.replayFile;
    if (file.isEmpty())
        return {};
    const QString trouble = TraceTrouble(file, isRecord ? QIODevice::Append : QIODevice::ReadOnly);
    if (!trouble.isEmpty())
        return trouble;
    qputenv(kTapMode, isRecord ? kRecordMode : kReplayMode);
    qputenv("VOND_TAP_FILE", QFile::encodeName(QFileInfo(file).absoluteFilePath()));
    return TakerOfNotes() != nullptr ? QString() : StartAnew(argv);
}

void NoteOfHost(const QString &text)
{
    if (const TakeNote take = TakerOfNotes())
        take(text.toUtf8().constData());
}

ETrace TraceOfSession()
{
    const QString mode = qEnvironmentVariable(kTapMode);
    if (!TakerOfNotes())
        return ETrace::None;
    return mode == QLatin1String(kRecordMode)   ? ETrace::Recorded
           : mode == QLatin1String(kReplayMode) ? ETrace::PlayedBack
                                                : ETrace::None;
}
