// One fault: what goes wrong on demand, in any function, always or on the n-th call or with a seeded
// probability. The JSON form is told in docs/simulated-dut.md.
//
//   const SFault fault = ParseFault(json::parse(R"({"function": "*", "kind": "delay", "ms": 5})"), "fault");
#pragma once

#include <cstdint>
#include <optional>
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

bool IsOfTheFlash(EFaultKind kind);
// A function that returns a text can show a null text or a delay, and no other fault.
bool CanShow(const SFunction &function, EFaultKind kind);
// What a fault does to a call on which it fires, the firedCount-th time.
void LayInto(SFaultPlan &plan, const SFault &fault, uint32_t firedCount);
