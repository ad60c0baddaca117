// "quorlin trace show": a call a paragraph, notes as headings between them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

struct STraceShowOptions
{
    std::string path;
    std::optional<uint64_t> call;  // this one alone, by its index
    std::string function;          // calls of this one alone; empty: of all
    bool isFailedOnly = false;
    bool isJson = false;
};

// Returns the exit code. Throws what is wrong with the trace, a call that is not there and an unknown
// function, in words.
int ShowTrace(const STraceShowOptions &options);
