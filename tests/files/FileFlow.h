// A flow that writes files, with each of its system calls gone wrong once, in each way.
//
// What has to hold, whatever goes wrong: a flow that fails says so with the name of a file or folder of it,
// and leaves what was there before, and nothing else; one that says that it is done has done it all. One
// that is killed leaves each file as it was or as it is to be. The same flow behind it is good.
//
//   const SFileFlow flow = {.name = "settings", .prepare = ..., .run = ...};
//   const SFlowCount count = TryEachCall(flow);    // failures are those of GoogleTest
#pragma once

#include <functional>

#include <QByteArray>
#include <QMap>
#include <QString>

// Names below the folder, and bytes. Folders and locks are left out.
using FolderBytes = QMap<QString, QByteArray>;

struct SFileFlow
{
    const char *name = "";
    // Lays down what is there before.
    std::function<void(const QString &folder)> prepare = {};
    // Does it; the words of a failure, or nothing. Without state of its own: it runs in forks, too.
    std::function<QString(const QString &folder)> run = {};
    // Is this file whole, where it is neither as it was nor as it is to be? What was being appended when the
    // process was killed may end in the middle of a line.
    std::function<bool(const QString &name, const QByteArray &bytes, bool isKilled)> isWhole = {};
};

struct SFlowCount
{
    int calls = 0;
    int cases = 0;
    int failed = 0;  // flows that said so
    int killed = 0;
};

SFlowCount TryEachCall(const SFileFlow &flow);
FolderBytes BytesOf(const QString &folder);
void PutFile(const QString &path, const QByteArray &bytes);
