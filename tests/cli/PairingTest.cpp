// Pairs are a longest common subsequence of the functions, with as many equal requests as a small case
// can have.

#include "Cli/trace/Pairing.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace {

using Keys = std::vector<SPairingKey>;

struct SCount
{
    std::size_t pairs = 0;
    std::size_t equal = 0;
    bool operator==(const SCount &) const = default;
    auto operator<=>(const SCount &) const = default;
};

// The best there is, cell by cell.
SCount BestCount(const Keys &one, const Keys &other)
{
    std::vector<std::vector<SCount>> best(one.size() + 1, std::vector<SCount>(other.size() + 1));
    for (std::size_t i = 1; i <= one.size(); ++i) {
        for (std::size_t j = 1; j <= other.size(); ++j) {
            best[i][j] = std::max(best[i - 1][j], best[i][j - 1]);
            if (one[i - 1].function != other[j - 1].function)
                continue;
            SCount with = best[i - 1][j - 1];
            ++with.pairs;
            with.equal += one[i - 1] == other[j - 1] ? 1 : 0;
            best[i][j] = std::max(best[i][j], with);
        }
    }
    return best[one.size()][other.size()];
}

// Counts the pairs; fails when a call is missing, twice, out of order or with another function.
SCount Count(const Keys &one, const Keys &other)
{
    SCount count;
    std::size_t nextOne = 0;
    std::size_t nextOther = 0;
    for (const SPairing &pair : PairCalls(one, other)) {
        if (pair.one) {
            EXPECT_EQ(*pair.one, nextOne++);
        }
        if (pair.other) {
            EXPECT_EQ(*pair.other, nextOther++);
        }
        EXPECT_TRUE(pair.one || pair.other);
        if (pair.one && pair.other) {
            EXPECT_EQ(one[*pair.one].function, other[*pair.other].function);
            ++count.pairs;
            count.equal += one[*pair.one] == other[*pair.other] ? 1 : 0;
        }
    }
    EXPECT_EQ(nextOne, one.size());
    EXPECT_EQ(nextOther, other.size());
    return count;
}

uint32_t Any(uint32_t end, std::mt19937 &random)
{
    return static_cast<uint32_t>(random() % end);
}

Keys AnyKeys(std::size_t size, uint32_t functions, uint32_t requests, std::mt19937 &random)
{
    Keys keys(size);
    for (SPairingKey &key : keys)
        key = {.function = Any(functions, random), .request = Any(requests, random)};
    return keys;
}

TEST(PairingTest, OneCallMoreDoesNotShiftTheRest)
{
    const Keys one = {{1, 1}, {1, 2}, {2, 3}};
    const Keys other = {{1, 1}, {1, 9}, {1, 2}, {2, 3}};
    const std::vector<SPairing> expected = {{0, 0}, {std::nullopt, 1}, {1, 2}, {2, 3}};
    EXPECT_EQ(PairCalls(one, other), expected);
}

TEST(PairingTest, EmptySequencesPairWithNothing)
{
    EXPECT_TRUE(PairCalls({}, {}).empty());
    EXPECT_EQ(PairCalls({}, Keys{{1, 1}}), (std::vector<SPairing>{{std::nullopt, 0}}));
    EXPECT_EQ(PairCalls(Keys{{1, 1}}, {}), (std::vector<SPairing>{{0, std::nullopt}}));
    EXPECT_EQ(PairCalls(Keys{{1, 1}}, Keys{{2, 1}}).size(), 2u);
}

TEST(PairingTest, SmallSequencesHaveTheBestPairing)
{
    std::mt19937 random(1);
    for (int run = 0; run < 500; ++run) {
        const Keys one = AnyKeys(random() % 30, 4, 3, random);
        const Keys other = AnyKeys(random() % 30, 4, 3, random);
        ASSERT_EQ(Count(one, other), BestCount(one, other)) << "run " << run;
    }
}

// Beyond what is looked at cell by cell.
TEST(PairingTest, LongSequencesHaveAsManyPairsAsTheyCan)
{
    std::mt19937 random(2);
    for (const std::size_t size : {2200u, 2301u}) {
        const Keys one = AnyKeys(size, 28, 5, random);
        const Keys other = AnyKeys(size - 200, 28, 5, random);
        EXPECT_EQ(Count(one, other).pairs, BestCount(one, other).pairs);
    }
}

TEST(PairingTest, HundredThousandCallsWithManyMoreOnOneSidePair)
{
    std::mt19937 random(3);
    const Keys one = AnyKeys(100000, 28, 50, random);
    Keys other;
    for (const SPairingKey &key : one) {
        other.push_back(key);
        if (random() % 10 == 0)
            other.push_back({.function = Any(28, random), .request = 99});
    }
    EXPECT_EQ(Count(one, other).pairs, one.size());
}

}  // namespace
