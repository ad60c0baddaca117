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

    // Even from 0 to 1, without 1.
    double Uniform();
    // From -1 to 1, most often near 0: the mean of three even draws.
    double Bell();

private:
    uint64_t m_state;
};
