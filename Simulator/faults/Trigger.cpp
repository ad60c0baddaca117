#include "Simulator/faults/Trigger.h"

#include "Simulator/basis/JsonReader.h"

const SFunction *ReadFunctionName(const std::string &name, const std::string &place)
{
    if (name == "*")
        return nullptr;
    const SFunction *function = FindFunction(name);
    if (function == nullptr)
        CJsonReader::Fail(place, "\"" + name + "\" is an unknown function");
    return function;
}

SWhen ReadWhen(const nlohmann::json &json, const std::string &place)
{
    CJsonReader reader(json, place);
    SWhen when;
    when.function = ReadFunctionName(reader.Text("function", 63), reader.Place("function"));
    when.call = reader.Integer<uint32_t>("call", 1, UINT32_MAX, 0u);
    when.every = reader.Integer<uint32_t>("every", 1, UINT32_MAX, 0u);
    if (reader.Has("probability"))
        when.probability = reader.Real("probability", 0.0, 1.0);
    const int conditions = (when.call != 0) + (when.every != 0) + when.probability.has_value();
    if (conditions != 1)
        CJsonReader::Fail(place, "needs one of \"call\", \"every\" and \"probability\"");
    reader.Done();
    when.text = json.dump();
    return when;
}

bool CTrigger::Meets(const SFunction &function)
{
    if (m_when.function == nullptr ? function.kind == EFunctionKind::Library
                                   : m_when.function->id != function.id)
        return false;
    ++m_calls;
    if (m_when.call != 0)
        return m_calls == m_when.call;
    if (m_when.every != 0)
        return m_calls % m_when.every == 0;
    return IsWithin(m_draw, *m_when.probability);
}
