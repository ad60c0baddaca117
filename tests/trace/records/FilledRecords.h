// Each request and answer of each function, filled through its struct, with the names and values that
// a reader has to find in it. A record with a union comes once for each layout.
//
//   for (const SFilledRecord &record : FilledRecords())
//       DecodeRequest(FunctionOf(record.function), record.bytes, ...);
#pragma once

#include <string>
#include <vector>

#include "Trace/dictionary/Functions.h"
#include "tests/trace/records/RecordFiller.h"

struct SFilledRecord
{
    EFunction function;
    bool isAnswer = false;
    std::vector<uint8_t> bytes = {};
    std::map<std::string, int64_t> numbers = {};
    std::map<std::string, std::string> texts = {};
    std::vector<uint8_t> request = {};  // of an answer whose layout hangs on it
};

SFilledRecord FilledRequest(EFunction function, const CRecordFiller &filler);
SFilledRecord FilledAnswer(EFunction function, const CRecordFiller &filler,
                           const std::vector<uint8_t> &request = {});

// Filled at the first call.
const std::vector<SFilledRecord> &FilledRecords();

// By subject; FilledRecords has them all.
std::vector<SFilledRecord> FilledScalars();
std::vector<SFilledRecord> FilledCommands();
std::vector<SFilledRecord> FilledResults();
std::vector<SFilledRecord> FilledCapabilities();
std::vector<SFilledRecord> FilledCalRecords();
