// Pairs the calls of two traces by a longest common subsequence of their functions, so that one call
// more on a side does not shift the rest. Of all such pairings it looks for one in which most pairs have
// the same request, too.
//
//   const SPairingKey one[] = {{0, 7}, {1, 8}};
//   const SPairingKey other[] = {{1, 8}};
//   PairCalls(one, other)   // {0, none}, {1, 0}
//
// Memory is linear in the calls. Time is their product by 64, so that 100,000 calls on each side take a
// second or two, however much they differ.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// Calls pair when their functions are equal. Equal requests of a function have one number.
struct SPairingKey
{
    uint32_t function = 0;
    uint32_t request = 0;

    bool operator==(const SPairingKey &) const = default;
};

// Places in the two sequences; none: the other one has no such call.
struct SPairing
{
    std::optional<std::size_t> one;
    std::optional<std::size_t> other;

    bool operator==(const SPairing &) const = default;
};

// All calls of both, each in its order.
std::vector<SPairing> PairCalls(std::span<const SPairingKey> one,
                                std::span<const SPairingKey> other);
