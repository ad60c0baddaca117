// Gates: a held function stops its callers at entry until it is released. All functions may be
// called from any thread; nothing is held while another gate is waited for.
//
//   gates.Hold(EFunction::ContRx);       // one thread
//   gates.Pass(EFunction::ContRx);       // another: blocks
//   gates.WaitUntilHeld(EFunction::ContRx, 1000ms);   // true
//   gates.Release(EFunction::ContRx);    // the caller goes on
#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

#include "Trace/dictionary/Functions.h"

class CGates
{
public:
    // Returns at once when the gate is open.
    void Pass(EFunction function);

    void Hold(EFunction function);
    // Lets all waiting callers go, also when the gate is held again before they have woken.
    void Release(EFunction function);
    void ReleaseAll();
    // Whether a caller stood at the gate before the time had passed.
    bool WaitUntilHeld(EFunction function, std::chrono::milliseconds timeout);

private:
    struct SGate
    {
        bool held = false;
        uint64_t releases = 0;
        uint32_t waiting = 0;
    };

    SGate &GateOf(EFunction function) { return m_gates[static_cast<std::size_t>(function)]; }
    static void Open(SGate &gate);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::array<SGate, static_cast<std::size_t>(EFunction::Count)> m_gates;
};
