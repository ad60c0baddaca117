// Writes calls of the door panel as a trace: the form of docs/trace-format.md. Any thread.
//
//     std::atomic<bool> isStopped = false;
//     const STraceSaved saved = SaveTrace(source, header, calls, "run.jsonl", isStopped);
//     saved.error       // empty: all is written
#pragma once

#include <atomic>
#include <vector>

#include "Host/door/DoorSource.h"

struct STraceSaved
{
    QString error;            // a sentence
    std::size_t written = 0;  // calls
    std::size_t gone = 0;     // calls that the source had no more
};

// The file is replaced when all is written, and not at all when it is stopped. Calls are written in the
// order in which they began; one that is open has no end there.
STraceSaved SaveTrace(const IDoorSource &source, const STraceHeader &header,
                      std::vector<SDoorCall> calls, const QString &file,
                      const std::atomic<bool> &isStopped);
