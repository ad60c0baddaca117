// The outcome of a guarded write in the user's words.
//
// Pure functions, any thread.
#pragma once

#include <QString>

#include "Controller/guard/GuardedOutcome.h"

// Of a move of an item: the words of its code, and its own.
QString MoveText(uint32_t code, const QString &text);
// differences: where what was read back is not as wanted, a line each. backup: the JSON file.
QString OutcomeText(const SGuardedOutcome &outcome, const QStringList &differences,
                    const QString &backup);
