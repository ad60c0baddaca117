#include "Trace/words/CallText.h"

#include <cstdio>
#include <iterator>

#include "Trace/dictionary/FieldPath.h"
#include "Trace/dictionary/ValueNames.h"
#include "Trace/lines/PrintableText.h"
#include "Vond/VondCalRecords.h"

namespace {

std::string Scaled(uint64_t ns, double unit, int decimals, const char *name)
{
    char text[40];
    std::snprintf(text, sizeof(text), "%.*f %s", decimals, static_cast<double>(ns) / unit, name);
    return text;
}

}  // namespace

std::string DurationText(uint64_t ns)
{
    if (ns < 1000)
        return std::to_string(ns) + " ns";
    if (ns < 1000 * 1000)
        return Scaled(ns, 1e3, 1, "µs");
    if (ns < 1000 * 1000 * 1000)
        return Scaled(ns, 1e6, 1, "ms");
    return Scaled(ns, 1e9, 3, "s");
}

std::string ResultText(const STraceCall &call)
{
    const std::string number = std::to_string(call.result);
    return call.text.empty() ? number : PrintableText(call.text) + " (" + number + ")";
}

std::string StatusText(uint32_t status)
{
    const std::string number = std::to_string(status);
    for (const SValueName &row : kStatusNames) {
        if (row.value == status)
            return std::string(row.name) + " (" + number + ")";
    }
    return number;
}

std::string_view VerdictField(const SFunction &function)
{
    if (function.answer == nullptr)
        return {};
    for (const char *const name : {"status", "verdict.status"}) {
        const auto found = FindField(*function.answer, name);
        if (found && found->field->values.data() == std::data(kVerdictNames))
            return name;
    }
    return {};
}

bool HasBadVerdict(const STraceCall &call)
{
    const std::string_view name = VerdictField(*call.function);
    if (name.empty() || !call.answer)
        return false;
    const auto verdict = NumberAt(*call.function->answer, *call.answer, name);
    return verdict && *verdict != kVondCalSuccess;
}

bool HasFailed(const STraceCall &call)
{
    return call.isEnded && (call.result != 0 || call.status != 0 || HasBadVerdict(call));
}
