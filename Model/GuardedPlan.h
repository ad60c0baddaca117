// A guarded write of calibration data as a page takes it: what would be changed, and what became of it.
//
// The write itself goes with the plan. Whoever lets go of the last copy of it gives up the write, and
// with it the DUT's lock. Values; the objects behind them never change.
//
//   if (!plan.refusal.isEmpty()) ...          // nothing can be written
//   else if (plan.records.isEmpty()) ...      // the DUT has it all
//   else ask; then RequestGuardedWrite(plan)
#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "Model/CalDifferences.h"

// A write that has begun; made and carried by the core.
class IGuardedWork
{
public:
    virtual ~IGuardedWork() = default;
};

struct SGuardedPlan
{
    QString refusal = {};         // why nothing is written; empty: none
    CalDifferences changes = {};  // flash on the left, the page on the right
    QStringList records = {};     // that are to be sent
    QStringList notes = {};       // what the user should know before
    QString backupFolder = {};
    std::shared_ptr<IGuardedWork> work = {};
};

struct SGuardedReport
{
    bool isVerified = false;   // written, and read back as sent
    bool hasFailed = true;     // nothing went to the DUT, or it took nothing and said so
    QString text = {};         // the outcome in words, with how to go on
    QString backup = {};       // the file; empty when none was saved
    CalDifferences rest = {};  // wanted on the left, read back on the right; null: not read back
};
