// Numbers of a calibration record as the texts of a page, and back.
//
// dB stand in a record in 1/32 dB and on a page with five decimals, which is exact. A text that is
// no number counts as 0. A number is multiplied, truncated toward zero and limited to the 16 bits
// of a dB field, -1024 to 1023.96875 dB, even if the editor allows more. Pure functions, any
// thread.
//
//   CalText(ECalText::Db, -976);            // "-30.50000"
//   CalValue(ECalText::Db, "-30.5");        // -976
//   CalValue(ECalText::Db, "2047");         // 32767
//   CalText(ECalText::WholeDb, -33);        // "-1": the editor knows no fraction
#pragma once

#include <cstdint>

#include <QString>

enum class ECalText
{
    Number,
    Db,
    WholeDb,  // without the fraction
    Option,   // the member's own option, counted from 1; no number stands for it
};

QString CalText(ECalText kind, int64_t value);
int64_t CalValue(ECalText kind, const QString &text);
