#include "Simulator/faults/Gates.h"

void CGates::Pass(EFunction function)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    SGate &gate = GateOf(function);
    if (!gate.held)
        return;
    const uint64_t arrival = gate.releases;
    ++gate.waiting;
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return gate.releases != arrival; });
}

void CGates::Hold(EFunction function)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    GateOf(function).held = true;
}

void CGates::Release(EFunction function)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Open(GateOf(function));
    m_changed.notify_all();
}

void CGates::ReleaseAll()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (SGate &gate : m_gates)
        Open(gate);
    m_changed.notify_all();
}

bool CGates::WaitUntilHeld(EFunction function, std::chrono::milliseconds timeout)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const SGate &gate = GateOf(function);
    return m_changed.wait_for(lock, timeout, [&] { return gate.waiting > 0; });
}

void CGates::Open(SGate &gate)
{
    // The waiting callers go on now. They count as held no longer.
    gate.held = false;
    gate.waiting = 0;
    ++gate.releases;
}
