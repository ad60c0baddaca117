#include "tests/soak/SoakHandles.h"

#include <algorithm>
#include <filesystem>

#include "tests/soak/SoakMemory.h"

namespace {

struct SHandleFigure
{
    const char *name;
    int SHandles::*count;
};

constexpr SHandleFigure kHandleFigures[] = {
    {"open files", &SHandles::files}, {"threads", &SHandles::threads},
    {"widgets", &SHandles::widgets},  {"windows", &SHandles::windows},
    {"objects", &SHandles::objects},  {"timers", &SHandles::timers},
};

int EntriesOf(const char *folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<int>(std::distance(begin(entries), end(entries)));
}

}  // namespace

// Without the handle by which the folder is read.
SHandles ReadHandles()
{
    return {.files = EntriesOf("/proc/self/fd") - 1, .threads = EntriesOf("/proc/self/task")};
}

std::vector<SHandleGrowth> CompareHandles(const std::vector<SHandles> &lines)
{
    std::vector<SHandleGrowth> result;
    if (lines.size() < kFewestLines)
        return result;
    const auto first = lines.begin() + kFirstLine;
    for (const SHandleFigure &figure : kHandleFigures) {
        const auto isLess = [&](const SHandles &a, const SHandles &b) {
            return a.*figure.count < b.*figure.count;
        };
        const auto most = std::max_element(first, first + kMomentLines, isLess);
        const auto fewest = std::min_element(lines.end() - kMomentLines, lines.end(), isLess);
        result.push_back({figure.name, (*most).*figure.count, (*fewest).*figure.count});
    }
    return result;
}
