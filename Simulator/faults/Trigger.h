// When a step of a scenario takes place: on the n-th call of a function, on each n-th, or with a
// seeded probability.
//
//   CTrigger trigger(ReadWhen(json, "when"), seed);
//   if (trigger.Meets(function)) ...      // once for each call, before it is carried out
#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <string>

#include <nlohmann/json.hpp>

#include "Trace/dictionary/Functions.h"

struct SWhen
{
    const SFunction *function = nullptr;  // null: every function that reaches the DUT
    uint32_t call = 0;                    // on this call alone, from 1
    uint32_t every = 0;                   // on each so-many-th call
    std::optional<double> probability;
    std::string text;  // as it was given
};

// Exactly one of "call", "every" and "probability". Throws std::runtime_error.
SWhen ReadWhen(const nlohmann::json &json, const std::string &place);
// A function by its C name; "*", every one, is null.
const SFunction *ReadFunctionName(const std::string &name, const std::string &place);

class CTrigger
{
public:
    CTrigger(SWhen when, uint32_t seed) : m_when(std::move(when)), m_draw(seed) {}

    // Counts a call, and tells whether it is one that the condition names.
    bool Meets(const SFunction &function);
    // It will meet no more.
    bool IsOver() const { return m_when.call != 0 && m_calls >= m_when.call; }
    const SWhen &When() const { return m_when; }

private:
    SWhen m_when;
    uint32_t m_calls = 0;
    std::mt19937 m_draw;
};

// Whether a draw of a generator falls into a share of all draws.
inline bool IsWithin(std::mt19937 &draw, double probability)
{
    return static_cast<double>(draw()) < probability * 4294967296.0;
}
