#include "Simulator/door/Simulator.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <utility>

#include "Simulator/door/Errors.h"
#include "Simulator/profile/ProfileJson.h"

using Clock = std::chrono::steady_clock;

namespace {

std::string Environment(const char *name)
{
    const char *value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::vector<uint8_t> CopyOf(const void *data, std::size_t size)
{
    if (data == nullptr || size == 0)
        return {};
    const auto *bytes = static_cast<const uint8_t *>(data);
    return std::vector<uint8_t>(bytes, bytes + size);
}

STraceBegin BeginOf(const SCall &call, const SFunction &function)
{
    return {.function = &function,
            .handle = call.handle,
            .timeoutMs = call.timeoutMs,
            .request = {call.request.data, call.request.size}};
}

void FillWithNoise(const SBytes &bytes, uint32_t seed)
{
    if (bytes.data == nullptr)
        return;
    std::mt19937 noise(seed);
    auto *to = static_cast<uint8_t *>(bytes.data);
    std::generate(to, to + bytes.size, [&] { return static_cast<uint8_t>(noise()); });
}

// What lies behind the answer's end is left out.
void LayOver(const SBytes &answer, const SPatch &patch)
{
    if (answer.data == nullptr || patch.offset >= answer.size)
        return;
    const std::size_t count = std::min(patch.bytes.size(), answer.size - patch.offset);
    std::copy_n(patch.bytes.data(), count, static_cast<uint8_t *>(answer.data) + patch.offset);
}

uint64_t NanosecondsSince(Clock::time_point start)
{
    return static_cast<uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now() - start).count());
}

bool HasTimeout(const SFunction &function)
{
    return function.kind == EFunctionKind::Target;
}

// Waits as long as the fault says, but no longer than the call may take. False: it timed out.
bool Delay(const SCall &call, const SFunction &function, uint64_t delayMs)
{
    const bool late = HasTimeout(function) && delayMs > call.timeoutMs;
    const uint64_t wait = late ? call.timeoutMs : delayMs;
    if (wait > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(wait));
    return !late;
}

}  // namespace

bool Offers(const SProfile &profile, const SFunction &function)
{
    if (function.kind != EFunctionKind::Target || profile.allFunctions ||
        function.id == EFunction::QueryFunctionSupported)
        return true;
    return std::find(profile.functions.begin(), profile.functions.end(), function.name) !=
           profile.functions.end();
}

CSimulator &CSimulator::Instance()
{
    static CSimulator *const instance = new CSimulator;
    return *instance;
}

CSimulator::CSimulator() : m_journal(Environment("VOND_SIM_JOURNAL"))
{
    LoadFirstProfile();
    LoadFirstScenario();
}

int32_t CSimulator::Run(const SCall &call, const Body &body)
{
    const SFunction &function = FunctionOf(call.function);
    SJournalBegin begin = m_journal.Begin(BeginOf(call, function));
    const Clock::time_point start = Clock::now();
    SJournalEntry entry;
    entry.request = CopyOf(call.request.data, call.request.size);
    const SFaultPlan plan = Enter(function);
    SOutcome outcome = Carry(call, function, plan, body);
    if (call.status != nullptr && outcome.answered)
        *call.status = outcome.status;
    if (plan.noiseSeed) {
        FillWithNoise(call.answer, *plan.noiseSeed);
        if (call.status != nullptr)
            FillWithNoise({call.status, sizeof(*call.status)}, *plan.noiseSeed);
    }
    for (const SPatch &patch : plan.patches)
        LayOver(call.answer, patch);
    if (plan.noiseSeed || !plan.patches.empty()) {
        outcome.answered = true;
        outcome.status = call.status != nullptr ? *call.status : 0;
    }
    entry.function = &function;
    entry.handle = call.handle;
    entry.timeoutMs = call.timeoutMs;
    entry.result = outcome.result;
    entry.status = outcome.status;
    if (outcome.answered)
        entry.answer = CopyOf(call.answer.data, call.answer.size);
    entry.durationNs = NanosecondsSince(start);
    m_journal.Append(std::move(entry), std::move(begin), {call.answer.data, call.answer.size});
    return outcome.result;
}

const char *CSimulator::RunText(const SCall &call, const TextBody &body)
{
    const SFunction &function = FunctionOf(call.function);
    SJournalBegin begin = m_journal.Begin(BeginOf(call, function));
    const Clock::time_point start = Clock::now();
    SJournalEntry entry;
    entry.request = CopyOf(call.request.data, call.request.size);
    const SFaultPlan plan = Enter(function);
    Delay(call, function, plan.delayMs);
    const char *text = nullptr;
    if (!plan.nullText) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        text = body(m_dut);
    }
    entry.function = &function;
    const std::size_t length = text != nullptr ? std::strlen(text) : 0;
    entry.answer = CopyOf(text, length);
    entry.durationNs = NanosecondsSince(start);
    m_journal.Append(std::move(entry), std::move(begin), {text, length});
    return text;
}

SFaultPlan CSimulator::Enter(const SFunction &function)
{
    m_gates.Pass(function.id);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_dut.OnCall(function);
    return m_dut.faults.Plan(function);
}

CSimulator::SOutcome CSimulator::Carry(const SCall &call, const SFunction &function,
                                       const SFaultPlan &plan, const Body &body)
{
    SOutcome outcome;
    if (!Delay(call, function, plan.delayMs)) {
        outcome.result = static_cast<int32_t>(EResult::TimedOut);
        return outcome;
    }
    if (plan.result || plan.status) {
        outcome.result = plan.result.value_or(0);
        outcome.status = plan.status.value_or(0);
        outcome.answered = plan.status.has_value();
        return outcome;
    }
    try {
        const std::lock_guard<std::mutex> lock(m_mutex);
        outcome.verdict = Admit(call, function);
        if (outcome.verdict.Ok())
            outcome.verdict = body(m_dut);
    } catch (const std::exception &) {
        outcome.verdict = EResult::Internal;
    }
    outcome.result = static_cast<int32_t>(outcome.verdict.result);
    outcome.status = static_cast<uint32_t>(outcome.verdict.status);
    outcome.answered = outcome.verdict.result == EResult::Success;
    return outcome;
}

SVerdict CSimulator::Admit(const SCall &call, const SFunction &function) const
{
    if (!m_dut.profile.plugged)
        return EResult::NotConnected;
    if (HasTimeout(function) && call.timeoutMs == 0)
        return EResult::TimedOut;
    if (!Offers(m_dut.profile, function))
        return EResult::NotOffered;
    const bool missing = (call.request.size > 0 && call.request.data == nullptr) ||
                         (call.answer.size > 0 && call.answer.data == nullptr) ||
                         (function.HasStatus() && call.status == nullptr);
    return missing ? SVerdict(EResult::NullPointer) : SVerdict();
}

void CSimulator::SetProfile(const std::string &nameOrPath)
{
    try {
        std::string text = ReadProfileText(nameOrPath);
        SProfile profile = ParseProfile(text, nameOrPath);
        PutInPlace(std::move(profile), std::move(text));
    } catch (...) {
        PutInPlace(UnpluggedProfile(), ReadProfileText("unplugged"));
        throw;
    }
}

void CSimulator::SetProfileText(const std::string &text)
{
    try {
        PutInPlace(ParseProfile(text, "profile text"), text);
    } catch (...) {
        PutInPlace(UnpluggedProfile(), ReadProfileText("unplugged"));
        throw;
    }
}

const char *CSimulator::ProfileText()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_profileText.c_str();
}

void CSimulator::Reset()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_dut.faults.Clear();
    }
    LoadFirstProfile();
    LoadFirstScenario();
    m_gates.ReleaseAll();
    m_journal.Clear();
}

void CSimulator::PutInPlace(SProfile profile, std::string text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_dut.PutProfile(std::move(profile), CFlash(Environment("VOND_SIM_FLASH")));
    m_profileText = std::move(text);
}

void CSimulator::SetScenario(const std::string &nameOrPath)
{
    if (nameOrPath.empty())
        PutScenario(std::nullopt);
    else
        PutScenario(ParseScenario(ReadScenarioText(nameOrPath), nameOrPath));
}

void CSimulator::SetScenarioText(const std::string &text)
{
    if (text.empty())
        PutScenario(std::nullopt);
    else
        PutScenario(ParseScenario(text, "scenario text"));
}

void CSimulator::PutScenario(std::optional<SScenario> scenario)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_dut.PutScenario(std::move(scenario));
}

void CSimulator::LoadFirstProfile()
{
    const std::string name = Environment("VOND_SIM_PROFILE");
    try {
        SetProfile(name.empty() ? "handset" : name);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "VondSim: %s; the DUT is unplugged\n", error.what());
    }
}

void CSimulator::LoadFirstScenario()
{
    PutScenario(std::nullopt);
    try {
        SetScenario(Environment("VOND_SIM_SCENARIO"));
    } catch (const std::exception &error) {
        ReportError(error.what(), "; there is no scenario");
    }
}
