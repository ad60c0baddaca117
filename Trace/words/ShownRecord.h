// A record as it is shown: every field with its value in words.
//
//   const SShownRecord shown = ShownAnswer(rssi, answer, request);
//   shown.fields[0].name   // "dlFrequency[0]"
//   shown.fields[0].text   // "3500000 kHz"
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Trace/dictionary/Functions.h"
#include "Trace/lines/TraceCall.h"

struct SShownField
{
    std::string name;
    std::string text;            // Trace/dictionary/ValueText.h
    std::optional<int64_t> raw;  // of a number
    bool isSet = false;          // a byte of it is not 0
    bool isReserved = false;
    bool isReading = false;
    std::string remark;
    // When the layout holds that the field belongs to; empty where that is certain. "if singlePath of
    // the request is 1 (one path)".
    std::string condition;
};

struct SShownRecord
{
    std::vector<SShownField> fields;
    std::size_t size = 0;
    std::size_t missing = 0;  // bytes that the layout has more
    std::string rest;         // bytes behind the record's end, as hexadecimal digits
};

SShownRecord ShownRequest(const SFunction &function, std::span<const uint8_t> bytes);
// Without a request, what hangs on it is shown in both layouts.
SShownRecord ShownAnswer(const SFunction &function, std::span<const uint8_t> bytes,
                         std::span<const uint8_t> request);

// "1 byte", "40 bytes".
std::string ByteCount(std::size_t count);

enum class EWhichFields
{
    All,
    Set  // those that are not zero
};

// Is the field shown then? Reserved bytes say something only when somebody has set them.
bool IsShown(const SShownField &field, EWhichFields which);
