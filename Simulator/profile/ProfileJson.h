// Profiles as JSON: loading, inheritance from a built-in, strict validation. The format is told in
// docs/simulated-dut.md. All functions may run in any thread; failures are std::runtime_error with
// one line of text.
#pragma once

#include <string>

#include "Simulator/profile/Profile.h"

// The text of a built-in profile or, when no built-in has that name, of the file at that path.
std::string ReadProfileText(const std::string &nameOrPath);

// Unknown keys, wrong types, counts over the limits of the wire records, and routes that stand on
// no listed band are refused. `source` opens the failure text.
SProfile ParseProfile(const std::string &text, const std::string &source);

// A DUT that is not there: every call fails.
SProfile UnpluggedProfile();
