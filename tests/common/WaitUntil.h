// Waits for something that events bring about: handles events until the condition holds, without a
// sleep. False after the deadline, which only a failing test reaches. GUI thread.
//
//   QVERIFY(WaitUntil([&] { return session.StatusBar() == "Init done."; }));
#pragma once

#include <functional>

// How many times as fast the process's clocks run as the machine's (QUORLIN_CLOCK_SPEED, set by who makes
// them run so); 1 as a rule. Deadlines here are the machine's.
int ClockSpeed();

bool WaitUntil(const std::function<bool()> &condition, int deadlineMs = 20000);

// The event loop turns while something else works: twenty timeouts of a timer come through. Hold what
// works by a gate, so that its end cannot be what lets them through.
bool EventLoopTurns();
