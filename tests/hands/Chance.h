// The campaign's chance: the same numbers from the same seed, on every machine.
//
//   CChance chance(7);
//   const int die = chance.Below(6);   // 0 to 5
#pragma once

#include <cstdint>

#include <QList>

class CChance
{
public:
    explicit CChance(uint64_t seed) : m_state(seed) {}

    // 0 to limit - 1; limit above 0.
    int Below(int limit) { return static_cast<int>(Next() % static_cast<uint64_t>(limit)); }
    bool OneIn(int count) { return Below(count) == 0; }
    // One of a list or an array that is not empty.
    template <typename List>
    auto Of(const List &list) -> decltype(*std::begin(list))
    {
        return *(std::begin(list) + Below(static_cast<int>(std::size(list))));
    }

private:
    // SplitMix64.
    uint64_t Next()
    {
        uint64_t z = (m_state += 0x9e3779b97f4a7c15u);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }

    uint64_t m_state;
};
