#include "Support/IniMerge.h"

#include <cerrno>
#include <cstdio>

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>

#include "Support/WholeFile.h"

namespace {

constexpr int kWaitMs = 1000;  // for the lock of another, and until it is that of a dead one

QVariantMap ValuesOf(const QSettings &settings)
{
    QVariantMap values;
    for (const QString &key : settings.allKeys())
        values.insert(key, settings.value(key));
    return values;
}

bool PutNew(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           file.write(bytes) == bytes.size();
}

// Writes old and new values at this place. Empty, or why not.
QString Write(const QString &path, const QByteArray &old, const QVariantMap &changed,
              QVariantMap &all)
{
    if (!old.isEmpty() && !PutNew(path, old))
        return QStringLiteral("no room beside it");
    QSettings settings(path, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError ||
        (settings.allKeys().isEmpty() && !old.trimmed().isEmpty()))
        return QStringLiteral("it is no INI file");
    for (auto value = changed.begin(); value != changed.end(); ++value)
        settings.setValue(value.key(), value.value());
    settings.sync();
    all = ValuesOf(settings);
    return settings.status() == QSettings::NoError ? QString()
                                                   : QStringLiteral("no room beside it");
}

// What is cut lacks its last key, or the end of that key's line.
bool IsWhole(const QString &path, const QVariantMap &all)
{
    QByteArray bytes;
    return ReadWhole(path, kLongestSettings, bytes).isEmpty() && bytes.endsWith('\n') &&
           ReadIni(path).keys() == all.keys();
}

}  // namespace

QVariantMap ReadIni(const QString &file)
{
    return ValuesOf(QSettings(file, QSettings::IniFormat));
}

QString MergeIntoIni(const QString &file, const QVariantMap &changed, QVariantMap &all)
{
    const QFileInfo info(file);
    const QString target = info.isSymLink() && info.exists() ? info.canonicalFilePath() : file;
    QLockFile lock(target + QLatin1String(".lock"));
    lock.setStaleLockTime(kWaitMs);
    if (!lock.tryLock(2 * kWaitMs))
        return QStringLiteral("it cannot be locked");
    QByteArray old;
    if (info.exists()) {
        if (QString why = ReadWhole(target, kLongestSettings, old); !why.isEmpty())
            return why;
    }
    QTemporaryDir beside(target + QLatin1String(".new-XXXXXX"));
    if (!beside.isValid())
        return beside.errorString();
    // QSettings knows a file by its path, so what was written is read under another one.
    const QString written = beside.filePath(QStringLiteral("written.ini"));
    const QString checked = beside.filePath(QStringLiteral("checked.ini"));
    QVariantMap values;
    if (QString why = Write(written, old, changed, values); !why.isEmpty())
        return why;
    if (!QFile::rename(written, checked) || !IsWhole(checked, values))
        return QStringLiteral("no room beside it");
    if (info.exists())
        QFile::setPermissions(checked, info.permissions());
    if (std::rename(QFile::encodeName(checked).constData(),
                    QFile::encodeName(target).constData()) != 0)
        return qt_error_string(errno);
    all = values;
    return {};
}
