// quorlin cal write, verify and restore: a guarded write, or the first steps of one.
#include <algorithm>

#include <QFileInfo>

#include "Cli/ExitCodes.h"
#include "Cli/cal/CalDut.h"
#include "Cli/cal/CalRuns.h"
#include "Cli/cal/CalTerminal.h"
#include "Controller/guard/CalFileData.h"

namespace {

constexpr int kShownStatistics = 30;

void SayStatistics(const char *heading, const std::vector<SCalStatistic> &statistics)
{
    if (statistics.empty())
        return;
    Say(QLatin1String(heading));
    for (std::size_t i = 0; i < statistics.size() && i < kShownStatistics; ++i) {
        const SCalStatistic &one = statistics[i];
        QString line =
            QStringLiteral("  %1  %2").arg(QString::fromStdString(one.name), -36).arg(one.count);
        if (one.largest)
            line += QStringLiteral("  at most %1 %2")
                        .arg(*one.largest, 0, 'g', 10)
                        .arg(QString::fromUtf8(one.unit.data(), static_cast<int>(one.unit.size())));
        Say(line.trimmed().isEmpty() ? line : QString(line).remove(QRegExp(QStringLiteral(" +$"))));
    }
    if (statistics.size() > kShownStatistics)
        Say(QStringLiteral("  ... and %1 more").arg(statistics.size() - kShownStatistics));
}

void SaySummary(const CGuardedWrite &write)
{
    for (const QString &note : write.Notes())
        Say(note);
    const QStringList records = write.ChangedRecords();
    if (records.isEmpty())
        return;
    Say(QStringLiteral("%1 records differ, in %2 values.")
            .arg(records.size())
            .arg(write.Changes().Count()));
    SayStatistics("Differences by route:", write.Changes().ByRoute());
    SayStatistics("Differences by field:", write.Changes().ByField());
}

int ExitCodeOf(EGuardedEnd end)
{
    switch (end) {
    case EGuardedEnd::Same:
    case EGuardedEnd::Verified:
        return kExitGood;
    case EGuardedEnd::NotWritten:
        return kExitTrouble;
    default:
        return kExitDifferent;
    }
}

int Trouble(const QString &why)
{
    Complain(why);
    return kExitTrouble;
}

// Asks, keeps, sends, reads back.
int Carry(CGuardedWrite &write, const SCalRequest &request)
{
    const int count = write.ChangedRecords().size();
    if (!request.isYes && !Ask(QStringLiteral("Write %1 records to flash?").arg(count))) {
        Say(QStringLiteral("Nothing was written."));
        return kExitDifferent;
    }
    const QString folder = request.backupFolder.empty()
                               ? DefaultBackupFolder()
                               : QString::fromStdString(request.backupFolder);
    if (const QString why = write.SaveBackup(folder); !why.isEmpty())
        return Trouble(why);
    Say(QStringLiteral("Backup: %1").arg(write.BackupFile()));
    const CUndisturbed undisturbed;
    const SGuardedOutcome outcome = write.Carry();
    const int exitCode = ExitCodeOf(outcome.end);
    if (exitCode == kExitGood)
        Say(outcome.text);
    else
        Complain(outcome.text);
    return exitCode;
}

int WriteOrRestore(const SCalRequest &request, const QString &key, bool isRestore)
{
    if (!request.isYes && !request.isDryRun && !CanAsk())
        return Trouble(
            QStringLiteral("nobody can be asked without a terminal; --yes writes without "
                           "a question"));
    if (const QString why = LookAtDut(request.handle); !why.isEmpty())
        return Trouble(why);
    CGuardedWrite write(GuardedItem(*CalItemByKey(key)), ShowProgress);
    QString why = request.isDryRun ? write.BeginLook() : write.Begin();
    SGuardOptions options = {.mayTakeOtherRoutes = request.mayTakeOtherRoutes,
                             .isRestore = isRestore};
    for (const std::string &entry : request.only)
        options.only.append(QString::fromStdString(entry).trimmed());
    if (why.isEmpty())
        why = write.WantFile(QString::fromStdString(request.file), options);
    if (!why.isEmpty())
        return Trouble(why);
    SaySummary(write);
    if (write.ChangedRecords().isEmpty()) {
        Say(QStringLiteral("Flash is as wanted already. There is nothing to write."));
        return kExitGood;
    }
    return request.isDryRun ? kExitDifferent : Carry(write, request);
}

}  // namespace

int RunCalWrite(const SCalRequest &request)
{
    constexpr bool kIsRestore = false;
    return WriteOrRestore(request, QString::fromStdString(request.item), kIsRestore);
}

int RunCalRestore(const SCalRequest &request)
{
    const QString file = QString::fromStdString(request.file);
    if (QFileInfo(file).isFile() && !IsCalBackup(file))
        return Trouble(QStringLiteral("%1 is no backup. A restore takes the JSON file beside the "
                                      "INI file, or a file goes in by quorlin cal write.")
                           .arg(file));
    SCalBackup backup;
    if (const QString why = ReadCalBackup(file, backup); !why.isEmpty())
        return Trouble(why);
    if (!CalItemByKey(backup.item))
        return Trouble(QStringLiteral("%1 is of the item \"%2\", which this tool does not know.")
                           .arg(file, backup.item));
    constexpr bool kIsRestore = true;
    return WriteOrRestore(request, backup.item, kIsRestore);
}

int RunCalVerify(const SCalRequest &request)
{
    if (const QString why = LookAtDut(request.handle); !why.isEmpty())
        return Trouble(why);
    const ECalItem item = *CalItemByKey(QString::fromStdString(request.item));
    CGuardedWrite write(GuardedItem(item), ShowProgress);
    QString why = write.BeginLook();
    // A look takes any value and any route.
    const SGuardOptions options = {.mayTakeOtherRoutes = true, .isRestore = true};
    if (why.isEmpty())
        why = write.WantFile(QString::fromStdString(request.file), options);
    if (!why.isEmpty())
        return Trouble(why);
    SaySummary(write);
    if (!write.ChangedRecords().isEmpty())
        return kExitDifferent;
    Say(QStringLiteral("Flash is as the file."));
    return kExitGood;
}
