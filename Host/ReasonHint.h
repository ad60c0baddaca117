// What a "no" of the launch query means in practice. The plug-in's reasons stay as they are; the hint
// stands below.
//
//     ReasonHint("It is C2K modem now.")   // "The DUT's C2K modem is active. ..."
#pragma once

#include <QString>

// Empty for a reason that no hint is known for.
QString ReasonHint(const QString &reason);
