// The simulated DUT as a host sees it: through functions that the library behind the plug-in exports.
// The real libraries have no such functions.
//
//     const QStringList names = SimulatedProfiles();   // {"handset", "largest", ...}
//
//     CSimulatedDut dut;                               // after the plug-in is loaded
//     if (dut.IsThere() && dut->AddFault(json) != 0)
//         Complain(dut.Error());
#pragma once

#include <cstdint>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "Simulator/VondSim.h"

// The functions of VondSim.h that a host steers the DUT with, by their names without "VondSim_". All are
// null where the DUT is not simulated. Each answers at once; none waits for a call to the DUT.
#define QUORLIN_SIMULATED_DUT_CALLS(X)                                                             \
    X(SetProfile)                                                                                  \
    X(SetProfileText)                                                                              \
    X(CheckProfile)                                                                                \
    X(Band)                                                                                        \
    X(ProfileName)                                                                                 \
    X(ProfileText)                                                                                 \
    X(Reset)                                                                                       \
    X(SetPlugged)                                                                                  \
    X(IsPlugged)                                                                                   \
    X(GetRadioState)                                                                               \
    X(GetRadioText)                                                                                \
    X(SetRadio)                                                                                    \
    X(GetFlashFile)                                                                                \
    X(GetFlashItem)                                                                                \
    X(FlashRecordCount)                                                                            \
    X(GetFlashRecord)                                                                              \
    X(RestoreFlash)                                                                                \
    X(AddFault)                                                                                    \
    X(ClearFaults)                                                                                 \
    X(FailNextCall)                                                                                \
    X(FaultCount)                                                                                  \
    X(GetFault)                                                                                    \
    X(GetFaultText)                                                                                \
    X(SetFault)                                                                                    \
    X(SwitchFault)                                                                                 \
    X(RemoveFault)                                                                                 \
    X(SetScenario)                                                                                 \
    X(SetScenarioText)                                                                             \
    X(AddStep)                                                                                     \
    X(ScenarioName)                                                                                \
    X(BuiltinScenarioText)                                                                         \
    X(GetScenarioText)                                                                             \
    X(GetStateAsScenario)                                                                          \
    X(GetError)                                                                                    \
    X(RunningTest)                                                                                 \
    X(CallCount)                                                                                   \
    X(GetCall)                                                                                     \
    X(GetRequest)                                                                                  \
    X(GetAnswer)                                                                                   \
    X(GetCallTime)                                                                                 \
    X(GetCalls)                                                                                    \
    X(GetOpenCalls)                                                                                \
    X(ResultText)                                                                                  \
    X(ClearJournal)

struct SSimulatedDutCalls
{
// NOLINTNEXTLINE(bugprone-macro-parentheses): the name of a member
#define QUORLIN_CALL(name) decltype(&VondSim_##name) name = nullptr;
    QUORLIN_SIMULATED_DUT_CALLS(QUORLIN_CALL)
#undef QUORLIN_CALL
};

// All of them at once. A library that lacks one counts as no simulated DUT. The library stays as long as
// the object lives. Any thread.
class CSimulatedDut
{
public:
    // Loads nothing: the library is the one that the plug-in, which is loaded already, runs on.
    CSimulatedDut();
    ~CSimulatedDut();
    CSimulatedDut(const CSimulatedDut &) = delete;
    CSimulatedDut &operator=(const CSimulatedDut &) = delete;

    bool IsThere() const { return m_isThere; }
    // Only where it is there: dut->SetPlugged(0).
    const SSimulatedDutCalls *operator->() const { return &m_calls; }

    // Text of a function that copies at most size bytes and returns the whole length:
    // CSimulatedDut::Text(dut->GetRadioText), CSimulatedDut::Text(dut->GetFaultText, id).
    template <class Copy, class... Given>
    static QString Text(Copy copy, Given... given);
    // Why the calling thread's last call failed.
    QString Error() const;

private:
    void *m_library;
    SSimulatedDutCalls m_calls;
    bool m_isThere = false;
};

// Another thread may make the text longer between the two calls: then it is asked again.
template <class Copy, class... Given>
QString CSimulatedDut::Text(Copy copy, Given... given)
{
    QByteArray text;
    for (uint32_t size = copy(given..., nullptr, 0); size > 0;) {
        text.resize(static_cast<int>(size) + 1);
        const uint32_t whole = copy(given..., text.data(), size + 1);
        if (whole <= size) {
            text.truncate(static_cast<int>(whole));
            return QString::fromUtf8(text);
        }
        size = whole;
    }
    return {};
}

// Names of the built-in profiles, once a plug-in is loaded; none where the DUT is not simulated.
QStringList SimulatedProfiles();

// Names of the built-in scenarios, in the same way.
QStringList SimulatedScenarios();

// True when the DUT is simulated and the text is neither a profile's name nor a file.
bool IsUnknownProfile(const QString &profile, const QStringList &names);

// Why the scenario that was named for the simulated DUT is not in force; empty when it is, and where
// the DUT is not simulated.
QString ScenarioError(const QString &scenario);
