// The simulated DUT's own C interface: what steers the running DUT and tells its state.

#include "Simulator/VondSim.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>

#include "Simulator/basis/JsonText.h"
#include "Simulator/door/Errors.h"
#include "Simulator/door/FlashInfo.h"
#include "Simulator/door/Simulator.h"
#include "Simulator/profile/ProfileJson.h"
#include "Simulator/profile/ProfileRadio.h"
#include "Simulator/scenario/BuiltinScenarios.h"
#include "Simulator/scenario/StateText.h"

namespace {

constexpr char kNothingChanged[] = "; nothing is changed";

std::string Given(const char *text)
{
    return text != nullptr ? text : "";
}

// As much as there is room for, with a zero behind it; the whole length.
uint32_t CopyText(const std::string &from, char *text, uint32_t size)
{
    if (text != nullptr && size > 0) {
        const std::size_t count = std::min<std::size_t>(from.size(), size - 1);
        std::memcpy(text, from.data(), count);
        text[count] = '\0';
    }
    return static_cast<uint32_t>(from.size());
}

template <class Job>
auto WithDut(const Job &job)
{
    return CSimulator::Instance().WithDut(job);
}

uint64_t ElapsedNs(std::chrono::steady_clock::time_point start)
{
    const auto passed = std::chrono::steady_clock::now() - start;
    return static_cast<uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(passed).count());
}

void TellRadio(SDut &dut, SVondSimRadioState &state)
{
    state.isPlugged = dut.profile.plugged ? 1 : 0;
    const ERunningTest test = dut.radio.Running();
    if (test == ERunningTest::None)
        return;
    const SRadioUse &use = dut.radio.Use();
    std::snprintf(state.test, sizeof(state.test), "%s", TestName(test));
    state.band = use.band;
    state.route = use.route;
    state.isReceiving = use.downlink != 0 ? 1 : 0;
    state.downlinkKhz = use.downlink;
    state.elapsedNs = ElapsedNs(use.start);
    if (!use.isTransmitting)
        return;
    state.isTransmitting = 1;
    state.uplinkKhz = use.tx.kHz;
    state.powerDbm = use.txPower;
    state.outputDbm = dut.Calibration().Output(use.tx, use.txPower).power;
}

SVondSimFault TellFault(const SFaultRow &row)
{
    const SFault &fault = row.fault;
    SVondSimFault told = {};
    told.id = row.id;
    told.source = static_cast<int32_t>(row.source);
    told.isOn = row.isOn ? 1 : 0;
    told.isOver = row.isOver ? 1 : 0;
    told.callCount = row.callCount;
    told.firedCount = row.firedCount;
    const bool isOfFlash = fault.kind == EFaultKind::PowerCut || fault.kind == EFaultKind::Stuck;
    const std::string function =
        fault.function != nullptr ? std::string(fault.function->name) : std::string("*");
    CopyText(isOfFlash ? std::string() : function, told.function, sizeof(told.function));
    CopyText(FaultKindName(fault.kind), told.kind, sizeof(told.kind));
    return told;
}

// For a change that an unknown id makes impossible.
template <class Job>
int32_t ChangeFault(uint32_t id, const Job &job)
{
    if (WithDut([&](SDut &dut) { return job(dut.faults); }))
        return 0;
    return ReportError(("there is no fault " + std::to_string(id)).c_str(), kNothingChanged);
}

}  // namespace

#pragma GCC visibility push(default)
extern "C" {

int32_t VondSim_CheckProfile(const char *nameOrPath)
{
    return Guarded(kNothingChanged, [&] {
        const std::string name = Given(nameOrPath);
        ParseProfile(ReadProfileText(name), name);
    });
}

uint32_t VondSim_Band(uint32_t index)
{
    return WithDut([&](SDut &dut) {
        return index < dut.profile.bands.size() ? uint32_t{dut.profile.bands[index].band} : 0U;
    });
}

int32_t VondSim_IsPlugged(void)
{
    return WithDut([](SDut &dut) { return dut.profile.plugged ? 1 : 0; });
}

void VondSim_GetRadioState(SVondSimRadioState *state)
{
    if (state == nullptr)
        return;
    *state = {};
    WithDut([&](SDut &dut) { TellRadio(dut, *state); });
}

uint32_t VondSim_GetRadioText(char *text, uint32_t size)
{
    return CopyText(WithDut([](SDut &dut) { return RadioJson(dut.profile.radio).dump(); }), text,
                    size);
}

int32_t VondSim_SetRadio(const char *json)
{
    return Guarded(kNothingChanged, [&] {
        if (json == nullptr)
            return WithDut([](SDut &dut) { dut.SetOwnRadio(); });
        const nlohmann::json changes = ParseJsonText(json);
        WithDut([&](SDut &dut) { dut.ChangeRadio(changes); });
    });
}

uint32_t VondSim_GetFlashFile(char *path, uint32_t size)
{
    const std::string file = WithDut([](SDut &dut) {
        dut.flash.Image(dut.profile);
        return dut.flash.Path();
    });
    return CopyText(file, path, size);
}

int32_t VondSim_GetFlashItem(uint32_t index, SVondSimFlashItem *item)
{
    return item != nullptr && WithDut([&](SDut &dut) {
               return TellFlashItem(dut.profile, dut.flash, index, *item);
           })
               ? 0
               : -1;
}

uint32_t VondSim_FlashRecordCount(void)
{
    return WithDut([](SDut &dut) { return FlashRecordCount(dut.profile, dut.flash); });
}

int32_t VondSim_GetFlashRecord(uint32_t index, SVondSimFlashRecord *record)
{
    return record != nullptr && WithDut([&](SDut &dut) {
               return TellFlashRecord(dut.profile, dut.flash, index, *record);
           })
               ? 0
               : -1;
}

int32_t VondSim_RestoreFlash(void)
{
    if (WithDut([](SDut &dut) { return dut.flash.Restore(dut.profile); }))
        return 0;
    return ReportError("the file of the flash cannot be written", kNothingChanged);
}

void VondSim_FailNextCall(int32_t result)
{
    const std::string text =
        R"({"function": "*", "kind": "fail", "result": )" +
        std::to_string(result != 0 ? result : static_cast<int32_t>(EResult::InjectedFault)) + "}";
    const SFault fault = ParseFault(nlohmann::json::parse(text), "fault");
    WithDut([&](SDut &dut) { dut.faults.AddOnce(fault); });
}

uint32_t VondSim_FaultCount(void)
{
    return WithDut([](SDut &dut) { return static_cast<uint32_t>(dut.faults.Count()); });
}

int32_t VondSim_GetFault(uint32_t index, SVondSimFault *fault)
{
    return WithDut([&](SDut &dut) {
        if (fault == nullptr || index >= dut.faults.Count())
            return -1;
        *fault = TellFault(dut.faults.Row(index));
        return 0;
    });
}

uint32_t VondSim_GetFaultText(uint32_t id, char *text, uint32_t size)
{
    const std::string found = WithDut([&](SDut &dut) {
        for (std::size_t i = 0; i < dut.faults.Count(); ++i) {
            const SFaultRow row = dut.faults.Row(i);
            if (row.id == id)
                return row.fault.text;
        }
        return std::string();
    });
    return CopyText(found, text, size);
}

int32_t VondSim_SetFault(uint32_t id, const char *json)
{
    return Guarded(kNothingChanged, [&] {
        const SFault fault = ParseFault(ParseJsonText(Given(json)), "fault");
        if (!WithDut([&](SDut &dut) { return dut.faults.Replace(id, fault); }))
            throw std::runtime_error("there is no fault " + std::to_string(id));
    });
}

int32_t VondSim_SwitchFault(uint32_t id, int32_t isOn)
{
    return ChangeFault(id, [&](CFaultSet &faults) { return faults.Switch(id, isOn != 0); });
}

int32_t VondSim_RemoveFault(uint32_t id)
{
    return ChangeFault(id, [&](CFaultSet &faults) { return faults.Remove(id); });
}

int32_t VondSim_SetScenario(const char *nameOrPath)
{
    return Guarded(kNothingChanged, [&] { CSimulator::Instance().SetScenario(Given(nameOrPath)); });
}

int32_t VondSim_SetScenarioText(const char *json)
{
    return Guarded(kNothingChanged, [&] { CSimulator::Instance().SetScenarioText(Given(json)); });
}

int32_t VondSim_AddStep(const char *json)
{
    return Guarded(kNothingChanged, [&] {
        const SScenarioStep step = ParseStep(ParseJsonText(Given(json)), "step");
        WithDut([&](SDut &dut) { dut.AddStep(step); });
    });
}

const char *VondSim_ScenarioName(uint32_t index)
{
    const SBuiltinScenario *scenario = BuiltinScenario(index);
    return scenario != nullptr ? scenario->name : nullptr;
}

const char *VondSim_BuiltinScenarioText(const char *name)
{
    const std::string wanted = Given(name);
    for (std::size_t i = 0; const SBuiltinScenario *scenario = BuiltinScenario(i); ++i) {
        if (wanted == scenario->name)
            return scenario->text;
    }
    return nullptr;
}

uint32_t VondSim_GetScenarioText(char *text, uint32_t size)
{
    return CopyText(WithDut([](SDut &dut) { return dut.scenario.Text(); }), text, size);
}

uint32_t VondSim_GetStateAsScenario(const char *name, const char *about, char *text, uint32_t size)
{
    const std::string state = WithDut([&](SDut &dut) {
        return StateText({.name = Given(name),
                          .about = Given(about),
                          .ownRadio = dut.ownRadio,
                          .radio = dut.profile.radio,
                          .isOwnPlugged = dut.isOwnPlugged,
                          .isPlugged = dut.profile.plugged,
                          .faults = dut.faults,
                          .scenario = dut.scenario});
    });
    return CopyText(state, text, size);
}

uint32_t VondSim_GetError(char *text, uint32_t size)
{
    return CopyText(LastError(), text, size);
}

}  // extern "C"
#pragma GCC visibility pop
