// A record as text and as JSON.
#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "Cli/trace/Output.h"
#include "Trace/words/ShownRecord.h"

// A line for each field, names and values in columns.
void PrintRecord(COutput &output, const SShownRecord &record, EWhichFields which,
                 const std::string &indent);
// {"size": 40, "fields": {"band": {"raw": 78, "text": "n78"}}}; "missing", "rest" and of a field
// "reading", "remark" and "if" where there is such a thing.
nlohmann::ordered_json RecordJson(const SShownRecord &record, EWhichFields which);
