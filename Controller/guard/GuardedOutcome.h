// What became of a guarded write, as values and in words. Plain values, any thread.
//
//   if (outcome.end == EGuardedEnd::Verified)
//       ... outcome.written
#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "Operations/calibration/CalComparison.h"

enum class EGuardedEnd
{
    Same,        // there was nothing to write
    Verified,    // written, and read back as it was sent
    Different,   // written in part, or read back otherwise
    NotWritten,  // flash is as it was
    Unknown      // something was sent, and not read back
};

// What became of a write. Records by the names of CalRecordName.
struct SGuardedOutcome
{
    EGuardedEnd end = EGuardedEnd::NotWritten;
    QStringList written = {};     // as wanted; without a read-back: accepted by the DUT
    QStringList different = {};   // neither as wanted nor as before
    QStringList notWritten = {};  // as before
    QStringList unknown = {};     // sent without an answer, and not read back
    bool isReadBack = false;
    QString trouble = {};  // of the target, in its words; empty: none
    // Wanted on the left, what was read back on the right, of the records that should have been written.
    // Null without a read-back.
    std::shared_ptr<const CCalComparison> rest = {};
    QString text = {};  // all of this for the user, with how to go on
};
