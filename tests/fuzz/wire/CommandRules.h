// What holds of every command record that a document has gone into, whatever the document says. A broken
// rule ends the process.
#pragma once

#include "tests/fuzz/wire/CommandInput.h"

// Each builder of a command, twice: the same document makes the same bytes.
void CheckCommands(const CCommandInput &input);
