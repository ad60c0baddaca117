// Reads a record's bytes field by field, in the order of the bytes.
//
//   const SFunction &rssi = FunctionOf(EFunction::Rssi);
//   DecodeAnswer(rssi, answer, request, [](const SFieldValue &value) {
//       std::cout << value.name << ": " << ValueText(value) << '\n';
//   });   // rows.single.row[0].rssiMain: -70.5 dBm
//
// Elements of arrays are visited one by one, with their index in the name; a text and a piece of
// reserved bytes as one. A field of which a byte is missing is passed over. Any bytes are good: nothing
// fails, and nothing behind them is read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

#include "Trace/dictionary/Functions.h"

struct SFieldValue
{
    std::string_view name;  // dotted, lives as long as the visit: "carrier[0].band"
    const SField *field = nullptr;
    std::size_t offset = 0;
    std::span<const uint8_t> bytes;
    int64_t number = 0;     // raw; of a number
    std::string_view text;  // of a text, without what follows a 0
    bool isReading = false;
    // False: a layout of a union that may not be the one that holds, since the field that decides is
    // missing. Both are visited then.
    bool isCertain = true;
    std::string_view remark = {};  // of the field, or of the record around it

    // Whether a byte is not 0.
    bool IsSet() const;
};

using FieldVisitor = std::function<void(const SFieldValue &)>;

struct SDecoded
{
    std::size_t missing = 0;  // bytes that the layout has more
    std::size_t extra = 0;    // bytes behind its end
};

struct SRequestBytes
{
    const SLayout *layout = nullptr;
    std::span<const uint8_t> bytes = {};
};

// Without a request what hangs on it is not certain.
SDecoded Decode(const SLayout &layout, std::span<const uint8_t> bytes, const SRequestBytes &request,
                const FieldVisitor &visit);

// A function without a request or an answer has no fields there; all bytes are extra.
SDecoded DecodeRequest(const SFunction &function, std::span<const uint8_t> bytes,
                       const FieldVisitor &visit);
// An empty request: it is not known.
SDecoded DecodeAnswer(const SFunction &function, std::span<const uint8_t> bytes,
                      std::span<const uint8_t> request, const FieldVisitor &visit);
