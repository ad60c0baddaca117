// Has the simulated DUT put a value of the test's own into its answers, by the names of Trace/dictionary.
// What a fault of the DUT does besides, an earlier one does first.
//
//   AnswerField("VOND_MMRf_RssiV7_r", "rows.single.row[0].rssiMain", -32768);
//   AnswerField("VOND_MMRf_GetCalDataV7_r", "verdict.txText", "tx");
//
// A name that the function's answer has not ends the program: then the test is wrong.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

void AnswerField(const std::string &function, std::string_view field, int64_t value);
// With the 0 behind it, where there is room.
void AnswerField(const std::string &function, std::string_view field, std::string_view text);
