// A field that somebody names, to be left out: a dotted name as "quorlin decode" prints it. An index may
// be left out, which names all elements; so may an end, which names the whole record.
//
//   CFieldPattern("carrier.band").Matches(ECallPart::Request, "carrier[1].band")   // true
//   CFieldPattern("answer.verdict").Matches(ECallPart::Request, "verdict.status")  // false
//
// "request." or "answer." in front names the one alone; a name without it is meant in both, and of the
// call's own keys (handle, timeout, result, text, status and those of --timing), too.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Trace/words/CallComparison.h"

class CFieldPattern
{
public:
    // Throws std::runtime_error when no function has such a field.
    explicit CFieldPattern(const std::string &text);

    bool Matches(ECallPart part, std::string_view name) const;

private:
    std::optional<ECallPart> m_part;  // none: any
    std::string m_name;               // empty: all of the part
};
