#include "Trace/words/CallComparison.h"

#include "Trace/dictionary/FieldDifference.h"
#include "Trace/words/CallText.h"

namespace {

std::span<const uint8_t> BytesOrNone(const TraceBytes &bytes)
{
    return bytes ? std::span<const uint8_t>(*bytes) : std::span<const uint8_t>();
}

std::string WhatIsThere(const TraceBytes &bytes)
{
    return bytes ? std::to_string(bytes->size()) + " bytes" : "null";
}

class CComparison
{
public:
    CComparison(const STraceCall &one, const STraceCall &other, const SComparisonRules &rules)
        : m_one(one), m_other(other), m_rules(rules)
    {
    }

    std::vector<SCallDifference> Run()
    {
        if (m_rules.isTimed)
            Times();
        if (m_one.isEnded != m_other.isEnded)
            Add(ECallPart::Call, {"ended", m_one.isEnded ? "yes" : "no, the call is open",
                                  m_other.isEnded ? "yes" : "no, the call is open"});
        else if (m_one.isEnded)
            Ends();
        return std::move(m_differences);
    }

private:
    void Times()
    {
        Number("startNs", m_one.startNs, m_other.startNs);
        Number("thread", m_one.thread, m_other.thread);
        Number("pid", m_one.process, m_other.process);
        Number("durationNs", m_one.durationNs, m_other.durationNs);
    }

    void Ends()
    {
        Number("handle", m_one.handle, m_other.handle);
        Number("timeout", m_one.timeoutMs, m_other.timeoutMs);
        const SFunction &function = *m_one.function;
        Record(
            ECallPart::Request, m_one.request, m_other.request,
            RequestDifferences(function, BytesOrNone(m_one.request), BytesOrNone(m_other.request)));
        Record(ECallPart::Answer, m_one.answer, m_other.answer,
               AnswerDifferences(function, AnswerOf(m_one), AnswerOf(m_other)));
        Number("result", m_one.result, m_other.result);
        if (m_one.text != m_other.text)
            Add(ECallPart::Call, {"text", m_one.text, m_other.text});
        if (m_one.status != m_other.status)
            Add(ECallPart::Call, {"status", StatusText(m_one.status), StatusText(m_other.status)});
    }

    static SAnswerBytes AnswerOf(const STraceCall &call)
    {
        return {.bytes = BytesOrNone(call.answer), .request = BytesOrNone(call.request)};
    }

    void Record(ECallPart part, const TraceBytes &one, const TraceBytes &other,
                const std::vector<SFieldDifference> &fields)
    {
        const std::string name = part == ECallPart::Request ? "request" : "answer";
        if (one.has_value() != other.has_value()) {
            Add(part, {name, WhatIsThere(one), WhatIsThere(other)});
            return;
        }
        for (const SFieldDifference &field : fields) {
            if (!m_rules.ignoresReadings || !field.isReading)
                Add(part, {field.name, field.one, field.other});
        }
    }

    template <class Value>
    void Number(const char *name, Value one, Value other)
    {
        if (one != other)
            Add(ECallPart::Call, {name, std::to_string(one), std::to_string(other)});
    }

    void Add(ECallPart part, SCallDifference difference)
    {
        if (m_rules.isIgnored && m_rules.isIgnored(part, difference.name))
            return;
        if (part == ECallPart::Request && difference.name != "request")
            difference.name.insert(0, "request.");
        if (part == ECallPart::Answer && difference.name != "answer")
            difference.name.insert(0, "answer.");
        m_differences.push_back(std::move(difference));
    }

    const STraceCall &m_one;
    const STraceCall &m_other;
    const SComparisonRules &m_rules;
    std::vector<SCallDifference> m_differences;
};

}  // namespace

std::vector<SCallDifference> CallDifferences(const STraceCall &one, const STraceCall &other,
                                             const SComparisonRules &rules)
{
    return CComparison(one, other, rules).Run();
}
