// What each page's driver writes, path by path in the order of writing, with the message of each
// when the page lacks the path.
//
// The tables were set up from the pages' wiring, not from the updater. A message stands here as the
// user reads it; the log's text is given where it is another one. No text is to be corrected.
//
//   for (const SWrittenPath &row : WrittenPaths(EPageId::ContRx))
//       ...
#pragma once

#include <QString>
#include <QVector>

#include "Controller/core/PageTable.h"

struct SWrittenPath
{
    QString path;
    QString reported;
    QString logged;
};

QVector<SWrittenPath> WrittenPaths(EPageId id);

// A row as the tables spell it.
struct SPathRow
{
    const char *group;  // "R1" to "R4": a group of cmdIf.request; else the group's path
    QString rest;       // the member and what of it
    const char *reported;
    const char *logged = nullptr;  // null: as reported
};
using PathTable = QVector<SPathRow>;

// Of the pages that transmit, and of those that receive; empty for any other page.
PathTable TxPathTable(EPageId id);
PathTable RxPathTable(EPageId id);
// The five labels of a hardware setting, each with its default.
PathTable HardwareRows(const char *group, const char *feRoute, const char *port, const char *stx,
                       const char *antMask, const char *mimoPair);
