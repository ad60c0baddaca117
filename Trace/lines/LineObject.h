// The members of one line of a trace: a JSON object of numbers and texts. Each is checked for its type
// and limits as it is asked for. Every failure is a std::runtime_error that names the key.
//
//   const CLineObject line(R"({"begin": 3, "function": "VOND_NRf_TestStop_r"})");
//   line.Unsigned("begin", UINT64_MAX)   // 3
//   line.Text("functon")                 // throws: "functon" is missing
//
// Texts are UTF-8. A value that is itself an object or an array, and a key that stands twice, are
// failures of the constructor.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>

#include "Trace/lines/TraceCall.h"

class CLineObject
{
public:
    explicit CLineObject(std::string_view line);

    bool Has(std::string_view key) const { return m_members.find(key) != m_members.end(); }
    uint64_t Unsigned(std::string_view key, uint64_t most) const;
    int64_t Signed(std::string_view key, int64_t least, int64_t most) const;
    const std::string &Text(std::string_view key) const;
    // Hexadecimal digits, or null.
    TraceBytes Bytes(std::string_view key) const;

private:
    // Nothing: null, or a value that no key has (true, a fraction).
    struct SNothing
    {
        bool isNull = true;
    };
    using Value = std::variant<SNothing, uint64_t, int64_t, std::string>;
    class CHandler;

    const Value &Take(std::string_view key) const;

    std::map<std::string, Value, std::less<>> m_members;
};
