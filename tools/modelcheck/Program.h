// The program: arguments in, one line a finding out.
//
//   modelcheck PAGE.json [PAGE.ui] [PAGE.json [PAGE.ui] ...] [--allow FILE]
//
// A form stands behind its document; a document without one is checked alone.
// Findings go to out; errors of the call and of the files go to err. Returns the exit code.
//
//   QTextStream out(stdout), err(stderr);
//   return RunModelCheck({"NrContRxV7.json", "NrContRxDockWidgetV7.ui"}, out, err);
#pragma once

#include <QStringList>
#include <QTextStream>

enum EExitCode
{
    eExitGood = 0,      // no findings, or only allowed ones
    eExitFindings = 1,  // at least one finding
    eExitUsage = 2,  // bad arguments, an unreadable file, a broken allow list; nothing is checked
};

// args without the program's name.
int RunModelCheck(const QStringList &args, QTextStream &out, QTextStream &err);
