// The status table: words for every status code.
//
// Constant data of the process; any thread. The wordings are as the users know them.
//
//   const SStatusRow row = LookupStatus(203);
//   row.level == eStatusError;   row.text == "L1 Status code != SUCCESS "
#pragma once

#include <QString>

enum EStatusLevel
{
    eStatusNote = 0,
    eStatusWarning = 1,
    eStatusError = 2,
};

// Codes that this system gives itself.
enum EStatusCode
{
    eStatusSuccess = 0,
    eStatusNotExecuted = 2,     // nothing ran
    eStatusVondFailed = 3,      // the closed library failed
    eStatusTerminated = 4,      // called off before it reached the target
    eStatusTargetFailed = 203,  // the target answered with a failure status
};

struct SStatusRow
{
    int code;
    EStatusLevel level;
    QString text;
    QString advice;  // what the user can do; may be empty
};

// The row of a code. A code that is in no row reads as the last row.
SStatusRow LookupStatus(int code);
