#include "Runner/run/RunPlan.h"

std::vector<SRunCase> CasesOf(const SRunPlan &plan)
{
    std::vector<SRunCase> cases;
    for (const SPlanStep &step : plan.plan.steps)
        for (std::size_t i = 0; i < CombinationCount(step); ++i)
            cases.push_back({&plan, &step, i});
    return cases;
}
