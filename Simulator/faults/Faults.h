// Faults: what goes wrong on demand, in any function, always or on the n-th call or with a seeded
// probability. The JSON form is told in docs/simulated-dut.md.
//
// All faults that fire on a call apply together; of two that set the same thing the one added last
// wins, and delays add up. CFaultSet has no lock: its owner keeps calls apart.
//
//   faults.Add(ParseFault(json::parse(R"({"function": "*", "kind": "delay", "ms": 5})"), "fault"));
//   const SFaultPlan plan = faults.Plan(FunctionOf(EFunction::ContRx));
#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "Simulator/faults/FlashFaults.h"
#include "Trace/dictionary/Functions.h"

enum class EFaultKind
{
    Fail,
    Status,
    Delay,
    NullText,
    Noise,
    Bytes,
    PowerCut,
    Stuck
};

// Bytes that are laid over an answer.
struct SPatch
{
    uint32_t offset = 0;
    std::vector<uint8_t> bytes;
};

struct SFault
{
    const SFunction *function = nullptr;  // null: every function
    EFaultKind kind = EFaultKind::Fail;
    int32_t result = 0;    // Fail
    uint32_t status = 0;   // Status
    uint32_t delayMs = 0;  // Delay
    uint32_t seed = 1;     // Noise, and the draw of a probability
    SPatch patch;          // Bytes
    SPowerCut cut;         // PowerCut
    SStuckField stuck;     // Stuck
    uint32_t nth = 0;      // fires on this call only, counted from 1; 0: on every call
    std::optional<double> probability;
};

// What the faults do to one call.
struct SFaultPlan
{
    std::optional<int32_t> result;
    std::optional<uint32_t> status;
    uint64_t delayMs = 0;
    bool nullText = false;
    std::optional<uint32_t> noiseSeed;
    std::vector<SPatch> patches;  // in the order in which they were added
};

// Throws std::runtime_error for an unknown key, kind or function, or a kind that the function
// cannot show; place opens the text.
SFault ParseFault(const nlohmann::json &json, const std::string &place);

class CFaultSet
{
public:
    // A profile's own faults go when another profile comes, added ones stay.
    void SetProfileFaults(const std::vector<SFault> &faults);
    void Add(const SFault &fault);
    void Clear();

    // Counts a call of the function and tells what the faults do to it.
    SFaultPlan Plan(const SFunction &function);
    // What they do to the next download.
    SFlashFaults OfFlash() const;
    // So many blocks of a download were written as a whole; a cut that came then is over.
    void CountBlocks(uint32_t blocks, bool isCut);

private:
    struct SState
    {
        SFault fault;
        bool ofProfile;
        uint32_t calls = 0;
        uint32_t fired = 0;
        bool isOver = false;  // of a power cut
        std::mt19937 draw;
    };

    static SState NewState(const SFault &fault, bool ofProfile);
    static bool Fires(SState &state);

    std::vector<SState> m_states;
};
