// What holds of every document that a record has gone into, whatever both say. A broken rule ends
// the process.
#pragma once

#include "tests/fuzz/wire/CommandInput.h"

// Only the result section is written, and rows come and go as a table's rows do.
void CheckResponses(const CCommandInput &input);
// Only the data section is written, the same record shown again changes nothing, and what the page
// gives back untouched leaves the record as it was.
void CheckCalResponses(const CCommandInput &input);
