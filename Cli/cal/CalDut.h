// The DUT of a command: can it be used, and what a guarded write of an item needs.
//
// Blocks on the target. A text is why not, a sentence.
//
//   if (const QString why = LookAtDut(request.handle); !why.isEmpty())
//       return Complain(why);
//   CGuardedWrite write(GuardedItem(ECalItem::Apt), ShowProgress);
#pragma once

#include <cstdint>

#include <QString>

#include "Controller/core/CalItemTable.h"
#include "Controller/guard/GuardedWrite.h"

// Also takes the handle, for all calls from now on.
QString LookAtDut(uint32_t handle);
// With the limits of the item's page, as the tool shows it for this DUT.
SGuardedItem GuardedItem(ECalItem item);
