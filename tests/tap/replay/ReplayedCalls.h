// Calls of a trace, and what a caller asks a replay, as short as a test wants them.
//
//   const CReplay replay({}, {Recorded(EFunction::GetPdValue, 1u, int16_t{-2560})});
//   int16_t value = 0;
//   Ask(replay, EFunction::GetPdValue, 1u, value);   // 0
#pragma once

#include <cstring>
#include <string>
#include <string_view>

#include "Tap/replay/Replay.h"

struct SNone
{
};

template <class Record>
TraceBytes BytesOf(const Record &record)
{
    if constexpr (std::is_same_v<Record, SNone>) {
        return std::nullopt;
    } else if constexpr (std::is_convertible_v<Record, std::string_view>) {
        const std::string_view text = record;
        return std::vector<uint8_t>(text.begin(), text.end());
    } else {
        std::vector<uint8_t> bytes(sizeof(record));
        std::memcpy(bytes.data(), &record, sizeof(record));
        return bytes;
    }
}

template <class Request = SNone, class Record = SNone>
STraceCall Recorded(EFunction function, const Request &request = {}, const Record &answer = {},
                    int32_t result = 0)
{
    STraceCall call;
    call.function = &FunctionOf(function);
    call.handle = 1;
    call.timeoutMs = 10000;
    call.request = BytesOf(request);
    call.answer = BytesOf(answer);
    call.result = result;
    return call;
}

template <class Request>
SAskedCall Asked(EFunction function, const Request &request)
{
    return {.function = function, .request = &request, .requestSize = sizeof(request)};
}

template <class Request, class Record>
int32_t Ask(const CReplay &replay, EFunction function, const Request &request, Record &answer)
{
    SAskedCall call = Asked(function, request);
    call.answer = &answer;
    call.answerSize = sizeof(answer);
    return replay.Answer(call);
}

template <class Request>
int32_t Ask(const CReplay &replay, EFunction function, const Request &request)
{
    return replay.Answer(Asked(function, request));
}

inline int32_t Ask(const CReplay &replay, EFunction function)
{
    return replay.Answer({.function = function});
}

inline std::string TextOf(const CReplay &replay, int32_t result)
{
    const char *const text = replay.AnswerText(Asked(EFunction::GetErrorString, result));
    return text != nullptr ? text : "null";
}
