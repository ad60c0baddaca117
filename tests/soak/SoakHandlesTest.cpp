// When the soak says that files, threads, widgets or windows grew.
#include "tests/soak/SoakHandles.h"

#include <memory>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace {

constexpr int SHandles::*kEach[] = {&SHandles::files,   &SHandles::threads, &SHandles::widgets,
                                    &SHandles::windows, &SHandles::objects, &SHandles::timers};

// Eight hours, a line each quarter.
std::vector<SHandles> Steady()
{
    return std::vector<SHandles>(
        32,
        {.files = 20, .threads = 8, .widgets = 4000, .windows = 6, .objects = 20000, .timers = 12});
}

int Failures(const std::vector<SHandles> &lines)
{
    int failures = 0;
    for (const SHandleGrowth &growth : CompareHandles(lines))
        failures += !growth.Holds();
    return failures;
}

}  // namespace

TEST(SoakHandles, OpenFileAndThreadShow)
{
    const SHandles before = ReadHandles();
    const int file = open("/dev/null", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(ReadHandles().files, before.files + 1);
    close(file);
    EXPECT_EQ(ReadHandles().files, before.files);
    int during = 0;
    std::thread([&during] { during = ReadHandles().threads; }).join();
    EXPECT_EQ(during, before.threads + 1);
}

TEST(SoakHandles, SteadyCountsHold)
{
    EXPECT_EQ(CompareHandles(Steady()).size(), 6u);
    EXPECT_EQ(Failures(Steady()), 0);
}

TEST(SoakHandles, OneMoreInTheMiddleThatStaysFails)
{
    for (int SHandles::*count : kEach) {
        std::vector<SHandles> lines = Steady();
        for (std::size_t i = 15; i < lines.size(); ++i)
            ++(lines[i].*count);
        EXPECT_EQ(Failures(lines), 1);
    }
}

TEST(SoakHandles, OneMoreEachHourFails)
{
    std::vector<SHandles> lines = Steady();
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i].windows += static_cast<int>(i / 4);
    const auto growths = CompareHandles(lines);
    EXPECT_EQ(Failures(lines), 1);
    EXPECT_STREQ(growths[3].name, "windows");
    EXPECT_EQ(growths[3].before, 7);
    EXPECT_EQ(growths[3].after, 12);
}

TEST(SoakHandles, HighLinesAmongTheLastAreNoGrowth)
{
    std::vector<SHandles> lines = Steady();
    for (std::size_t i = 28; i < 32; ++i)
        lines[i].threads += 3;
    EXPECT_EQ(Failures(lines), 0);
}

TEST(SoakHandles, WarmUpIsLeftOut)
{
    std::vector<SHandles> lines = Steady();
    lines[0] = {};
    lines[1] = {};
    EXPECT_EQ(Failures(lines), 0);
}

TEST(SoakHandles, FewLinesCompareNothing)
{
    std::vector<SHandles> lines = Steady();
    lines.resize(11);
    EXPECT_TRUE(CompareHandles(lines).empty());
}
