// Guarded writes of the core: what a page's memory holds goes to flash, in two jobs with the user's yes
// between them.
#include "Controller/core/NrCore.h"

#include <utility>

#include "Controller/calibration/CalDifferences.h"
#include "Controller/guard/GuardedWrite.h"
#include "Operations/link/TargetLink.h"
#include "Support/Log.h"

namespace {

constexpr char kNoData[] =
    "The page holds no data yet. Read them from the target, or import a file.";
constexpr char kOtherDut[] =
    "The tool was reset since the question was asked. Nothing was sent to the target.";
constexpr char kNothingSent[] = " Nothing was sent to the target.";
constexpr char kEndedEarly[] =
    "The write ended early. What it has sent is not known: compare the target with the page.";

QString Words(EGuardStep step)
{
    switch (step) {
    case EGuardStep::Read:
        return QStringLiteral("Read data from target");
    case EGuardStep::Send:
        return QStringLiteral("Write data to target");
    case EGuardStep::ReadBack:
        break;
    }
    return QStringLiteral("Read back data from target");
}

// The write with the DUT that it was begun for.
struct SWork : IGuardedWork
{
    std::unique_ptr<CGuardedWrite> write;
    uint64_t connection = 0;
    uint32_t handle = 0;
};

}  // namespace

SGuardedPlan CNrCore::PlanGuardedWrite(ECalItem item)
{
    const CLockSentry lock(m_targetLock);
    SGuardedPlan plan;
    try {
        RenewCalItems();
        const SCalImage wanted = MemoryImage(item);
        if (wanted.records.empty()) {
            plan.refusal = QLatin1String(kNoData);
            return plan;
        }
        const auto work = std::make_shared<SWork>();
        work->connection = m_connection.load();
        work->handle = TargetHandle();
        const SCalItemRow &row = FindCalItem(item);
        const auto tell = [this, name = CalItemName(item)](EGuardStep step, int routesDone,
                                                           int routesInAll) {
            emit Signal_CalWork(name, Words(step), routesDone, routesInAll);
            m_targetLock.GiveWay();
        };
        work->write = std::make_unique<CGuardedWrite>(
            SGuardedItem{QLatin1String(row.key), row.make(), PageLimits(item)}, tell);
        plan.refusal = work->write->Begin();
        if (plan.refusal.isEmpty())
            plan.refusal = work->write->WantImage(wanted, {});
        if (!plan.refusal.isEmpty())
            return plan;
        plan.changes = MakeCalDifferences(work->write->Changes());
        plan.records = work->write->ChangedRecords();
        plan.notes = work->write->Notes();
        plan.backupFolder = DefaultBackupFolder();
        if (!plan.records.isEmpty())
            plan.work = work;
    } catch (const std::exception &failure) {
        plan = {.refusal = QString::fromUtf8(failure.what()) + QLatin1String(kNothingSent)};
    }
    return plan;
}

SGuardedReport CNrCore::CarryGuardedWrite(const SGuardedPlan &plan)
{
    const CLockSentry lock(m_targetLock);
    SGuardedReport report;
    auto *const work = static_cast<SWork *>(plan.work.get());
    // The DUT's lock is let go with this job.
    const auto write = work ? std::move(work->write) : nullptr;
    if (!write || work->connection != m_connection.load() || work->handle != TargetHandle()) {
        report.text = QLatin1String(kOtherDut);
        return report;
    }
    const QString why = write->SaveBackup(plan.backupFolder);
    report.backup = write->BackupFile();
    if (!why.isEmpty()) {
        report.text = why + QLatin1String(kNothingSent);
        return report;
    }
    report.text = QLatin1String(kEndedEarly);
    report.hasFailed = false;
    try {
        const SGuardedOutcome outcome = write->Carry();
        report.isVerified =
            outcome.end == EGuardedEnd::Verified || outcome.end == EGuardedEnd::Same;
        const bool wasToldSo = !outcome.isReadBack || !outcome.trouble.isEmpty();
        report.hasFailed = outcome.end == EGuardedEnd::NotWritten && wasToldSo;
        report.text = outcome.text;
        if (outcome.rest)
            report.rest = MakeCalDifferences(*outcome.rest);
    } catch (...) {
        qCCritical(lcCore) << "a guarded write ended by an exception";
    }
    return report;
}
