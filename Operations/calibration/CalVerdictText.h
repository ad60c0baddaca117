// The texts of a transfer's verdict. A text ends with a 0 or fills its array.
//
//   QString text = VerdictText(verdict.txText);
#pragma once

#include <QString>

#include "Vond/VondCalRecords.h"

inline QString VerdictText(const char (&text)[kVondCalText])
{
    return QString::fromUtf8(text, static_cast<int>(qstrnlen(text, kVondCalText)));
}
