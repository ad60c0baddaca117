// When the soak says that memory grew.
#include "tests/soak/SoakMemory.h"

#include <cstring>
#include <memory>

#include <sys/mman.h>

#include <gtest/gtest.h>

namespace {

constexpr std::size_t kMegabyte = 1000000;

// A line with so much of each.
SMemory All(std::size_t bytes)
{
    return {bytes, bytes, bytes};
}

// An hour's lines of 100 MB, of which each has so much more than the one before.
std::vector<SMemory> Lines(const SMemory &step)
{
    std::vector<SMemory> lines;
    for (std::size_t i = 0; i < 65; ++i)
        lines.push_back({100 * kMegabyte + i * step.resident, 100 * kMegabyte + i * step.inUse,
                         100 * kMegabyte + i * step.outside});
    return lines;
}

}  // namespace

TEST(SoakMemory, BlockInUseShows)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer has an allocator of its own, which mallinfo2 does not know";
#endif
    const SMemory before = ReadMemory();
    EXPECT_GT(before.resident, 0u);
    // Small blocks come from an arena, a large one from the system itself.
    for (const std::size_t size : {kMegabyte / 100, 20 * kMegabyte}) {
        const std::size_t count = 20 * kMegabyte / size;
        std::vector<std::unique_ptr<char[]>> blocks;
        for (std::size_t i = 0; i < count; ++i) {
            blocks.push_back(std::make_unique<char[]>(size));
            std::memset(blocks.back().get(), 1, size);
        }
        const SMemory with = ReadMemory();
        EXPECT_GE(with.inUse, before.inUse + 20 * kMegabyte);
        EXPECT_GE(with.resident, before.resident + 19 * kMegabyte);
        blocks.clear();
        EXPECT_LT(ReadMemory().inUse, before.inUse + kMegabyte);
    }
}

TEST(SoakMemory, MemoryThatIsNotOfMallocShowsByItself)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "a sanitizer has an allocator of its own";
#endif
    constexpr std::size_t kSize = 20 * kMegabyte;
    const SMemory before = ReadMemory();
    std::vector<std::unique_ptr<char[]>> blocks;
    for (std::size_t i = 0; i < 2000; ++i) {
        blocks.push_back(std::make_unique<char[]>(kSize / 2000));
        std::memset(blocks.back().get(), 1, kSize / 2000);
    }
    EXPECT_LT(ReadMemory().outside, before.outside + kMegabyte);
    void *const mapped =
        mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(mapped, MAP_FAILED);
    std::memset(mapped, 1, kSize);
    EXPECT_GE(ReadMemory().outside, before.outside + kSize - kMegabyte);
    munmap(mapped, kSize);
}

TEST(SoakMemory, SteadyMemoryHolds)
{
    for (const SGrowth &growth : CompareMemory(Lines({}))) {
        EXPECT_TRUE(growth.Holds()) << growth.name;
        EXPECT_DOUBLE_EQ(growth.percent, 0) << growth.name;
    }
}

TEST(SoakMemory, MemoryThatShrinksHolds)
{
    std::vector<SMemory> lines = Lines({});
    for (std::size_t i = 10; i < lines.size(); ++i)
        lines[i] = All(90 * kMegabyte);
    for (const SGrowth &growth : CompareMemory(lines))
        EXPECT_TRUE(growth.Holds()) << growth.name;
}

TEST(SoakMemory, SlowGrowthOfAnyKindFails)
{
    // From minute 5 to minute 63, the medians: 58 steps of 40 kB are 2.3 %.
    const auto resident = CompareMemory(Lines({40000, 0, 0}));
    ASSERT_EQ(resident.size(), 3u);
    EXPECT_FALSE(resident[0].Holds());
    EXPECT_TRUE(resident[1].Holds());
    const auto inUse = CompareMemory(Lines({0, 40000, 0}));
    EXPECT_TRUE(inUse[0].Holds());
    EXPECT_FALSE(inUse[1].Holds());
    const auto outside = CompareMemory(Lines({0, 0, 40000}));
    EXPECT_TRUE(outside[1].Holds());
    EXPECT_FALSE(outside[2].Holds());
    EXPECT_EQ(inUse[1].before, 100 * kMegabyte + 4 * 40000);
    EXPECT_EQ(inUse[1].after, 100 * kMegabyte + 62 * 40000);
}

TEST(SoakMemory, OneHighLineIsNoGrowth)
{
    std::vector<SMemory> lines = Lines({});
    lines.back() = All(150 * kMegabyte);
    for (const SGrowth &growth : CompareMemory(lines))
        EXPECT_TRUE(growth.Holds()) << growth.name;
}

TEST(SoakMemory, ShortRunComparesNothing)
{
    std::vector<SMemory> lines = Lines(All(kMegabyte));
    lines.resize(11);
    EXPECT_TRUE(CompareMemory(lines).empty());
    lines.push_back(lines.back());
    EXPECT_EQ(CompareMemory(lines).size(), 3u);
}
