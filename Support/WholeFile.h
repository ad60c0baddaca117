// Replaces a file whole, or leaves it as it was: a full disk or a program that dies leaves no half of it.
// Blocks on the disk; any thread.
//
//   if (const QString why = SaveWhole(path, bytes); !why.isEmpty())
//       ... path + ": " + why
#pragma once

#include <QByteArray>
#include <QString>

// Empty, or why not, in the system's words.
QString SaveWhole(const QString &path, const QByteArray &bytes);
