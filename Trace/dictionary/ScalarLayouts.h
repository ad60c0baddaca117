// Requests and answers that are one number or one text, each a layout with one field, named as the
// headers of Vond/ name the argument.
#pragma once

#include "Trace/dictionary/Layouts.h"
#include "Trace/dictionary/ValueNames.h"

template <class Number>
constexpr SFieldPlace NumberPlace(std::string_view name)
{
    return {.name = name, .type = NumberType<Number>(), .size = sizeof(Number)};
}

constexpr SFieldPlace TextPlace(std::string_view name)
{
    return {.name = name, .type = EFieldType::Text};
}

#define TRACE_SCALAR(Name, bytes, ...)                                                             \
    inline constexpr SField k##Name##Fields[] = {{__VA_ARGS__}};                                   \
    inline constexpr SLayout k##Name##Layout = {                                                   \
        .name = #Name, .size = (bytes), .fields = k##Name##Fields};                                \
    static_assert(IsSound(k##Name##Layout))

TRACE_SCALAR(FunctionName, 0, .at = TextPlace("function"));
TRACE_SCALAR(ResultCode, 4, .at = NumberPlace<int32_t>("result"));
TRACE_SCALAR(AnswerText, 0, .at = TextPlace("text"));
TRACE_SCALAR(RadioKind, 4, .at = NumberPlace<uint32_t>("radioKind"), .values = kRadioKindNames);
TRACE_SCALAR(ChipId, 4, .at = NumberPlace<uint32_t>("chipId"));
TRACE_SCALAR(PdKind, 4, .at = NumberPlace<uint32_t>("kind"));
TRACE_SCALAR(PdValue, 2, .at = NumberPlace<int16_t>("value"), .unit = kDbm256, .isReading = true);
TRACE_SCALAR(StopKind, 4, .at = NumberPlace<uint32_t>("kind"), .values = kStopKindNames);
TRACE_SCALAR(ModemIndex, 4, .at = NumberPlace<int32_t>("index"));
TRACE_SCALAR(ServiceType, 4, .at = NumberPlace<int32_t>("serviceType"), .values = kServiceNames);
