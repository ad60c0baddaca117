// A run whose calls to the target are recorded.
//
//   if (const QString error = RestartRecorded("run.jsonl"); !error.isEmpty())
//       return Complain(error);
#pragma once

#include <QString>

// Starts this program anew under the tap, with the arguments that it was given, and does not return.
// Returns at once in the program that was started anew, or with a sentence that says why there can be no
// trace. Call it before an application object lives.
QString RestartRecorded(const QString &traceFile);
