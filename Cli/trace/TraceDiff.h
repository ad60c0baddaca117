// "quorlin trace diff": in which calls and fields two traces differ.
#pragma once

#include <string>
#include <vector>

struct STraceDiffOptions
{
    std::string one;
    std::string other;
    std::vector<std::string> ignored;  // fields by name, or "readings"
    bool isTimed = false;
    bool isJson = false;
};

// Returns kExitGood when they are the same, kExitDifferent when not. Throws what is wrong with a trace
// or with the name of a field.
int DiffTraces(const STraceDiffOptions &options);
