// Numbers, durations and sweeps as plans write them.
//
//   ParseNumber("-75.5")              // -75.5
//   ParseDuration("1.5h")             // 5400000 ms
//   ExpandRange("0", "1", "0.25")     // {"0", "0.25", "0.50", "0.75", "1.00"}
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// A decimal number as a whole; nothing for anything else, infinity and NaN included.
std::optional<double> ParseNumber(const std::string &text);

// The whole text as a number without a sign, at most most.
std::optional<int> ParseCount(const std::string &text, int most);

constexpr std::chrono::hours kLongestDuration(500);
constexpr char kDurationForms[] = "a number with ms, s, min or h, such as 30s; 500h at most";

// "500ms", "30s", "2min", "1h", decimals too.
std::optional<std::chrono::milliseconds> ParseDuration(const std::string &text);

constexpr std::size_t kMostSweepValues = 10000;

// From, in steps, while the value does not pass to. The texts are exact decimals with as many places as
// from and step have. Nothing if a text is no decimal number of at most 15 digits, the step leads away
// from to or is 0, or there are more than kMostSweepValues; error says which.
std::optional<std::vector<std::string>> ExpandRange(const std::string &from, const std::string &to,
                                                    const std::string &step, std::string &error);
