#include "tests/hands/seeds/SavedRule.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>

namespace {

// The whole of a file as its kind has it: why not, if not.
QString Broken(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return "cannot be read";
    const QByteArray bytes = file.readAll();
    if (path.endsWith(".json"))
        return QJsonDocument::fromJson(bytes).isNull() ? "is no JSON" : "";
    if (path.endsWith(".ini"))
        return bytes.contains('[') && bytes.endsWith('\n') ? "" : "is cut";
    if (path.endsWith(".csv"))
        return bytes.endsWith("\r\n") ? "" : "is cut";
    if (path.endsWith(".png"))
        return bytes.contains("IEND") ? "" : "is cut";
    if (path.endsWith(".txt"))
        return bytes.isEmpty() || bytes.endsWith('\n') ? "" : "is cut";
    return "is a file that nobody has asked for";
}

}  // namespace

CSavedRule::CSavedRule(CDesk &desk) : m_desk(desk), m_files(Look()) {}

// Without the DUT's flash, and without locks.
QMap<QString, CSavedRule::SFile> CSavedRule::Look() const
{
    QMap<QString, SFile> files;
    QDirIterator all(m_desk.Folder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        if (!path.endsWith("/flash") && !path.endsWith(".lock"))
            files[path] = {all.fileInfo().size(), all.fileInfo().lastModified()};
    }
    return files;
}

// The settings of a run, which an export of its results writes beside them. A file of page settings that
// the user has saved under this name must stay.
bool CSavedRule::IsBesideExport(const QString &path) const
{
    QString rows = path;
    rows.replace(".json", ".csv");
    return m_desk.saved.contains(rows) && !m_settings.contains(path);
}

QString CSavedRule::Check(const QString &path) const
{
    const bool isBackup = path.contains("/backups/");
    if (m_files.contains(path) && isBackup)
        return "a backup has changed";
    if (!isBackup && !m_desk.saved.contains(path) && !IsBesideExport(path))
        return "it has changed, and nobody has saved it";
    return Broken(path);
}

QString CSavedRule::After(const SDeed &)
{
    if (!m_desk.IsQuiet())
        return {};
    const QMap<QString, SFile> files = Look();
    QString failure;
    for (auto was = m_files.begin(); was != m_files.end(); ++was) {
        if (!files.contains(was.key()))
            failure = was.key() + " has gone";
    }
    for (auto is = files.begin(); is != files.end(); ++is) {
        const SFile was = m_files.value(is.key());
        if (was.size == is->size && was.changed == is->changed)
            continue;
        const QString why = Check(is.key());
        if (!why.isEmpty())
            failure = QDir(m_desk.Folder()).relativeFilePath(is.key()) + ": " + why;
    }
    for (const QString &saved : qAsConst(m_desk.saved)) {
        if (saved.endsWith(".json") && files.contains(saved))
            m_settings.insert(saved);
    }
    m_files = files;
    m_desk.saved.clear();
    return failure;
}
