// Values that go into an INI file of settings beside what stands there: key by key, and the file is replaced
// whole or not at all. QSettings writes the same file in one go, but takes a full disk for a success, and an
// empty file is left.
//
// What several processes write is merged; each waits for the other a moment. A link stays one. Blocks on
// files; any thread.
//
//   QVariantMap all;
//   const QString why = MergeIntoIni(file, {{"compare/columns", columns}}, all);
#pragma once

#include <QString>
#include <QVariantMap>

constexpr qint64 kLongestSettings =
    4 * 1024 * 1024;  // bytes; those of all pages take a few thousand

// all: what the file holds then. Empty, or why the file is as it was.
QString MergeIntoIni(const QString &file, const QVariantMap &changed, QVariantMap &all);

// Everything that an INI file holds.
QVariantMap ReadIni(const QString &file);
