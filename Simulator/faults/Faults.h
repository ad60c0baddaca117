// Faults: what goes wrong on demand, in any function, always or on the n-th call or with a seeded
// probability. The JSON form is told in docs/simulated-dut.md.
//
// All faults that fire on a call apply together; of two that set the same thing the one added last
// wins, and delays add up. CFaultSet has no lock: its owner keeps calls apart.
//
// A fault of a scenario has a condition in place of "nth" and "probability": it strikes the call that
// meets it or, of another function, that function's next call. One of the flash is in force from then.
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
#include "Simulator/faults/Trigger.h"
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
    std::string text;  // as it was given
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

const char *FaultKindName(EFaultKind kind);

enum class EFaultSource
{
    Added = 0,
    Profile = 1,
    Scenario = 2
};

// A fault in force, as it stands.
struct SFaultRow
{
    uint32_t id = 0;  // from 1, never given twice
    EFaultSource source = EFaultSource::Added;
    bool isOn = true;
    bool isOver = false;     // it can't fire any more
    uint32_t callCount = 0;  // calls that it was asked about
    uint32_t firedCount = 0;
    SFault fault;
    std::optional<SWhen> when;  // of a scenario's step
};

class CFaultSet
{
public:
    // A profile's own faults go when another profile comes, added ones stay.
    void SetProfileFaults(const std::vector<SFault> &faults);
    void Add(const SFault &fault, EFaultSource source = EFaultSource::Added,
             std::optional<CTrigger> trigger = std::nullopt);
    // Goes as soon as it has fired.
    void AddOnce(const SFault &fault);
    void Clear();
    void RemoveOf(EFaultSource source);

    // In the order in which they were added.
    std::size_t Count() const { return m_states.size(); }
    SFaultRow Row(std::size_t index) const;
    // False for an unknown id. Another fault keeps place, switch and condition, and counts anew.
    bool Replace(uint32_t id, const SFault &fault);
    bool Switch(uint32_t id, bool isOn);
    bool Remove(uint32_t id);

    // Counts a call of the function and tells what the faults do to it.
    SFaultPlan Plan(const SFunction &function);
    // What they do to the next download.
    SFlashFaults OfFlash() const;
    // So many blocks of a download were written as a whole; a cut that came then is over.
    void CountBlocks(uint32_t blocks, bool isCut);

private:
    struct SState
    {
        SFaultRow row;
        std::optional<CTrigger> trigger;
        bool isArmed = false;  // by its trigger
        bool isOnce = false;
        uint32_t blocksLeft = 0;  // until the power is cut
        bool isCutDone = false;
        std::mt19937 draw;
    };

    static void Begin(SState &state, const SFault &fault);
    static void Arm(SState &state);
    static bool Fires(SState &state);
    static bool IsOver(const SState &state);
    static bool IsInForce(const SState &state);
    SState &Append(const SFault &fault, EFaultSource source);
    SState *Find(uint32_t id);

    std::vector<SState> m_states;
    uint32_t m_lastId = 0;
};
