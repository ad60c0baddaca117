#include "tests/soak/SoakMemory.h"

#include <algorithm>
#include <fstream>

#include <malloc.h>
#include <unistd.h>

namespace {

struct SFigure
{
    const char *name;
    std::size_t SMemory::*bytes;
};

constexpr SFigure kFigures[] = {
    {"resident", &SMemory::resident},
    {"in use", &SMemory::inUse},
};

std::size_t Median(const std::vector<SMemory> &lines, std::size_t first, const SFigure &figure)
{
    std::size_t values[kMomentLines] = {};
    for (std::size_t i = 0; i < kMomentLines; ++i)
        values[i] = lines[first + i].*figure.bytes;
    std::sort(std::begin(values), std::end(values));
    return values[kMomentLines / 2];
}

}  // namespace

SMemory ReadMemory()
{
    std::size_t pages = 0;
    std::size_t residentPages = 0;
    std::ifstream("/proc/self/statm") >> pages >> residentPages;
    const struct mallinfo2 heap = mallinfo2();
    return {residentPages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)),
            heap.uordblks + heap.hblkhd};
}

std::vector<SGrowth> CompareMemory(const std::vector<SMemory> &lines)
{
    std::vector<SGrowth> result;
    if (lines.size() < kFewestLines)
        return result;
    for (const SFigure &figure : kFigures) {
        const std::size_t before = Median(lines, kFirstLine, figure);
        const std::size_t after = Median(lines, lines.size() - kMomentLines, figure);
        const double ratio = static_cast<double>(after) / static_cast<double>(before);
        result.push_back({figure.name, before, after, (ratio - 1) * 100});
    }
    return result;
}
