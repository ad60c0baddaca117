// What a call asked and answered, field by field, and in which fields two calls differ. Any thread; a
// record of calibration data takes long, so the panel has it made beside the GUI thread.
//
//     const SDoorFields fields = FieldsOfCall(call, EWhichFields::Set);
//     fields.rows[0].name   // "request.band"
//     fields.rows[0].one    // "n78"
#pragma once

#include <string>
#include <vector>

#include <QString>
#include <QStringList>

#include "Trace/lines/TraceCall.h"
#include "Trace/words/ShownRecord.h"

struct SDoorField
{
    std::string name;
    std::string one;
    std::string other;  // of the second call, in a comparison
};

struct SDoorFields
{
    QString about;         // a line above the table
    QStringList captions;  // of its columns
    std::vector<SDoorField> rows;
};

SDoorFields FieldsOfCall(const STraceCall &call, EWhichFields which);
// Of calls of two functions only that is told.
SDoorFields DifferencesOfCalls(const STraceCall &one, const STraceCall &other);
