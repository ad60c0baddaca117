// The scenarios of Simulator/scenario/builtin, compiled in.
#pragma once

#include <cstddef>

struct SBuiltinScenario
{
    const char *name;
    const char *text;  // JSON
};

// Null behind the last.
const SBuiltinScenario *BuiltinScenario(std::size_t index);
