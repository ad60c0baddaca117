// The radio's source of chance: a seeded sequence, the same on every machine.
//
// splitmix64 of our own, since the distributions of the standard library differ between its
// implementations. Value type of eight bytes, no locks; a copy goes on with the same sequence.
//
//   CNoise noise(profile.radio.seed);
//   const double reading = power + 0.2 * noise.Bell();   // dB, never more than 0.2 off
#pragma once

#include <cstdint>

class CNoise
{
public:
    explicit CNoise(uint64_t seed = 1) : m_state(seed) {}

    // From 0 up to, but not including, 1; all alike.
    double Uniform();
    // Within -1 and 1, around 0 most: the mean of three uniform draws.
    double Bell();

private:
    uint64_t m_state;
};
