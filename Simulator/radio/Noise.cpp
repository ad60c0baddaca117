#include "Simulator/radio/Noise.h"

double CNoise::Uniform()
{
    m_state += 0x9e3779b97f4a7c15u;
    uint64_t mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebu;
    mixed ^= mixed >> 31;
    return static_cast<double>(mixed >> 11) / 9007199254740992.0;  // 2^53
}

double CNoise::Bell()
{
    double sum = 0.0;
    for (int i = 0; i < 3; ++i)
        sum += 2.0 * Uniform() - 1.0;
    return sum / 3.0;
}
