// The commands of "quorlin cal" on a DUT that can be used. Each says what came out, and returns the exit
// code of Cli/ExitCodes.h: 0 done and verified, or the same; 1 differences, or written and not verified; 2
// trouble, with flash as it was.
#pragma once

#include "Cli/cal/CalRequest.h"

int RunCalRead(const SCalRequest &request);
int RunCalDiff(const SCalRequest &request);
int RunCalWrite(const SCalRequest &request);  // also dry
int RunCalVerify(const SCalRequest &request);
int RunCalRestore(const SCalRequest &request);
