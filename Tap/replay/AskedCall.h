// What a caller of the pair hands over, whatever the function is.
//
//   SAskedCall call = {.function = EFunction::ContRx, .handle = h, .timeoutMs = t};
//   call.request = command;               // may be null: the caller gave none
//   call.requestSize = sizeof(*command);
#pragma once

#include <cstddef>
#include <cstdint>

#include "Trace/dictionary/Functions.h"

struct SAskedCall
{
    EFunction function = EFunction::Count;
    uint32_t handle = 0;
    uint32_t timeoutMs = 0;
    const void *request = nullptr;
    std::size_t requestSize = 0;  // bytes that may be read there
    void *answer = nullptr;
    std::size_t answerSize = 0;  // bytes that may be written there
    uint32_t *status = nullptr;  // where the function has a status word of its own
};
