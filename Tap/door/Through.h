// The way of every call through the door.
//
//   return Through<EFunction::NrTestStop, decltype(VOND_NRf_TestStop_r)>({.handle = h, .timeoutMs = t}, h, t);
//
// A call that the pair makes itself, of one of its own functions, goes on and is no call through the door.
//
// The first argument is what the call carries (its function is filled in here), behind it stands what
// the next function takes.
#pragma once

#include <type_traits>

#include "Tap/door/NextFunctions.h"
#include "Tap/door/Tap.h"

// No loaded library has the function.
constexpr int32_t kNoSuchFunction = 13003;

template <class Result>
Result OutcomeAs(const SOutcome &outcome)
{
    if constexpr (std::is_same_v<Result, const char *>)
        return outcome.text;
    else
        return outcome.result;
}

// Inlined, so that the return address is that of the door's function.
template <EFunction kId, class Function, class... Args>
[[gnu::always_inline]] inline auto Through(SAskedCall call, Args... args)
{
    using Result = std::invoke_result_t<Function, Args...>;
    const auto goOn = [&]() -> Result {
        auto *const next = reinterpret_cast<Function *>(NextFunction(kId));
        return next != nullptr ? next(args...) : OutcomeAs<Result>({.result = kNoSuchFunction});
    };
    const ETapMode mode = TapMode();
    if (mode == ETapMode::Pass) [[likely]]
        return goOn();
    if (mode == ETapMode::Record && IsFromThePair(__builtin_return_address(0)))
        return goOn();
    call.function = kId;
    return OutcomeAs<Result>(CTap::Instance().Run(call, [&]() -> SOutcome {
        if constexpr (std::is_same_v<Result, const char *>)
            return {.text = goOn()};
        else
            return {.result = goOn()};
    }));
}
