// What holds of all that the server answers, whatever it is asked.
//
//   CheckReplies(lines, output);   // ends the process when a rule is broken
#pragma once

#include <QByteArray>
#include <QByteArrayList>

// May the target send the line? Not when it names a file: an input would write where it likes.
bool MaySend(const QByteArray &line);

// lines: what was sent, in order. output: everything that the server wrote until its end.
void CheckReplies(const QByteArrayList &lines, const QByteArray &output);
