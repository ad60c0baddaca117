#include "Controller/guard/BackupFiles.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>

#include <fcntl.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "Support/CalIniFile.h"
#include "Support/PrivateFolder.h"
#include "Support/WholeFile.h"

namespace {

constexpr int kMostOfOneSecond = 1000;

// Without what a file's name had better not have.
QString NameText(QString text)
{
    return text.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9._-]")), QStringLiteral("_"));
}

// Gives a file its name, unless one has it; false then, with the reason in errno.
bool TakeName(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) ==
        0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // A file system that does not know the flag.
    if (QFileInfo::exists(to)) {
        errno = EEXIST;
        return false;
    }
    return std::rename(source.constData(), target.constData()) == 0;
}

QString CannotSave(const QString &folder, const QString &why)
{
    return QStringLiteral("No backup could be saved in %1: %2. Nothing was written.")
        .arg(folder, why);
}

}  // namespace

QString SaveBackup(const QString &file, const SCalBackup &backup)
{
    const QString why = SaveWhole(file, CalBackupText(backup));
    return why.isEmpty() ? QString() : QStringLiteral("%1 cannot be written: %2.").arg(file, why);
}

QString SaveBackupFiles(const QString &folder, const SCalBackup &backup,
                        const std::function<void(CCalIniFile &)> &ini, QString &file)
{
    if (!MakePrivateFolder(folder))
        return CannotSave(folder, QStringLiteral("the folder cannot be made"));
    const QDir place(QDir(folder).absolutePath());
    QTemporaryDir beside(place.filePath(QStringLiteral(".new-backup-XXXXXX")));
    if (!beside.isValid())
        return CannotSave(folder, beside.errorString());
    const QString newIni = beside.filePath(QStringLiteral("backup.ini"));
    const QString newJson = beside.filePath(QStringLiteral("backup.json"));
    try {
        CCalIniFile target(newIni.toStdWString().c_str());
        ini(target);
    } catch (const std::exception &failure) {
        return CannotSave(folder, QString::fromUtf8(failure.what()));
    }
    if (const QString why = SaveBackup(newJson, backup); !why.isEmpty())
        return CannotSave(folder, why);

    const QString stem =
        QStringLiteral("%1-%2-handle%3-%4")
            .arg(NameText(backup.item), NameText(backup.chip))
            .arg(backup.handle)
            .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss")));
    for (int i = 1; i <= kMostOfOneSecond; ++i) {
        const QString name =
            place.filePath(i == 1 ? stem : QStringLiteral("%1-%2").arg(stem).arg(i));
        const QString json = name + QStringLiteral(".json");
        if (QFileInfo::exists(name + QStringLiteral(".ini")))
            continue;
        if (!TakeName(newJson, json)) {
            if (errno == EEXIST)
                continue;
            return CannotSave(folder, QString::fromLocal8Bit(std::strerror(errno)));
        }
        if (QFileInfo::exists(newIni) && !TakeName(newIni, name + QStringLiteral(".ini"))) {
            const QString why = QString::fromLocal8Bit(std::strerror(errno));
            QFile::remove(json);  // both or none
            return CannotSave(folder, why);
        }
        file = json;
        return {};
    }
    return CannotSave(folder, QStringLiteral("all names of this moment are taken"));
}
