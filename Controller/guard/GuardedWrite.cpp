#include "Controller/guard/GuardedWrite.h"

#include <algorithm>
#include <exception>
#include <utility>

#include <QDateTime>
#include <QStandardPaths>

#include "Controller/calibration/CalRemarkText.h"
#include "Controller/guard/BackupFiles.h"
#include "Controller/guard/CalFileData.h"
#include "Controller/guard/DutLock.h"
#include "Controller/guard/GuardChecks.h"
#include "Controller/guard/GuardText.h"
#include "Operations/calibration/CalBlockDifferences.h"
#include "Operations/link/TargetLink.h"
#include "Support/CalIniFile.h"

namespace {

QVector<SCalUnread> UnreadOf(const SCalMoveRemarks &remarks)
{
    QVector<SCalUnread> unread;
    SCalMoveRemarks leftOut;
    leftOut.leftOut = remarks.leftOut;
    for (const SCalRemark &row : CalRemarksOf(leftOut).rows)
        unread.append({row.what, row.why});
    return unread;
}

}  // namespace

CGuardedWrite::CGuardedWrite(SGuardedItem item, Progress progress)
    : m_item(std::move(item)), m_progress(std::move(progress)),
      m_changes(std::make_unique<CCalComparison>(SCalImage(), SCalImage()))
{
    m_item.scratch->KeepBlocks();
}

CGuardedWrite::~CGuardedWrite() = default;

// Tells the progress of the item's moves as that of a step.
void CGuardedWrite::Follow(EGuardStep step)
{
    if (m_progress)
        m_item.scratch->SetProgress([this, step](int, int routesDone, int routesInAll) {
            m_progress(step, routesDone, routesInAll);
        });
}

QString CGuardedWrite::ReadFlash(EGuardStep step, SCalBlockImage &flash)
{
    Follow(step);
    const uint32_t code = m_item.scratch->UploadFromFlash();
    m_item.scratch->SetProgress({});
    if (code != kCalSuccess && code != kCalNotRun)
        return MoveText(code, m_item.scratch->GetErrorMessage());
    flash = m_item.scratch->Blocks();
    return {};
}

QString CGuardedWrite::Begin()
{
    auto lock = std::make_unique<CDutLock>();
    if (const QString why = lock->Take(TargetHandle()); !why.isEmpty())
        return why;
    QString why = BeginLook();
    if (why.isEmpty())
        m_lock = std::move(lock);
    return why;
}

QString CGuardedWrite::BeginLook()
{
    if (const QString why = ReadFlash(EGuardStep::Read, m_flash); !why.isEmpty())
        return QStringLiteral("Flash could not be read: %1").arg(why);
    m_unread = UnreadOf(m_item.scratch->Remarks());
    return {};
}

QString CGuardedWrite::WantFile(const QString &file, const SGuardOptions &options)
{
    SCalFileData data;
    m_item.scratch->SetPageLimits(options.isRestore ? nullptr : m_item.limits.get());
    QString why = ReadCalFile(file, m_item.key, *m_item.scratch, m_flash, data);
    m_item.scratch->SetPageLimits(nullptr);
    if (why.isEmpty())
        why = RefuseNoNumbers(data.remarks);
    if (why.isEmpty() && !options.mayTakeOtherRoutes)
        why = RefuseOtherRoutes(data.remarks, options.only);
    return why.isEmpty() ? Want(std::move(data.image), options) : why;
}

QString CGuardedWrite::WantImage(const SCalImage &image, const SGuardOptions &options)
{
    SCalBlockImage wanted;
    for (const SCalImageRecord &record : image.records)
        wanted.records.push_back({record.kind, record.place,
                                  BlocksOver(record, m_flash.Find(record.kind, record.place))});
    return Want(std::move(wanted), options);
}

QString CGuardedWrite::Want(SCalBlockImage wanted, const SGuardOptions &options)
{
    if (const QString why = KeepChosen(options.only, wanted); !why.isEmpty())
        return why;
    if (const QString why = RefuseLongRecords(wanted); !why.isEmpty())
        return why;
    std::erase_if(wanted.records, [this](const SCalBlockRecord &record) {
        const SCalBlockRecord *there = m_flash.Find(record.kind, record.place);
        return there && there->blocks == record.blocks;
    });
    const SCalImage flashImage = JoinedImage(SameRecords(m_flash, wanted));
    const SCalImage wantedImage = JoinedImage(wanted);
    if (!options.isRestore) {
        const QString why = RefuseOddValues(flashImage, wantedImage, m_item.limits.get());
        if (!why.isEmpty())
            return why;
    }
    m_wanted = std::move(wanted);
    m_changes = std::make_unique<CCalComparison>(flashImage, wantedImage);
    MakeNotes();
    return {};
}

void CGuardedWrite::MakeNotes()
{
    m_notes.clear();
    for (const SCalUnread &record : m_unread)
        m_notes.append(QStringLiteral("%1 could not be read, so the backup lacks it: %2.")
                           .arg(record.record, record.why));
    QStringList quiet;
    for (const SCalBlockRecord &record : m_wanted.records) {
        const SCalBlockRecord *there = m_flash.Find(record.kind, record.place);
        if (there && !DiffersInFields(*there, record))
            quiet.append(RecordText(record));
    }
    if (!quiet.isEmpty())
        m_notes.append(QStringLiteral("Of %1 only bytes differ that no field of the record shows, "
                                      "such as blocks that repeat a value differently.")
                           .arg(FirstOf(quiet)));
}

QStringList CGuardedWrite::ChangedRecords() const
{
    QStringList names;
    for (const SCalBlockRecord &record : m_wanted.records)
        names.append(RecordText(record));
    return names;
}

QStringList CGuardedWrite::Unread() const
{
    QStringList lines;
    for (const SCalUnread &record : m_unread)
        lines.append(QStringLiteral("%1 could not be read: %2.").arg(record.record, record.why));
    return lines;
}

QString CGuardedWrite::MakeBackup(SCalBackup &backup)
{
    const SMMRfRouteTableV7 *table = CTargetCapability().GetRouteTableNr();
    if (!table)
        return QString::fromLatin1(kNoRouteInfo);
    backup = {.item = m_item.key,
              .chip = m_item.scratch->ChipName(),
              .handle = TargetHandle(),
              .time = QDateTime::currentDateTimeUtc().toString(Qt::ISODate),
              .routes = BackupRoutesOf(*table),
              .image = m_flash,
              .unread = m_unread};
    return {};
}

QString CGuardedWrite::SaveBackup(const QString &folder)
{
    SCalBackup backup;
    if (const QString why = MakeBackup(backup); !why.isEmpty())
        return QStringLiteral("No backup could be made: %1. Nothing was written.").arg(why);
    m_item.scratch->TakeImage(JoinedImage(m_flash));
    const auto saveIni = [this](CCalIniFile &ini) {
        // What an INI file cannot hold (52, 53) is in the JSON file.
        if (m_item.scratch->HasData())
            m_item.scratch->SaveToFile(&ini);
    };
    return SaveBackupFiles(folder, backup, saveIni, m_backupFile);
}

QString CGuardedWrite::SaveJson(const QString &file)
{
    SCalBackup backup;
    const QString why = MakeBackup(backup);
    return why.isEmpty() ? ::SaveBackup(file, backup) : why;
}

QString CGuardedWrite::SaveIni(const QString &file)
{
    m_item.scratch->TakeImage(JoinedImage(m_flash));
    if (!m_item.scratch->HasData())
        return QStringLiteral("Flash has no record of this item.");
    try {
        CCalIniFile ini(file.toStdWString().c_str());
        const uint32_t code = m_item.scratch->SaveToFile(&ini);
        return code == kCalSuccess ? QString() : MoveText(code, m_item.scratch->GetErrorMessage());
    } catch (const std::exception &failure) {
        return QString::fromUtf8(failure.what());
    }
}

QString DefaultBackupFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/quorlin-rf/backups");
}
