// What holds of every calibration document and record, whatever both say. A broken rule ends the process.
#pragma once

#include "tests/fuzz/wire/CommandInput.h"

// A record that a document is stored into changes where the page shows it, and nowhere else.
void CheckCalCommands(const CCommandInput &input);
// Only the data section is written, the same record shown again changes nothing, and what the page
// gives back untouched leaves the record as it was.
void CheckCalResponses(const CCommandInput &input);
