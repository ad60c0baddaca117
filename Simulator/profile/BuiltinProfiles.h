// The profiles of Simulator/profile/builtin, compiled in.
#pragma once

#include <cstddef>

struct SBuiltinProfile
{
    const char *name;
    const char *text;  // JSON
};

// Null behind the last.
const SBuiltinProfile *BuiltinProfile(std::size_t index);
