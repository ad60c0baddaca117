// A write of calibration data that cannot go wrong unseen: the differences are known before, what was
// in flash is kept, only records that differ are sent, and they are read back.
//
// One object is one write. Its steps come in the order of the example; each blocks on the target or on
// files, so they run on a pool thread or in a command line program, one at a time. The plug-in runs each
// under the core's target lock. Nothing is shown: what to say comes back as texts. Nothing throws.
//
// Between Begin and the end of the object no other guarded write of the same DUT begins, in whatever
// program (DutLock.h). Flash is compared block for block, as bytes; the comparison for people has it
// field by field. Records that differ in bytes alone, which no field shows, are sent, too.
//
// A text that comes back from a step is a refusal: a sentence or more for the user. Nothing was written
// then. After a refused WantFile or WantImage another one may come.
//
//   CGuardedWrite write({"apt", FindCalItem(ECalItem::Apt).make(), limits});
//   QString why = write.Begin();
//   if (why.isEmpty())
//       why = write.WantFile("station3.ini", {});
//   ... show write.Changes(), write.ChangedRecords(), write.Notes(); ask
//   why = write.SaveBackup(DefaultBackupFolder());   // then write.BackupFile()
//   const SGuardedOutcome outcome = write.Carry();
//   ... outcome.text
#pragma once

#include <functional>
#include <memory>

#include <QString>
#include <QStringList>

#include "Controller/guard/CalBackup.h"
#include "Controller/guard/GuardedOutcome.h"
#include "Operations/calibration/CalBlockImage.h"
#include "Operations/calibration/CalComparison.h"
#include "Operations/calibration/CalItemByL1Operation.h"

class CDutLock;

enum class EGuardStep
{
    Read,
    Send,
    ReadBack
};

struct SGuardedItem
{
    QString key = {};                                // "apt", "rx-path-loss": in names of backups
    std::unique_ptr<ICalItemByL1Operation> scratch;  // of this write alone, without a valid record
    std::shared_ptr<ICalPageLimits> limits = {};     // what the page's editors can show; null: any
};

struct SGuardOptions
{
    // Records to write: route numbers, "7", or "T2:7" where two kinds have the number. Empty: all.
    QStringList only = {};
    bool mayTakeOtherRoutes = false;  // of a file whose Route or Comp Route names another route
    bool isRestore = false;           // values as they were, whatever the editors' limits
};

class CGuardedWrite
{
public:
    // On the thread of the step.
    using Progress = std::function<void(EGuardStep step, int routesDone, int routesInAll)>;

    explicit CGuardedWrite(SGuardedItem item, Progress progress = {});
    CGuardedWrite(const CGuardedWrite &) = delete;
    CGuardedWrite &operator=(const CGuardedWrite &) = delete;
    ~CGuardedWrite();

    // Takes the DUT's lock and reads flash.
    QString Begin();
    // For a look alone: the same without the lock. Carry must not follow.
    QString BeginLook();
    // What is to be in flash. A file is an INI file, loaded onto a copy of what flash holds, or a backup
    // (JSON). An image is what a page's memory holds. Records that neither has stay as they are.
    QString WantFile(const QString &file, const SGuardOptions &options);
    QString WantImage(const SCalImage &image, const SGuardOptions &options);

    // Flash on the left, wanted on the right, of the records that are to be sent. Behind a good
    // WantFile or WantImage.
    const CCalComparison &Changes() const { return *m_changes; }
    // The records that are to be sent. Empty: flash is as wanted.
    QStringList ChangedRecords() const;
    // What the user should know before, a sentence each: records that could not be read, so that the
    // backup lacks them; records that differ in bytes alone.
    const QStringList &Notes() const { return m_notes; }

    // Keeps all of flash as Begin has read it, as an INI file and a JSON file of one name. The folder is
    // made where it is not there; no file is ever overwritten.
    QString SaveBackup(const QString &folder);
    // The JSON file, absolute; empty before SaveBackup.
    const QString &BackupFile() const { return m_backupFile; }

    // Sends, reads back, compares. Once, behind a good WantFile or WantImage.
    SGuardedOutcome Carry();

    // Flash as Begin has read it, and what it could not read, a sentence each.
    const SCalBlockImage &Flash() const { return m_flash; }
    QStringList Unread() const;
    // The same as a file of a name that the user has chosen: JSON replaces what is there, an INI file
    // keeps its other sections.
    QString SaveJson(const QString &file);
    QString SaveIni(const QString &file);

private:
    void Follow(EGuardStep step);
    QString ReadFlash(EGuardStep step, SCalBlockImage &flash);
    QString Want(SCalBlockImage wanted, const SGuardOptions &options);
    void MakeNotes();
    QString MakeBackup(SCalBackup &backup);
    SCalBlockImage WantedWithBystanders(const SCalBlockImage &after) const;

    SGuardedItem m_item;
    Progress m_progress;
    std::unique_ptr<CDutLock> m_lock;
    SCalBlockImage m_flash;
    SCalBlockImage m_wanted;  // the records that are to be sent
    std::unique_ptr<CCalComparison> m_changes;
    QVector<SCalUnread> m_unread;  // by Begin
    QStringList m_notes;
    QString m_backupFile;
};

// "quorlin-rf/backups" below XDG_DATA_HOME, in which it is made when it is needed.
QString DefaultBackupFolder();
