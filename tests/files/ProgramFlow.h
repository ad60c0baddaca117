// A run of the program quorlin, with each of its system calls on files below a folder gone wrong.
//
// What has to hold: a run that ends with 0 has done it all; any other end has words on stderr that name a file
// or folder; each file there is whole, and none is left that a good run would not leave. The same run behind it
// is good.
//
//   TryEachCall({.name = "cal read", .prepare = ..., .command = "$QUORLIN cal read ...", ...});
#pragma once

#include <functional>
#include <string>

#include "tests/cli/CliFolder.h"
#include "tests/files/FileFlow.h"

struct SProgramFlow
{
    const char *name = "";
    // Lays the files down that the folder has before. Those of the flow itself stand in its folder "x".
    std::function<void(const CCliFolder &folder)> prepare = {};
    // Of the shell, in the folder; "$TRY" stands in front of the program.
    std::string command = {};
    // Is it done? Of the files in "x".
    std::function<bool(const FolderBytes &files)> isDone = {};
    // May such a file be there, and is it whole?
    std::function<bool(const QString &name, const QByteArray &bytes, bool isKilled)> isWhole = {};
    // A run that goes on in spite of a failure (a DUT that cannot read its flash, a recording that ends) says so
    // on stderr, and ends with 0 all the same.
    bool goesOn = false;
};

// Of each call and kind one in so many, by the environment's QUORLIN_FILES_EVERY; 1: all. Without it few.
SFlowCount TryEachCall(const SProgramFlow &flow);
