// JSON texts as they come from outside: files, arguments, whatever a caller hands in. Failures are
// std::runtime_error (or nlohmann's own exceptions of a broken text). No state.
//
//   const nlohmann::json json = ParseJsonText(ReadTextFile(path, "a profile file", reason));
#pragma once

#include <string>

#include <nlohmann/json.hpp>

// Refuses what nests deeper than any profile or scenario does, so that the stack is safe.
nlohmann::json ParseJsonText(const std::string &text);

// The whole file; kind names what it should be, missing what to say when there is none. Far larger
// ones than any profile or scenario are refused.
std::string ReadTextFile(const std::string &path, const std::string &kind,
                         const std::string &missing);

// A reason may quote line ends of a text; a report is one line.
std::string OneLine(std::string reason);
