#include "tests/soak/SoakMemory.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include <malloc.h>
#include <unistd.h>

namespace {

struct SFigure
{
    const char *name;
    std::size_t SMemory::*bytes;
    bool isOfAllArenas;
};

constexpr SFigure kFigures[] = {
    {"resident", &SMemory::resident, true},
    {"in use", &SMemory::inUse, false},
    {"outside malloc", &SMemory::outside, false},
};

// Of a line such as "7f3c58000000-7f3c5a1b2000 rw-p 00000000 00:00 0   [heap]". glibc aligns its arenas.
bool IsArena(const std::string &mapping)
{
    constexpr unsigned long long kArenaAlignment = 64 * 1024 * 1024;
    std::istringstream words(mapping);
    std::string range, rights, offset, device, file, path;
    words >> range >> rights >> offset >> device >> file >> path;
    return path == "[heap]" ||
           (path.empty() && std::stoull(range, nullptr, 16) % kArenaAlignment == 0);
}

std::size_t ResidentOutsideMalloc()
{
    std::ifstream mappings("/proc/self/smaps");
    std::size_t kilobytes = 0;
    bool isArena = false;
    for (std::string line; std::getline(mappings, line);) {
        constexpr std::string_view kResident = "Rss:";
        if (line.compare(0, kResident.size(), kResident) == 0)
            kilobytes += isArena ? 0 : std::stoull(line.substr(kResident.size()));
        else if (line.find(':') > line.find(' '))
            isArena = IsArena(line);
    }
    return kilobytes * 1024;
}

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
            heap.uordblks + heap.hblkhd, ResidentOutsideMalloc()};
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
        result.push_back({figure.name, figure.isOfAllArenas, before, after, (ratio - 1) * 100});
    }
    return result;
}
