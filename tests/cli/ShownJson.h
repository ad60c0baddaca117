// What the program says as JSON, as fields by name.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

struct SJsonRecord
{
    std::size_t size = 0;
    bool isWhole = false;  // nothing missing, nothing behind its end
    std::map<std::string, int64_t> numbers = {};
    std::map<std::string, std::string> texts = {};  // of fields that are no number
};

struct SJsonCall
{
    std::string function;
    std::optional<SJsonRecord> request = {};
    std::optional<SJsonRecord> answer = {};
};

// Of "trace show --json". Throws on what is no such thing.
std::vector<SJsonCall> ShownCalls(const std::string &text);
// Of "decode --json".
SJsonRecord DecodedRecord(const std::string &text);
