#include "tests/soak/SoakMemory.h"

#include <fstream>

#include <malloc.h>
#include <unistd.h>

SMemory ReadMemory()
{
    std::size_t pages = 0;
    std::size_t residentPages = 0;
    std::ifstream("/proc/self/statm") >> pages >> residentPages;
    const struct mallinfo2 heap = mallinfo2();
    return {residentPages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)),
            heap.uordblks + heap.hblkhd};
}
