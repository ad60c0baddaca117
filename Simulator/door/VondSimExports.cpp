// The simulated DUT's own C interface.

#include "Simulator/VondSim.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "Simulator/basis/JsonText.h"
#include "Simulator/door/Errors.h"
#include "Simulator/door/Simulator.h"
#include "Simulator/profile/BuiltinProfiles.h"

namespace {

constexpr char kUnplugged[] = "; the DUT is unplugged";

std::string TextOf(const char *text)
{
    return text != nullptr ? text : "";
}

const SFunction *Known(const char *function)
{
    const SFunction *row = FindFunction(TextOf(function));
    if (row == nullptr)
        std::fprintf(stderr, "VondSim: \"%s\" is an unknown function\n", TextOf(function).c_str());
    return row;
}

}  // namespace

#pragma GCC visibility push(default)
extern "C" {

int32_t VondSim_SetProfile(const char *nameOrPath)
{
    return Guarded(kUnplugged, [&] { CSimulator::Instance().SetProfile(TextOf(nameOrPath)); });
}

int32_t VondSim_SetProfileText(const char *json)
{
    return Guarded(kUnplugged, [&] { CSimulator::Instance().SetProfileText(TextOf(json)); });
}

const char *VondSim_ProfileName(uint32_t index)
{
    const SBuiltinProfile *profile = BuiltinProfile(index);
    return profile != nullptr ? profile->name : nullptr;
}

const char *VondSim_ProfileText(void)
{
    return CSimulator::Instance().ProfileText();
}

void VondSim_Reset(void)
{
    CSimulator::Instance().Reset();
}

void VondSim_SetPlugged(int32_t isPlugged)
{
    CSimulator::Instance().WithDut([&](SDut &dut) { dut.SetPlugged(isPlugged != 0); });
}

int32_t VondSim_AddFault(const char *json)
{
    return Guarded("", [&] {
        const SFault fault = ParseFault(ParseJsonText(TextOf(json)), "fault");
        CSimulator::Instance().WithDut([&](SDut &dut) { dut.faults.Add(fault); });
    });
}

void VondSim_ClearFaults(void)
{
    CSimulator::Instance().WithDut([](SDut &dut) { dut.faults.Clear(); });
}

void VondSim_Hold(const char *function)
{
    if (const SFunction *row = Known(function))
        CSimulator::Instance().Gates().Hold(row->id);
}

void VondSim_Release(const char *function)
{
    if (const SFunction *row = Known(function))
        CSimulator::Instance().Gates().Release(row->id);
}

int32_t VondSim_WaitUntilHeld(const char *function, uint32_t timeoutMs)
{
    const SFunction *row = Known(function);
    const std::chrono::milliseconds timeout(timeoutMs);
    return row != nullptr && CSimulator::Instance().Gates().WaitUntilHeld(row->id, timeout) ? 1 : 0;
}

const char *VondSim_RunningTest(void)
{
    return CSimulator::Instance().WithDut([](SDut &dut) { return TestName(dut.radio.Running()); });
}

uint32_t VondSim_CallCount(void)
{
    return CSimulator::Instance().Journal().Count();
}

int32_t VondSim_GetCall(uint32_t index, SVondSimCall *call)
{
    return call != nullptr && CSimulator::Instance().Journal().Get(index, *call) ? 0 : -1;
}

uint32_t VondSim_GetRequest(uint32_t index, void *bytes, uint32_t size)
{
    return CSimulator::Instance().Journal().Copy(index, &SJournalEntry::request, bytes, size);
}

uint32_t VondSim_GetAnswer(uint32_t index, void *bytes, uint32_t size)
{
    return CSimulator::Instance().Journal().Copy(index, &SJournalEntry::answer, bytes, size);
}

int32_t VondSim_GetCallTime(uint32_t index, SVondSimCallTime *time)
{
    return time != nullptr && CSimulator::Instance().Journal().GetTime(index, *time) ? 0 : -1;
}

uint32_t VondSim_GetCalls(uint32_t index, uint32_t most, SVondSimCall *calls,
                          SVondSimCallTime *times)
{
    if (calls == nullptr || times == nullptr)
        return 0;
    return CSimulator::Instance().Journal().GetMany(index, most, calls, times);
}

uint32_t VondSim_GetOpenCalls(SVondSimOpenCall *calls, uint32_t most)
{
    const std::vector<SVondSimOpenCall> open = CSimulator::Instance().Journal().OpenCalls();
    if (calls != nullptr)
        std::copy_n(open.begin(), std::min<std::size_t>(open.size(), most), calls);
    return static_cast<uint32_t>(open.size());
}

const char *VondSim_ResultText(int32_t result)
{
    return ResultText(result);
}

void VondSim_ClearJournal(void)
{
    CSimulator::Instance().Journal().Clear();
}

}  // extern "C"
#pragma GCC visibility pop
