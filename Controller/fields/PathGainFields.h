// Which document member is which gain of a record.
//
// Three records carry gains in the same two layouts: the continuous RX command, the RSSI command
// and the answer to a gain search. The single path layout holds main and div of the path in use;
// the simultaneous layout holds both paths and their gain indexes. The members are named by path
// ("path1DivRfGain"), so a row of the single path layout has a name a path.
//
// Gains is the union of the two layouts. Rows are for reading and writing.
//
//   for (const auto &row : kSingleRfGains<UMMRssiGainV7>)
//       gains.single.*row.gain = FixedPoint(values.Text(row.member[path]), kGainScale);
#pragma once

#include <cstdint>

constexpr int kPathCount = 2;

template <typename Gains>
using SingleGains = decltype(Gains::single);
template <typename Gains>
using BothGains = decltype(Gains::simultaneous);

template <typename Gains>
struct SSingleGain
{
    const char *member[kPathCount];
    int16_t SingleGains<Gains>::*gain;  // dB, 1/32 dB
};

template <typename Gains>
struct SBothGain
{
    const char *member;
    int16_t BothGains<Gains>::*gain;  // dB, 1/32 dB
};

template <typename Gains>
struct SGainIndex
{
    const char *member;
    uint8_t BothGains<Gains>::*index;
};

template <typename Gains>
constexpr SSingleGain<Gains> kSingleRfGains[] = {
    {{"path0MainRfGain", "path1MainRfGain"}, &SingleGains<Gains>::mainRfGain},
    {{"path0DivRfGain", "path1DivRfGain"}, &SingleGains<Gains>::divRfGain},
};

template <typename Gains>
constexpr SSingleGain<Gains> kSingleDigitalGains[] = {
    {{"path0MainDigtalGain", "path1MainDigtalGain"}, &SingleGains<Gains>::mainDigitalGain},
    {{"path0DivDigtalGain", "path1DivDigtalGain"}, &SingleGains<Gains>::divDigitalGain},
};

template <typename Gains>
constexpr SBothGain<Gains> kBothRfGains[] = {
    {"path0MainRfGain", &BothGains<Gains>::path0MainRfGain},
    {"path0DivRfGain", &BothGains<Gains>::path0DivRfGain},
    {"path1MainRfGain", &BothGains<Gains>::path1MainRfGain},
    {"path1DivRfGain", &BothGains<Gains>::path1DivRfGain},
};

template <typename Gains>
constexpr SBothGain<Gains> kBothDigitalGains[] = {
    {"path0MainDigtalGain", &BothGains<Gains>::path0MainDigitalGain},
    {"path0DivDigtalGain", &BothGains<Gains>::path0DivDigitalGain},
    {"path1MainDigtalGain", &BothGains<Gains>::path1MainDigitalGain},
    {"path1DivDigtalGain", &BothGains<Gains>::path1DivDigitalGain},
};

template <typename Gains>
constexpr SGainIndex<Gains> kGainIndexes[] = {
    {"path0MainGainIdx", &BothGains<Gains>::path0MainGainIdx},
    {"path0DivGainIdx", &BothGains<Gains>::path0DivGainIdx},
    {"path1MainGainIdx", &BothGains<Gains>::path1MainGainIdx},
    {"path1DivGainIdx", &BothGains<Gains>::path1DivGainIdx},
};
