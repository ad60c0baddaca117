// The two files of a backup, of one name: INI for people, JSON for a restore.
//
// Both are written beside their names first and take them then, so that each is whole or not there, and no
// file that is there is touched. Blocks on files; any thread.
//
//   QString file;
//   const QString why = SaveBackupFiles(folder, backup, [&](CCalIniFile &ini) { ... }, file);
#pragma once

#include <functional>

#include <QString>

#include "Controller/guard/CalBackup.h"

class CCalIniFile;

// ini: writes the INI file, which is left out when it writes nothing; may throw std::exception. file: the
// JSON file, absolute. Empty, or why there is no backup.
QString SaveBackupFiles(const QString &folder, const SCalBackup &backup,
                        const std::function<void(CCalIniFile &)> &ini, QString &file);
// The JSON file alone, at this place: replaced whole, or left as it was. Empty, or why.
QString SaveBackup(const QString &file, const SCalBackup &backup);
