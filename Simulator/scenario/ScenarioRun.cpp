#include "Simulator/scenario/ScenarioRun.h"

#include <utility>

CScenarioRun::Due CScenarioRun::Start(std::optional<SScenario> scenario, CFaultSet &faults)
{
    m_rows.clear();
    if (scenario) {
        for (const SScenarioStep &step : scenario->steps)
            m_rows.push_back({.step = step, .trigger = std::nullopt});
    }
    m_scenario = std::move(scenario);
    return Restart(faults);
}

CScenarioRun::Due CScenarioRun::Restart(CFaultSet &faults)
{
    faults.RemoveOf(EFaultSource::Scenario);
    Due due;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (IsDueNow(m_rows[i], i, faults))
            due.push_back(&m_rows[i].step);
    }
    return due;
}

CScenarioRun::Due CScenarioRun::Add(const SScenarioStep &step, CFaultSet &faults)
{
    SRow &row = m_rows.emplace_back(SRow{.step = step, .trigger = std::nullopt});
    return IsDueNow(row, m_rows.size() - 1, faults) ? Due{&row.step} : Due{};
}

CScenarioRun::Due CScenarioRun::OnCall(const SFunction &function)
{
    Due due;
    for (SRow &row : m_rows) {
        if (row.trigger && row.trigger->Meets(function))
            due.push_back(&row.step);
    }
    return due;
}

CScenarioRun::Due CScenarioRun::Pending() const
{
    Due pending;
    for (const SRow &row : m_rows) {
        if (row.trigger && !row.trigger->IsOver())
            pending.push_back(&row.step);
    }
    return pending;
}

bool CScenarioRun::IsDueNow(SRow &row, std::size_t index, CFaultSet &faults) const
{
    const SScenarioStep &step = row.step;
    std::optional<CTrigger> trigger;
    if (step.when)
        trigger.emplace(*step.when, Seed() + static_cast<uint32_t>(index));
    if (step.fault) {
        faults.Add(*step.fault, EFaultSource::Scenario, std::move(trigger));
        return false;
    }
    row.trigger = std::move(trigger);
    return !row.trigger;
}
