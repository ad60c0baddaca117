// The tap, as a host sees it: a library to be preloaded, which records the calls to the target or plays
// them back, and takes notes.
//
//     if (const QString error = RunUnderTap(options, argv); !error.isEmpty())
//         return Complain(error);
//     NoteOfHost("Host: Show");
#pragma once

#include <QString>

struct SHostOptions;

// Where the options ask for a trace, the program starts itself anew with the tap preloaded
// (../lib/libVondTap.so beside this program) and all its options, and this does not return. Returns at
// once without such an option, and in the program that was started anew. What is returned says in a
// sentence why there can be no trace; empty: go on. Call it before anything else of the process lives.
QString RunUnderTap(const SHostOptions &options, char **argv);

// Nothing without the tap. Any thread.
void NoteOfHost(const QString &text);

// What the tap does in this process: nothing without it.
enum class ETrace
{
    None,
    Recorded,
    PlayedBack,
};
ETrace TraceOfSession();
