// The scenario in force: which of its steps takes place on which call. Its faults are the fault
// set's; what concerns radio and plug is told here. No lock: the owner keeps calls apart.
//
//   run.Start(scenario, faults);            // -> what is to be done at once
//   for (const SScenarioStep *step : run.Due(function)) ...
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "Simulator/scenario/Scenario.h"

class CScenarioRun
{
public:
    using Due = std::vector<const SScenarioStep *>;

    // Takes the old one and its faults away; what is returned lives until the next start.
    Due Start(std::optional<SScenario> scenario, CFaultSet &faults);
    // The same scenario from its beginning, added steps too.
    Due Restart(CFaultSet &faults);
    Due Add(const SScenarioStep &step, CFaultSet &faults);

    // Counts a call, and tells the steps of radio and plug that take place on it.
    Due OnCall(const SFunction &function);

    bool IsThere() const { return m_scenario.has_value(); }
    uint32_t Seed() const { return m_scenario ? m_scenario->seed : 1; }
    // As it was given; empty for none.
    std::string Text() const { return m_scenario ? m_scenario->text : std::string(); }
    // The steps of radio and plug that may still come.
    Due Pending() const;

private:
    struct SRow
    {
        SScenarioStep step;
        std::optional<CTrigger> trigger;
    };

    // False: it is for later, or the fault set's.
    bool IsDueNow(SRow &row, std::size_t index, CFaultSet &faults) const;

    std::optional<SScenario> m_scenario;
    std::deque<SRow> m_rows;  // a deque, since steps that are due are told by address
};
