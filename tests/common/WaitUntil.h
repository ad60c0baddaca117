// Waits for something that events bring about: handles events until the condition holds, without a
// sleep. False after the deadline, which only a failing test reaches. GUI thread.
//
//   QVERIFY(WaitUntil([&] { return session.StatusBar() == "Init done."; }));
#pragma once

#include <functional>

bool WaitUntil(const std::function<bool()> &condition, int deadlineMs = 20000);

// The event loop turns while something else works: twenty timeouts of a timer come through. Hold what
// works by a gate, so that its end cannot be what lets them through.
bool EventLoopTurns();
