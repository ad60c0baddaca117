// Turns: who is next, and who gives way.
#include "Support/Turns.h"

#include <atomic>
#include <future>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// What the threads did, in order; written by whoever has the turn.
class TurnsTest : public ::testing::Test
{
protected:
    std::future<void> Waits(const std::string &name)
    {
        auto asks = std::make_shared<std::promise<void>>();
        std::future<void> asked = asks->get_future();
        auto ended = std::async(std::launch::async, [this, name, asks] {
            asks->set_value();
            const CLockSentry turn(m_turns);
            m_order.push_back(name);
        });
        asked.wait();
        return ended;
    }
    std::future<void> Takes(std::shared_ptr<CTurns::CPlace> place, const std::string &name)
    {
        return std::async(std::launch::async, [this, name, place = std::move(place)]() mutable {
            place->Take();
            m_order.push_back(name);
            place.reset();  // the future would keep it, and the turn with it
        });
    }
    bool IsFree()
    {
        return std::async(std::launch::async,
                          [this] {
                              if (!m_turns.TryLock())
                                  return false;
                              m_turns.Unlock();
                              return true;
                          })
            .get();
    }

    CTurns m_turns;
    std::vector<std::string> m_order;
};

using Order = std::vector<std::string>;

TEST_F(TurnsTest, OneThreadAtATimeWhichMayLockAgain)
{
    m_turns.Lock();
    m_turns.Lock();
    EXPECT_TRUE(m_turns.TryLock());
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(IsFree());
        m_turns.Unlock();
    }
    EXPECT_TRUE(IsFree());
}

TEST_F(TurnsTest, LockKeepsOtherThreadsOut)
{
    int count = 0;
    const auto add = [&] {
        for (int i = 0; i < 10000; ++i) {
            const CLockSentry turn(m_turns);
            ++count;
        }
    };
    auto first = std::async(std::launch::async, add);
    auto second = std::async(std::launch::async, add);
    first.get();
    second.get();
    EXPECT_EQ(count, 20000);
}

TEST_F(TurnsTest, PlaceComesBeforeThoseWhoWaitedLonger)
{
    m_turns.Lock();
    auto waits = Waits("waiter");
    auto place = std::make_shared<CTurns::CPlace>(m_turns);
    m_turns.Unlock();
    EXPECT_FALSE(IsFree());  // reserved for the place, which nobody has taken yet
    auto takes = Takes(std::move(place), "place");
    takes.get();
    waits.get();
    EXPECT_EQ(m_order, (Order{"place", "waiter"}));
    EXPECT_TRUE(IsFree());
}

TEST_F(TurnsTest, PlaceThatNobodyTakesIsGivenBack)
{
    {
        const CTurns::CPlace place(m_turns);
        EXPECT_FALSE(IsFree());
    }
    EXPECT_TRUE(IsFree());
}

TEST_F(TurnsTest, WhoGivesWayGoesOnBehindThePlacesAndBeforeAllOthers)
{
    m_turns.Lock();
    m_turns.Lock();
    auto waits = Waits("waiter");
    m_turns.GiveWay();  // to nobody
    EXPECT_TRUE(m_order.empty());
    auto takes = Takes(std::make_shared<CTurns::CPlace>(m_turns), "place");
    m_turns.GiveWay();
    m_order.push_back("giver");
    EXPECT_EQ(m_order, (Order{"place", "giver"}));
    m_turns.Unlock();
    EXPECT_FALSE(IsFree());  // as deep in its turn as before
    m_turns.Unlock();
    takes.get();
    waits.get();
    EXPECT_EQ(m_order, (Order{"place", "giver", "waiter"}));
}

TEST_F(TurnsTest, TwoPlacesComeOneAfterTheOther)
{
    m_turns.Lock();
    auto one = Takes(std::make_shared<CTurns::CPlace>(m_turns), "place");
    auto other = Takes(std::make_shared<CTurns::CPlace>(m_turns), "place");
    auto waits = Waits("waiter");
    m_turns.Unlock();
    one.get();
    other.get();
    waits.get();
    EXPECT_EQ(m_order, (Order{"place", "place", "waiter"}));
}

}  // namespace
