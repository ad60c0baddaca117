// What may be pressed without a person at the bench: guards against a transmission or a write that
// nobody has allowed.
//
// A press of m_start transmits when an enabled txPowerValue is on its page. It needs allowTransmit and
// maxDbm, and each such value must be maxDbm at most. A press of the button "Write" needs allowWrite. The
// rest is free.
//
//   if (const auto refusal = GuardPress(limits, *page, "Start"))
//       return Fail(refusal->Text());
#pragma once

#include <optional>

#include "Runner/bench/BenchTypes.h"

class CBenchPage;

struct SPressLimits
{
    bool allowTransmit = false;
    std::optional<double> maxDbm = {};
    bool allowWrite = false;
};

// button: text or object name, as Press takes it.
std::optional<SRefusal> GuardPress(const SPressLimits &limits, const CBenchPage &page,
                                   const QString &button);
