#include "Controller/guard/DutLock.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

namespace {

// "quorlin-host (process 4711)"; the file is other programs' to write, so any text may be in it.
QString HolderOf(int file)
{
    char text[200] = {};
    if (::pread(file, text, sizeof text - 1, 0) <= 0)
        return QStringLiteral("another program");
    QString holder;
    for (const QChar character : QString::fromUtf8(text).section(QLatin1Char('\n'), 0, 0)) {
        if (character.isPrint())
            holder += character;
    }
    return holder.isEmpty() ? QStringLiteral("another program") : holder;
}

void WriteHolder(int file)
{
    const QByteArray line = QStringLiteral("%1 (process %2)\n")
                                .arg(QString::fromLocal8Bit(program_invocation_short_name))
                                .arg(::getpid())
                                .toUtf8();
    // Only the words for the second writer hang on this.
    if (::ftruncate(file, 0) != 0 || ::pwrite(file, line.constData(), line.size(), 0) < 0)
        return;
}

}  // namespace

QString CDutLock::FileOf(uint32_t handle)
{
    const QString folder = QString::fromLocal8Bit(qgetenv("XDG_RUNTIME_DIR"));
    return QDir(folder.isEmpty() ? QDir::tempPath() : folder)
        .filePath(QStringLiteral("quorlin-%1.lock").arg(handle));
}

QString CDutLock::Take(uint32_t handle)
{
    Release();
    const QString name = FileOf(handle);
    const QByteArray path = QFile::encodeName(name);
    // No symbolic link, which somebody may have put into the folder for temporary files; and nobody else's to
    // hold or to write, whatever the host lets others do with its files.
    const int file = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0)
        return QStringLiteral("The lock file %1 of the DUT cannot be opened: %2.")
            .arg(name, QString::fromLocal8Bit(std::strerror(errno)));
    if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
        const QString holder = HolderOf(file);
        ::close(file);
        return QStringLiteral("The DUT with handle %1 is being written by %2. Wait until it has "
                              "ended, and try again.")
            .arg(handle)
            .arg(holder);
    }
    WriteHolder(file);
    m_file = file;
    return {};
}

void CDutLock::Release()
{
    if (m_file >= 0)
        ::close(m_file);
    m_file = -1;
}
