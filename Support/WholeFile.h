// Files written whole or not at all, and read whole up to a size. Every file that replaces another is
// written through here: a full disk, a failing one, or a program that dies leaves no half of it.
//
// What blocks is the disk; any thread. Words are the system's, without the name of the file.
//
//   if (const QString why = SaveWhole(path, bytes); !why.isEmpty())
//       ... path + ": " + why
//
//   QSaveFile file(path);                     // what is too long for one piece
//   if (file.open(QIODevice::WriteOnly) && file.write(...) ...)
//       why = CommitWhole(file);
//
//   QByteArray bytes;
//   why = ReadWhole(path, 1024 * 1024, bytes);
#pragma once

#include <QByteArray>
#include <QString>

class QSaveFile;

// Empty, or why not.
QString SaveWhole(const QString &path, const QByteArray &bytes);

// In place of QSaveFile::commit(), which does not notice that the disk has not taken what was still in
// memory, and puts the stump in place of the old file. Empty, or why the old file stays.
QString CommitWhole(QSaveFile &file);

// Nothing is read of a file of more than mostBytes, or of what is no file. Empty, or why not.
QString ReadWhole(const QString &path, qint64 mostBytes, QByteArray &bytes);
