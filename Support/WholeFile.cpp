#include "Support/WholeFile.h"

#include <cerrno>

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

// Finds errors that show only when the disk takes the bytes. Empty, or what it was.
QString Sync(const QSaveFile &file)
{
    int result = 0;
    do {
        result = fdatasync(file.handle());
    } while (result != 0 && errno == EINTR);
    const bool isSynced = result == 0 || errno == EINVAL;  // a place that knows no sync
    return isSynced ? QString() : qt_error_string(errno);
}

}  // namespace

QString SaveWhole(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return file.errorString();
    return CommitWhole(file);
}

QString CommitWhole(QSaveFile &file)
{
    if (!file.flush())
        return file.errorString();
    if (const QString why = Sync(file); !why.isEmpty())
        return why;
    return file.commit() ? QString() : file.errorString();
}

QString ReadWhole(const QString &path, qint64 mostBytes, QByteArray &bytes)
{
    bytes.clear();
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return QStringLiteral("it is no file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    if (file.size() > mostBytes)
        return QStringLiteral("it has %1 MB, and such a file at most %2")
            .arg(file.size() >> 20)
            .arg(mostBytes >> 20);
    bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}
