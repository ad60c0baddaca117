// A file of calibration data, read against the DUT at the link: an INI file or a backup.
//
//   SCalFileData data;
//   const QString why = ReadCalFile(file, "apt", *scratch, flash, data);
#pragma once

#include <QString>

#include "Operations/calibration/CalBlockImage.h"
#include "Operations/calibration/CalRemarks.h"

class ICalItemByL1Operation;

struct SCalFileData
{
    bool isBackup = false;         // JSON
    SCalBlockImage image = {};     // the records that the file has
    SCalMoveRemarks remarks = {};  // of an INI file
};

// The longest file that is opened: twice and more what the largest DUT has.
constexpr qint64 kLongestCalIni = 128 * 1024 * 1024;

// By its content: a backup begins with a brace.
bool IsCalBackup(const QString &file);
// Values that an INI file has no key for are those of under, or 0. scratch is an item of that key; its
// memory is used. Reads the DUT's capability. Empty, or why not.
QString ReadCalFile(const QString &file, const QString &key, ICalItemByL1Operation &scratch,
                    const SCalBlockImage &under, SCalFileData &data);
