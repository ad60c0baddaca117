#include "tests/trace/records/FilledRecords.h"

namespace {

std::vector<uint8_t> BytesOf(const std::string &text)
{
    return {text.begin(), text.end()};
}

template <class Number>
CRecordFiller Scalar(const std::string &name)
{
    CRecordFiller filler;
    filler.Set(filler.New<Number>(), name);
    return filler;
}

}  // namespace

SFilledRecord FilledRequest(EFunction function, const CRecordFiller &filler)
{
    return {.function = function,
            .bytes = filler.Bytes(),
            .numbers = filler.Numbers(),
            .texts = filler.Texts()};
}

SFilledRecord FilledAnswer(EFunction function, const CRecordFiller &filler,
                           const std::vector<uint8_t> &request)
{
    SFilledRecord record = FilledRequest(function, filler);
    record.isAnswer = true;
    record.request = request;
    return record;
}

std::vector<SFilledRecord> FilledScalars()
{
    using F = EFunction;
    std::vector<SFilledRecord> records = {
        {.function = F::QueryFunctionSupported,
         .bytes = BytesOf("VOND_NRf_RsrpV7_r"),
         .texts = {{"function", "VOND_NRf_RsrpV7_r"}}},
        FilledRequest(F::GetErrorString, Scalar<int32_t>("result")),
        FilledRequest(F::LteChipName, Scalar<uint32_t>("chipId")),
        FilledRequest(F::NrChipName, Scalar<uint32_t>("chipId")),
        FilledRequest(F::RouteConfig, Scalar<uint32_t>("radioKind")),
        FilledRequest(F::GetCalBlkInfo, Scalar<uint32_t>("radioKind")),
        FilledRequest(F::GetPdValue, Scalar<uint32_t>("kind")),
        FilledAnswer(F::GetPdValue, Scalar<int16_t>("value")),
        FilledRequest(F::MultiModeTestStop, Scalar<uint32_t>("kind")),
        FilledAnswer(F::ModemActiveIndex, Scalar<int32_t>("index")),
        FilledRequest(F::ModemService, Scalar<int32_t>("index")),
        FilledAnswer(F::ModemService, Scalar<int32_t>("serviceType")),
    };
    for (const F function : {F::GetErrorString, F::LteChipName, F::NrChipName})
        records.push_back({.function = function,
                           .isAnswer = true,
                           .bytes = BytesOf("some words"),
                           .texts = {{"text", "some words"}}});
    return records;
}

const std::vector<SFilledRecord> &FilledRecords()
{
    static const std::vector<SFilledRecord> all = [] {
        std::vector<SFilledRecord> records;
        for (const auto part : {&FilledScalars, &FilledCommands, &FilledResults,
                                &FilledCapabilities, &FilledCalRecords}) {
            for (SFilledRecord &record : part())
                records.push_back(std::move(record));
        }
        return records;
    }();
    return all;
}
