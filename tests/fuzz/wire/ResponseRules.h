// What holds of every document that a test's result has gone into, whatever both say. A broken rule ends
// the process.
#pragma once

#include "tests/fuzz/wire/CommandInput.h"

// Only the result section is written, and rows come and go as a table's rows do.
void CheckResponses(const CCommandInput &input);
