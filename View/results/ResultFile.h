// A file of results, written whole or not at all.
//
// The suffix tells the form: ".csv" is CSV with the settings in a second file of the same name with
// ".json"; ".jsonl" (or ".ndjson") is JSON Lines. A settings file that is there is replaced if an
// export wrote it; any other one is left alone, and nothing is written. Any thread.
//
//   const QString failure = WriteResultFile("rsrp.csv", table, [] { return true; });
#pragma once

#include <QString>

#include "View/results/RowWriter.h"

// Why this file can't be the one, before anything is asked or written; empty: it can.
QString RefuseResultFile(const QString &file);

// What went wrong, for the user; empty: nothing. When goesOn ended it the words say so, too.
QString WriteResultFile(const QString &file, const SResultTable &table, const GoesOn &goesOn);
