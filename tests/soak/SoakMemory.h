// What the process has of memory at one moment.
//
//   const SMemory before = ReadMemory();
#pragma once

#include <cstddef>

struct SMemory
{
    std::size_t resident;  // bytes that lie in main memory: code, stacks and heap, free blocks too
    std::size_t inUse;     // bytes that malloc has given out, of all its arenas
};

// 0 for what the system does not tell.
SMemory ReadMemory();
