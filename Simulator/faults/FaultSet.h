// The faults in force.
//
// All faults that fire on a call apply together; of two that set the same thing the one added last
// wins, and delays add up. No lock: the owner keeps calls apart.
//
// A fault of a scenario has a condition in place of "nth" and "probability": it strikes the call that
// meets it or, of another function, that function's next call. One of the flash is in force from then.
//
//   faults.Add(fault);
//   const SFaultPlan plan = faults.Plan(FunctionOf(EFunction::ContRx));
#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <vector>

#include "Simulator/faults/Fault.h"
#include "Simulator/faults/Trigger.h"

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
