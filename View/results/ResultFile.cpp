#include "View/results/ResultFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include "Support/WholeFile.h"
#include "View/results/CsvWriter.h"
#include "View/results/JsonLinesWriter.h"

namespace {

constexpr qint64 kLongestOfExport = 4 * 1024 * 1024;  // bytes; a page's settings take thousands

const QLatin1String kCsvSuffix("csv");
const QStringList kJsonLinesSuffixes{QStringLiteral("jsonl"), QStringLiteral("ndjson")};

QString SuffixOf(const QString &file)
{
    return QFileInfo(file).suffix().toLower();
}

QString SettingsFileOf(const QString &file)
{
    const QFileInfo info(file);
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".json");
}

// Its two words tell an export's file from the user's own.
bool IsOfExport(const QString &settingsFile)
{
    QByteArray bytes;
    if (!ReadWhole(settingsFile, kLongestOfExport, bytes).isEmpty())
        return false;
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    return object.contains(QLatin1String("tool")) && object.contains(QLatin1String("chip"));
}

QString Failure(const QSaveFile &file, const QString &why)
{
    return QStringLiteral("%1 was not written: %2").arg(file.fileName(), why);
}

QString Failure(const QSaveFile &file)
{
    return Failure(file, file.errorString());
}

// Of what is on its way to the disk; the disk may be full only now.
QString WriteAll(QSaveFile &file, const std::function<bool()> &write, const GoesOn &goesOn)
{
    if (!file.open(QIODevice::WriteOnly))
        return Failure(file);
    if (write() && file.flush())
        return {};
    return goesOn() ? Failure(file) : QStringLiteral("The export was ended.");
}

// Both files or none: the second rename fails where the first one did not only if somebody changed
// the folder meanwhile; then the first file goes again.
QString CommitBoth(QSaveFile &settings, QSaveFile &rows)
{
    const bool wasThere = QFileInfo::exists(settings.fileName());
    if (const QString why = CommitWhole(settings); !why.isEmpty())
        return Failure(settings, why);
    const QString why = CommitWhole(rows);
    if (why.isEmpty())
        return {};
    if (!wasThere)
        QFile::remove(settings.fileName());
    return Failure(rows, why);
}

QString WriteCsvFiles(const QString &file, const SResultTable &table, const GoesOn &goesOn)
{
    QSaveFile settings(SettingsFileOf(file));
    QSaveFile rows(file);
    const QByteArray text = QJsonDocument(table.settings).toJson();
    QString failure = WriteAll(
        settings, [&] { return settings.write(text) == text.size(); }, goesOn);
    if (failure.isEmpty())
        failure = WriteAll(
            rows, [&] { return WriteCsv(rows, table, goesOn); }, goesOn);
    return failure.isEmpty() ? CommitBoth(settings, rows) : failure;
}

}  // namespace

QString RefuseResultFile(const QString &file)
{
    const QString suffix = SuffixOf(file);
    if (kJsonLinesSuffixes.contains(suffix))
        return {};
    if (suffix != kCsvSuffix)
        return QStringLiteral("Results go into a .csv or a .jsonl file.");
    const QString settings = SettingsFileOf(file);
    if (QFileInfo::exists(settings) && !IsOfExport(settings))
        return QStringLiteral("%1 is not of an export. Please choose another name.").arg(settings);
    return {};
}

QString WriteResultFile(const QString &file, const SResultTable &table, const GoesOn &goesOn)
{
    const QString refusal = RefuseResultFile(file);
    if (!refusal.isEmpty())
        return refusal;
    if (SuffixOf(file) == kCsvSuffix)
        return WriteCsvFiles(file, table, goesOn);
    QSaveFile rows(file);
    const QString failure = WriteAll(
        rows, [&] { return WriteJsonLines(rows, table, goesOn); }, goesOn);
    if (!failure.isEmpty())
        return failure;
    const QString why = CommitWhole(rows);
    return why.isEmpty() ? why : Failure(rows, why);
}
