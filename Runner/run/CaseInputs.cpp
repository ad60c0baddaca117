#include "Runner/run/CaseInputs.h"

namespace {

constexpr int kMostTurns = 10;

void AddRefusal(const std::string &file, SPlace place, const std::string &key,
                const SRefusal &refusal, CPlanErrors &errors)
{
    std::string what = refusal.reason.toStdString();
    if (what.find(key) == std::string::npos)
        what = key + ": " + what;
    errors.Add(file, place, what, refusal.allowed.toStdString());
}

void ApplySetting(CBenchPage &page, const std::string &file, const SPlanSetting &setting,
                  CPlanErrors &errors)
{
    SBenchMember member;
    int column = -1;
    const QString name = Text(setting.key.text);
    if (const auto refusal = page.FindInput(name, member, column))
        AddRefusal(file, setting.key.place, setting.key.text, *refusal, errors);
    else if (const auto refused = page.Set(name, Text(setting.value.text)))
        AddRefusal(file, setting.value.place, setting.key.text, *refused, errors);
}

// Packaged values are decimal; the digits that are typed have the editor's own radix.
QString TypedText(const SBenchMember &member, const QString &packaged)
{
    bool isNumber = false;
    const qlonglong number = packaged.toLongLong(&isNumber);
    return member.base != 10 && isNumber ? QString::number(number, member.base) : packaged;
}

bool HasValue(const SBenchMember &member, int column, const QString &wanted)
{
    return member.values.value(column < 0 ? 0 : column).trimmed() == wanted;
}

// One turn over the file; true when a value was taken. Refusals of the last turn are the errors.
bool ApplyTurn(CBenchPage &page, const SSettingsFile &settings, CPlanErrors &errors)
{
    bool hasChanged = false;
    for (const SPlanSetting &setting : settings.settings) {
        SBenchMember member;
        int column = -1;
        const QString name = Text(setting.key.text), wanted = Text(setting.value.text);
        if (const auto refusal = page.FindInput(name, member, column)) {
            AddRefusal(settings.file, setting.key.place, setting.key.text, *refusal, errors);
            continue;
        }
        if (HasValue(member, column, wanted) || !member.isEnabled || !member.isShown)
            continue;
        if (const auto refusal = page.Set(name, TypedText(member, wanted)))
            AddRefusal(settings.file, setting.value.place, setting.key.text, *refusal, errors);
        else
            hasChanged = true;
    }
    return hasChanged;
}

void ApplySettings(CBenchPage &page, const SRunCase &runCase, CPlanErrors &errors)
{
    const SPlanStep &step = *runCase.step;
    const SSettingsFile &settings = runCase.plan->settings.at(step.settings->text);
    const QString of = Text(settings.page.text);
    if (of != page.Title() && of != page.ClassName())
        return errors.Add(runCase.plan->plan.file, step.settings->place,
                          Quoted(step.settings->text) + " is a settings file of the page " +
                              Quoted(settings.page.text),
                          "one of " + Quoted(page.Title().toStdString()));
    for (int turn = 0; turn < kMostTurns; ++turn) {
        CPlanErrors ofTurn;
        if (ApplyTurn(page, settings, ofTurn))
            continue;
        for (const SPlanError &error : ofTurn.List())
            errors.Add(error.file, error.place, error.what, error.allowed);
        return;
    }
    errors.Add(runCase.plan->plan.file, step.settings->place,
               Quoted(step.settings->text) + ": its values exclude each other on this page");
}

}  // namespace

void ApplyInputs(CBenchPage &page, const SRunCase &runCase, CPlanErrors &errors)
{
    const std::string &file = runCase.plan->plan.file;
    if (runCase.step->settings)
        ApplySettings(page, runCase, errors);
    for (const SPlanSetting &setting : Combination(*runCase.step, runCase.combination))
        ApplySetting(page, file, setting, errors);
    for (const SPlanSetting &setting : runCase.step->set)
        ApplySetting(page, file, setting, errors);
}
