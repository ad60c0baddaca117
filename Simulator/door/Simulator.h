// The simulated DUT as a whole: the DUT, gates and journal, and the one way that every call takes through them: gate, scenario, fault, delay, body, journal.
//
// All functions may be called from any thread. The state has one lock; it is held while a body
// runs, never while a call waits at a gate or for a delay. The object is made at the first call and
// never destroyed, so a thread may still be inside while the process ends.
//
//   return CSimulator::Instance().Run(
//       {EFunction::ContRx, h, t, RequestOf(command)},
//       [&](SDut &dut) { return dut.radio.StartContRx(dut.profile, *command); });
#pragma once

#include <functional>
#include <mutex>
#include <string>

#include "Simulator/basis/Results.h"
#include "Simulator/door/Dut.h"
#include "Simulator/door/Journal.h"
#include "Simulator/faults/Gates.h"
#include "Simulator/flash/CalTransfers.h"

// Bytes from the caller. Null with a size: the caller passed a null pointer in place of a record.
struct SConstBytes
{
    const void *data = nullptr;
    std::size_t size = 0;
};

struct SBytes
{
    void *data = nullptr;
    std::size_t size = 0;
};

template <class Record>
SConstBytes RequestOf(const Record *record)
{
    return {record, sizeof(Record)};
}

template <class Record>
SBytes AnswerOf(Record *record)
{
    return {record, sizeof(Record)};
}

struct SCall
{
    EFunction function;
    uint32_t handle = 0;
    uint32_t timeoutMs = 0;
    SConstBytes request = {};
    SBytes answer = {};
    uint32_t *status = nullptr;  // where the function has a status word
};

class CSimulator
{
public:
    using Body = std::function<SVerdict(SDut &)>;
    using TextBody = std::function<const char *(SDut &)>;

    static CSimulator &Instance();

    // The body runs once the target is there, offers the function and has all its pointers.
    int32_t Run(const SCall &call, const Body &body);
    // For the functions that return a text; the journal's answer is that text.
    const char *RunText(const SCall &call, const TextBody &body);

    // Throws std::runtime_error for an unknown name or a broken profile, after unplugging the DUT.
    void SetProfile(const std::string &nameOrPath);
    void SetProfileText(const std::string &text);
    const char *ProfileText();
    // Empty: none. Throws std::runtime_error for an unknown name or a broken scenario, and changes
    // nothing then.
    void SetScenario(const std::string &nameOrPath);
    void SetScenarioText(const std::string &text);
    void Reset();
    // A look at the DUT, or a change of it, while no call is carried out.
    template <class Job>
    auto WithDut(const Job &job)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return job(m_dut);
    }

    CGates &Gates() { return m_gates; }
    CJournal &Journal() { return m_journal; }

private:
    struct SOutcome
    {
        SVerdict verdict;
        int32_t result = 0;
        uint32_t status = 0;
        bool answered = false;  // the answer record is the target's
    };

    CSimulator();

    SFaultPlan Enter(const SFunction &function);
    SOutcome Carry(const SCall &call, const SFunction &function, const SFaultPlan &plan,
                   const Body &body);
    SVerdict Admit(const SCall &call, const SFunction &function) const;
    void PutInPlace(SProfile profile, std::string text);
    void PutScenario(std::optional<SScenario> scenario);
    void LoadFirstProfile();
    void LoadFirstScenario();

    CGates m_gates;
    CJournal m_journal;
    std::mutex m_mutex;  // guards what follows
    SDut m_dut;
    std::string m_profileText;
};

// Whether the DUT of that profile offers the function.
bool Offers(const SProfile &profile, const SFunction &function);
