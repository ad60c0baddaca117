// The packer of rounds: limits, order, whole routes, and as few rounds as the order allows.
#include "Operations/calibration/CalRounds.h"

#include <random>

#include <gtest/gtest.h>

#include "Support/Log.h"
#include "tests/common/LogCapture.h"

namespace {

struct SRoute
{
    int part;
    uint16_t number;
    int blocks;
};

// What went out, by round.
class CRoundLog
{
public:
    explicit CRoundLog(std::vector<int> limits, uint32_t failAt = 0)
        : m_limits(limits), m_rounds(limits, " start download....", [this, failAt](int number) {
              EXPECT_EQ(number, static_cast<int>(m_sent.size()) + 1);
              m_sent.push_back(m_open);
              m_open.clear();
              return m_sent.size() == failAt ? 203u : 0u;
          })
    {
    }

    uint32_t Pack(const std::vector<SRoute> &routes)
    {
        for (const SRoute &route : routes) {
            if (uint32_t code = m_rounds.MakeRoom(route.part, route.number, route.blocks))
                return code;
            const CCalRounds::SPlace place = m_rounds.Add(route.part, route.blocks);
            EXPECT_EQ(place.entry, Sum(route.part, [](const SRoute &) { return 1; }));
            EXPECT_EQ(place.block, Sum(route.part, [](const SRoute &r) { return r.blocks; }));
            m_open.push_back(route);
            EXPECT_LT(place.entry, m_limits[route.part]);
            EXPECT_LE(place.block + route.blocks, m_limits[route.part]);
        }
        return m_rounds.SendRest();
    }

    const std::vector<std::vector<SRoute>> &Sent() const { return m_sent; }
    const CCalRounds &Rounds() const { return m_rounds; }

private:
    template <typename Measure>
    int Sum(int part, Measure measure) const
    {
        int sum = 0;
        for (const SRoute &route : m_open)
            sum += route.part == part ? measure(route) : 0;
        return sum;
    }

    std::vector<int> m_limits;
    std::vector<SRoute> m_open;
    std::vector<std::vector<SRoute>> m_sent;
    CCalRounds m_rounds;
};

std::vector<SRoute> Flat(const std::vector<std::vector<SRoute>> &rounds)
{
    std::vector<SRoute> all;
    for (const auto &round : rounds)
        all.insert(all.end(), round.begin(), round.end());
    return all;
}

bool Fits(const std::vector<SRoute> &routes, size_t first, size_t end,
          const std::vector<int> &limits)
{
    std::vector<int> blocks(limits.size());
    std::vector<int> entries(limits.size());
    for (size_t i = first; i < end; ++i) {
        blocks[routes[i].part] += routes[i].blocks;
        ++entries[routes[i].part];
    }
    for (size_t part = 0; part < limits.size(); ++part) {
        if (blocks[part] > limits[part] || entries[part] > limits[part])
            return false;
    }
    return true;
}

// The least number of rounds that keeps the order, by trying every place for every cut.
size_t LeastRounds(const std::vector<SRoute> &routes, const std::vector<int> &limits)
{
    std::vector<size_t> least(routes.size() + 1, routes.size() + 1);
    least[0] = 0;
    for (size_t end = 1; end <= routes.size(); ++end) {
        for (size_t first = 0; first < end; ++first) {
            if (Fits(routes, first, end, limits))
                least[end] = std::min(least[end], least[first] + 1);
        }
    }
    return least[routes.size()];
}

bool IsSame(const SRoute &a, const SRoute &b)
{
    return a.part == b.part && a.number == b.number && a.blocks == b.blocks;
}

void CheckPacking(const std::vector<SRoute> &routes, const std::vector<int> &limits)
{
    CRoundLog log(limits);
    ASSERT_EQ(log.Pack(routes), 0u);
    const std::vector<SRoute> sent = Flat(log.Sent());
    ASSERT_TRUE(std::equal(sent.begin(), sent.end(), routes.begin(), routes.end(), IsSame))
        << "a route is lost, split or out of order";
    for (const auto &round : log.Sent()) {
        ASSERT_FALSE(round.empty());
        ASSERT_TRUE(Fits(round, 0, round.size(), limits));
    }
    ASSERT_EQ(log.Sent().size(), LeastRounds(routes, limits));
    ASSERT_EQ(log.Rounds().Sent(), static_cast<int>(log.Sent().size()));
}

std::vector<SRoute> RandomRoutes(std::mt19937 &random, const std::vector<int> &limits)
{
    std::vector<SRoute> routes;
    for (int part = 0; part < static_cast<int>(limits.size()); ++part) {
        const int count = static_cast<int>(random() % 101);
        const int most = std::min(4, limits[part]);
        for (int i = 0; i < count; ++i) {
            const int blocks = static_cast<int>(random() % static_cast<unsigned>(most + 1));
            routes.push_back({part, static_cast<uint16_t>(i), blocks});
        }
    }
    return routes;
}

}  // namespace

TEST(CalRounds, RandomRoutesKeepLimitsAndOrderInTheFewestRounds)
{
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        for (const std::vector<int> &limits :
             {std::vector<int>{135}, std::vector<int>{55, 3}, std::vector<int>{4, 4}}) {
            CheckPacking(RandomRoutes(random, limits), limits);
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}

TEST(CalRounds, FullRoundTakesExactlyItsLimit)
{
    std::vector<SRoute> routes(135, {0, 1, 1});
    CRoundLog full({135});
    EXPECT_EQ(full.Pack(routes), 0u);
    EXPECT_EQ(full.Sent().size(), 1u);
    routes.push_back({0, 2, 1});
    CRoundLog over({135});
    EXPECT_EQ(over.Pack(routes), 0u);
    ASSERT_EQ(over.Sent().size(), 2u);
    EXPECT_EQ(over.Sent()[1].size(), 1u);
}

TEST(CalRounds, FourType2BlocksOverTwoRoutesGoInTwoRounds)
{
    CRoundLog log({55, 3});
    EXPECT_EQ(log.Pack({{1, 101, 2}, {1, 102, 2}}), 0u);
    ASSERT_EQ(log.Sent().size(), 2u);
    EXPECT_EQ(log.Sent()[0][0].number, 101);
    EXPECT_EQ(log.Sent()[1][0].number, 102);
}

TEST(CalRounds, RoundHoldsBothKindsTogether)
{
    CRoundLog log({55, 3});
    EXPECT_EQ(log.Pack({{0, 1, 4}, {1, 101, 3}}), 0u);
    EXPECT_EQ(log.Sent().size(), 1u);
}

TEST(CalRounds, RoutesWithoutABlockStayWithinTheEntries)
{
    CRoundLog log({55, 3});
    EXPECT_EQ(log.Pack({{1, 1, 0}, {1, 2, 0}, {1, 3, 0}, {1, 4, 0}}), 0u);
    ASSERT_EQ(log.Sent().size(), 2u);
    EXPECT_EQ(log.Sent()[0].size(), 3u);
}

TEST(CalRounds, NothingSendsNoRound)
{
    CRoundLog log({55, 3});
    EXPECT_EQ(log.Pack({}), 0u);
    EXPECT_TRUE(log.Sent().empty());
}

TEST(CalRounds, FailedRoundEndsThePackingWithItsCode)
{
    CRoundLog log({3}, 2);
    EXPECT_EQ(log.Pack({{0, 1, 3}, {0, 2, 3}, {0, 3, 3}, {0, 4, 3}}), 203u);
    EXPECT_EQ(log.Sent().size(), 2u);
    CRoundLog last({3}, 1);
    EXPECT_EQ(last.Pack({{0, 1, 3}}), 203u) << "the rest's code is lost";
}

TEST(CalRounds, LogTellsTotalsSwitchAndStart)
{
    const LogCapture capture(lcCalibration());
    CRoundLog log({3});
    EXPECT_EQ(log.Pack({{0, 7, 2}, {0, 8, 3}}), 0u);
    const QStringList expected = {"    current total blk num = 0, to be added blk num = 2",
                                  "    current total blk num = 2, to be added blk num = 3",
                                  "        over limitation:  switch route8 to next round",
                                  "-----> total blk num: 2 start download....",
                                  "-----> total blk num: 3 start download...."};
    EXPECT_EQ(capture.Lines(QtDebugMsg), expected);
}
