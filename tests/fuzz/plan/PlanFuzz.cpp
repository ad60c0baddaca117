// Any bytes as a plan and as a settings file: it is read, or there are errors with places; never both, never
// neither.
#include <string>

#include "Runner/plan/PlanReader.h"
#include "Runner/plan/SettingReader.h"
#include "Runner/plan/SettingsFile.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

bool IsPrintable(const std::string &text)
{
    for (const char c : text)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            return false;
    return true;
}

void CheckErrors(const CPlanErrors &errors, bool isRead)
{
    Require(errors.IsEmpty() == isRead, "a file is read, or has errors");
    Require(errors.List().size() <= CPlanErrors::kMostErrors, "errors are bounded");
    for (const SPlanError &error : errors.List()) {
        Require(error.place.line >= 1 && error.place.column >= 1, "an error has its place");
        Require(!error.what.empty() && IsPrintable(ErrorText(error)), "an error is a line");
        Require(ErrorText(error).size() < 4096, "an error is short");
    }
}

void CheckPlan(const SPlan &plan)
{
    std::size_t cases = 0;
    Require(!plan.steps.empty() && !plan.name.text.empty(), "a plan has a name and steps");
    for (const SPlanStep &step : plan.steps) {
        const std::size_t count = CombinationCount(step);
        Require(!step.name.text.empty() && !step.page.text.empty(), "a step has its names");
        Require(count >= 1 && count <= kMostCombinations, "combinations are bounded");
        Require(Combination(step, count - 1).size() == step.sweep.size(), "the last combination");
        Require(!step.wait || !step.wait->rows != !step.wait->time, "a wait is for one thing");
        if (step.exportFile)
            Require(step.exportFile->text.find('/') == std::string::npos,
                    "an export is in its folder");
        cases += count;
    }
    Require(cases <= kMostCases, "cases are bounded");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    CPlanErrors ofPlan;
    CDefines defines({{"hours", "0.01"}, {"evil", "${evil}: [*a, {"}});
    const std::optional<SPlan> plan = ReadPlanText("plan", text, defines, ofPlan);
    CheckErrors(ofPlan, plan.has_value());
    if (plan)
        CheckPlan(*plan);
    CPlanErrors ofSettings;
    CheckErrors(ofSettings, ReadSettingsText("settings", text, ofSettings).has_value());
    return 0;
}
