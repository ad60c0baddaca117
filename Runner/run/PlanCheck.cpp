#include "Runner/run/PlanCheck.h"

#include <filesystem>
#include <set>
#include <tuple>

#include "Runner/bench/BenchPage.h"
#include "Runner/run/CaseInputs.h"
#include "Runner/run/Expectations.h"

namespace {

// Errors of a plan, each told once: a sweep meets the same one again and again.
class COnceErrors
{
public:
    explicit COnceErrors(CPlanErrors &errors) : m_errors(errors) {}

    // combination: " [band=n41]", or nothing without a sweep.
    void AddAll(const CPlanErrors &found, const std::string &combination)
    {
        for (const SPlanError &error : found.List())
            if (m_known.emplace(error.file, error.place.line, error.place.column).second)
                m_errors.Add(error.file, error.place, error.what + combination, error.allowed);
    }

private:
    CPlanErrors &m_errors;
    std::set<std::tuple<std::string, int, int>> m_known;
};

std::string CombinationText(const SRunCase &runCase)
{
    std::string text;
    for (const SPlanSetting &setting : Combination(*runCase.step, runCase.combination))
        text += (text.empty() ? " [" : ", ") + setting.key.text + "=" + setting.value.text;
    return text.empty() ? text : text + "]";
}

void AddRefusal(const std::string &file, SPlace place, const SRefusal &refusal, CPlanErrors &errors)
{
    errors.Add(file, place, refusal.reason.toStdString(), refusal.allowed.toStdString());
}

// What has to be said for the press to be allowed; nothing where only another value helps.
QString WhatAllows(const SPressLimits &limits, const SPlan &plan, const SRefusal &refusal)
{
    if (refusal.reason.contains("writes"))
        return "with --allow-write";
    if (!refusal.reason.contains("transmits"))
        return {};
    QStringList needed;
    if (!plan.maxDbm)
        needed << "\"transmit: {max_dbm: ...}\" in the plan";
    if (!limits.allowTransmit)
        needed << "--allow-transmit";
    return "with " + needed.join(" and ");
}

void CheckButtons(const SPressLimits &limits, const SRunCase &runCase, const CBenchPage &page,
                  CPlanErrors &errors)
{
    const SPressLimits ofPlan = LimitsOf(limits, runCase.plan->plan);
    for (const auto *buttons : {&runCase.step->press, &runCase.step->then})
        for (const SPlacedText &button : *buttons) {
            std::optional<SRefusal> refusal = GuardPress(ofPlan, page, Text(button.text));
            if (!refusal)
                continue;
            if (refusal->allowed.isEmpty())
                refusal->allowed = WhatAllows(limits, runCase.plan->plan, *refusal);
            AddRefusal(runCase.plan->plan.file, button.place, *refusal, errors);
        }
}

void CheckCase(CBench &bench, const SPressLimits &limits, const SRunCase &runCase,
               CPlanErrors &errors)
{
    const std::string &file = runCase.plan->plan.file;
    SRefusal refusal;
    CBenchPage *page = bench.FindPage(Text(runCase.step->page.text), &refusal);
    if (!page)
        return AddRefusal(file, runCase.step->page.place, refusal, errors);
    ApplyInputs(*page, runCase, errors);
    CheckButtons(limits, runCase, *page, errors);
    CheckExpectations(file, *runCase.step, *page, errors);
    SBenchButton button;
    if (runCase.step->exportFile)
        if (const auto missing = page->FindButton("Export", button))
            AddRefusal(file, runCase.step->exportFile->place, *missing, errors);
}

}  // namespace

SPressLimits LimitsOf(const SPressLimits &limits, const SPlan &plan)
{
    SPressLimits ofPlan = limits;
    ofPlan.maxDbm = plan.maxDbm;
    ofPlan.allowTransmit = limits.allowTransmit && plan.maxDbm.has_value();
    return ofPlan;
}

void CheckPlan(CBench &bench, const SPressLimits &limits, const SRunPlan &plan, CPlanErrors &errors)
{
    COnceErrors once(errors);
    const std::size_t before = errors.List().size();
    for (const SRunCase &runCase : CasesOf(plan)) {
        CPlanErrors found;
        CheckCase(bench, limits, runCase, found);
        if (bench.IsInterrupted())
            return;
        once.AddAll(found, CombinationText(runCase));
    }
    errors.Sort(before);
}

void ReadSettingsFiles(SRunPlan &plan, CPlanErrors &errors)
{
    const std::filesystem::path folder = std::filesystem::path(plan.plan.file).parent_path();
    for (const SPlanStep &step : plan.plan.steps) {
        if (!step.settings || plan.settings.count(step.settings->text))
            continue;
        const std::string file = (folder / step.settings->text).string();
        const std::size_t before = errors.Count();
        if (const auto settings = ReadSettings(file, errors))
            plan.settings.emplace(step.settings->text, *settings);
        if (errors.Count() > before)
            errors.Add(plan.plan.file, step.settings->place,
                       "the settings file " + Quoted(file) + " can't be used");
    }
}
