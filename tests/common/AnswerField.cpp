#include "tests/common/AnswerField.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "Simulator/VondSim.h"
#include "Trace/dictionary/FieldPath.h"
#include "Trace/dictionary/Functions.h"

namespace {

SFoundField AnswerFieldOf(const std::string &function, std::string_view field)
{
    const SFunction *const row = FindFunction(function);
    if (row != nullptr && row->answer != nullptr) {
        if (const auto found = FindField(*row->answer, field))
            return *found;
    }
    std::fprintf(stderr, "%s answers no %.*s\n", function.c_str(), static_cast<int>(field.size()),
                 field.data());
    std::abort();
}

void PutBytes(const std::string &function, uint32_t offset, const std::vector<uint8_t> &bytes)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string hex;
    for (const uint8_t byte : bytes) {
        hex += kDigits[byte >> 4];
        hex += kDigits[byte & 15];
    }
    VondSim_AddFault((R"({"function": ")" + function + R"(", "kind": "bytes", "offset": )" +
                      std::to_string(offset) + R"(, "hex": ")" + hex + "\"}")
                         .c_str());
}

}  // namespace

void AnswerField(const std::string &function, std::string_view field, int64_t value)
{
    const SFoundField found = AnswerFieldOf(function, field);
    std::vector<uint8_t> bytes(found.size);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<uint8_t>(i < sizeof(value) ? value >> (8 * i) : 0);
    PutBytes(function, found.offset, bytes);
}

void AnswerField(const std::string &function, std::string_view field, std::string_view text)
{
    const SFoundField found = AnswerFieldOf(function, field);
    std::vector<uint8_t> bytes(text.begin(), text.end());
    bytes.push_back(0);
    bytes.resize(std::min<std::size_t>(bytes.size(), found.size));
    PutBytes(function, found.offset, bytes);
}
