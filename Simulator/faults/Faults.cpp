#include "Simulator/faults/Faults.h"

#include <algorithm>

#include "Simulator/basis/JsonReader.h"
#include "Simulator/basis/Results.h"
#include "Vond/VondCapabilityRecords.h"

namespace {

struct SKindRow
{
    const char *name;
    EFaultKind kind;
};

constexpr SKindRow kKinds[] = {
    {"fail", EFaultKind::Fail},         {"status", EFaultKind::Status},
    {"delay", EFaultKind::Delay},       {"nullText", EFaultKind::NullText},
    {"noise", EFaultKind::Noise},       {"bytes", EFaultKind::Bytes},
    {"powerCut", EFaultKind::PowerCut}, {"stuck", EFaultKind::Stuck},
};

constexpr uint32_t kLongestDelayMs = 3600000;
constexpr uint32_t kLargestAnswer = sizeof(SMMRfRouteDetailCnfV7);

EFaultKind ReadKind(CJsonReader &reader)
{
    const std::string name = reader.Text("kind", 63);
    for (const SKindRow &row : kKinds) {
        if (name == row.name)
            return row.kind;
    }
    CJsonReader::Fail(reader.Place("kind"), "\"" + name + "\" is an unknown kind");
}

const SFunction *ReadFunction(CJsonReader &reader)
{
    const std::string name = reader.Text("function", 63);
    if (name == "*")
        return nullptr;
    const SFunction *function = FindFunction(name);
    if (function == nullptr)
        CJsonReader::Fail(reader.Place("function"), "\"" + name + "\" is an unknown function");
    return function;
}

bool IsOfTheFlash(EFaultKind kind)
{
    return kind == EFaultKind::PowerCut || kind == EFaultKind::Stuck;
}

int HexDigit(char digit)
{
    static constexpr std::string_view kDigits = "0123456789abcdef";
    const std::size_t value = kDigits.find(digit);
    return value != kDigits.npos ? static_cast<int>(value) : -1;
}

std::vector<uint8_t> ReadHex(CJsonReader &reader, const char *key)
{
    const std::string text = reader.Text(key, 2 * kLargestAnswer);
    std::vector<uint8_t> bytes;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
        const int high = HexDigit(text[i]);
        const int low = HexDigit(text[i + 1]);
        if (high < 0 || low < 0)
            break;
        bytes.push_back(static_cast<uint8_t>(high * 16 + low));
    }
    if (bytes.empty() || bytes.size() * 2 != text.size())
        CJsonReader::Fail(reader.Place(key), "is not made of pairs of 0 to 9 and a to f");
    return bytes;
}

// A function that returns a text can show a null text or a delay, and no other fault.
bool CanShow(const SFunction &function, EFaultKind kind)
{
    const bool isText = function.kind == EFunctionKind::Library;
    switch (kind) {
    case EFaultKind::Fail:
    case EFaultKind::Noise:
    case EFaultKind::Bytes:
        return !isText;
    case EFaultKind::Status:
        return function.HasStatus();
    case EFaultKind::NullText:
        return isText;
    case EFaultKind::PowerCut:
    case EFaultKind::Stuck:
        return function.id == EFunction::SetCalData;
    case EFaultKind::Delay:
        break;
    }
    return true;
}

void ReadFlashFault(CJsonReader &reader, SFault &fault)
{
    fault.function = &FunctionOf(EFunction::SetCalData);
    if (fault.kind == EFaultKind::PowerCut)
        fault.cut = ReadPowerCut(reader);
    else
        fault.stuck = ReadStuckField(reader);
    reader.Done();
}

}  // namespace

SFault ParseFault(const nlohmann::json &json, const std::string &place)
{
    SFault fault;
    CJsonReader reader(json, place);
    fault.kind = ReadKind(reader);
    if (IsOfTheFlash(fault.kind)) {
        ReadFlashFault(reader, fault);
        return fault;
    }
    fault.function = ReadFunction(reader);
    if (fault.function != nullptr && !CanShow(*fault.function, fault.kind))
        CJsonReader::Fail(reader.Place("kind"),
                          "does not go with " + std::string(fault.function->name));
    if (fault.kind == EFaultKind::Fail) {
        fault.result = reader.Integer<int32_t>("result", INT32_MIN, INT32_MAX,
                                               static_cast<int32_t>(EResult::InjectedFault));
        if (fault.result == 0)
            CJsonReader::Fail(reader.Place("result"), "0 is success");
    }
    if (fault.kind == EFaultKind::Status)
        fault.status = reader.Integer<uint32_t>("status", 1, UINT32_MAX);
    if (fault.kind == EFaultKind::Delay)
        fault.delayMs = reader.Integer<uint32_t>("ms", 0, kLongestDelayMs);
    if (fault.kind == EFaultKind::Bytes) {
        fault.patch.offset = reader.Integer<uint32_t>("offset", 0, kLargestAnswer - 1, 0u);
        fault.patch.bytes = ReadHex(reader, "hex");
    }
    fault.nth = reader.Integer<uint32_t>("nth", 1, UINT32_MAX, 0u);
    if (reader.Has("probability"))
        fault.probability = reader.Real("probability", 0.0, 1.0);
    if (fault.nth != 0 && fault.probability)
        CJsonReader::Fail(reader.Place("nth"), "cannot stand beside \"probability\"");
    if (fault.kind == EFaultKind::Noise || fault.probability)
        fault.seed = reader.Integer<uint32_t>("seed", 0, UINT32_MAX, 1u);
    reader.Done();
    return fault;
}

void CFaultSet::SetProfileFaults(const std::vector<SFault> &faults)
{
    m_states.erase(std::remove_if(m_states.begin(), m_states.end(),
                                  [](const SState &state) { return state.ofProfile; }),
                   m_states.end());
    for (const SFault &fault : faults)
        m_states.push_back(NewState(fault, true));
}

void CFaultSet::Add(const SFault &fault)
{
    m_states.push_back(NewState(fault, false));
}

void CFaultSet::Clear()
{
    m_states.clear();
}

SFaultPlan CFaultSet::Plan(const SFunction &function)
{
    SFaultPlan plan;
    for (SState &state : m_states) {
        const SFault &fault = state.fault;
        if (fault.function != nullptr && fault.function->id != function.id)
            continue;
        if (!Fires(state) || !CanShow(function, fault.kind))
            continue;
        switch (fault.kind) {
        case EFaultKind::Fail:
            plan.result = fault.result;
            break;
        case EFaultKind::Status:
            plan.status = fault.status;
            break;
        case EFaultKind::Delay:
            plan.delayMs += fault.delayMs;
            break;
        case EFaultKind::NullText:
            plan.nullText = true;
            break;
        case EFaultKind::Noise:
            plan.noiseSeed = fault.seed + state.fired;
            break;
        case EFaultKind::Bytes:
            plan.patches.push_back(fault.patch);
            break;
        case EFaultKind::PowerCut:
        case EFaultKind::Stuck:
            break;  // see OfFlash
        }
    }
    return plan;
}

SFlashFaults CFaultSet::OfFlash() const
{
    SFlashFaults faults;
    for (const SState &state : m_states) {
        const SFault &fault = state.fault;
        if (fault.kind == EFaultKind::Stuck)
            faults.stuck.push_back(fault.stuck);
        if (fault.kind == EFaultKind::PowerCut && !state.isOver &&
            (!faults.cut || fault.cut.blocksBefore < faults.cut->blocksBefore))
            faults.cut = fault.cut;
    }
    return faults;
}

void CFaultSet::CountBlocks(uint32_t blocks, bool isCut)
{
    for (SState &state : m_states) {
        uint32_t &left = state.fault.cut.blocksBefore;
        left -= std::min(blocks, left);
        state.isOver = state.isOver || (isCut && left == 0);
    }
}

CFaultSet::SState CFaultSet::NewState(const SFault &fault, bool ofProfile)
{
    SState state;
    state.fault = fault;
    state.ofProfile = ofProfile;
    state.draw.seed(fault.seed);
    return state;
}

bool CFaultSet::Fires(SState &state)
{
    ++state.calls;
    bool fires = true;
    if (state.fault.nth != 0)
        fires = state.calls == state.fault.nth;
    else if (state.fault.probability)
        fires = static_cast<double>(state.draw()) < *state.fault.probability * 4294967296.0;
    if (fires)
        ++state.fired;
    return fires;
}
