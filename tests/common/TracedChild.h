// Runs a function in a child process and stops it before and after each of its system calls, where
// it can be killed, or the call be made to fail.
//
// The child is a fork of the caller, which should have one thread. Linux; failing a call is for
// x86-64 alone. Where the system forbids tracing, the result tells so and nothing ran.
//
//   const STracedEnd end = RunTraced([] { return Save() ? 0 : 1; }, [](const SSystemCall &call) {
//       return call.index == 5 && call.done ? STracedFate::Kill() : STracedFate::Go(); });
#pragma once

#include <functional>
#include <string>

struct SSystemCall
{
    int index;    // of the child's calls, from 0 on
    long number;  // SYS_write, ...
    bool done;    // behind the call; false: nothing of it is done yet
    bool failed;  // once it is done
};

struct STracedFate
{
    static STracedFate Go() { return {false, 0}; }
    static STracedFate Kill() { return {true, 0}; }
    // The call does nothing and gives this error; for one that is not done.
    static STracedFate Fail(int error) { return {false, error}; }

    bool kill;
    int error;
};

struct STracedEnd
{
    bool traced = false;  // false: the system forbids it
    bool killed = false;
    int result = -1;  // what the function returned, 0 to 255; -1 when it did not come to that
};

bool CanFailSystemCalls();
STracedEnd RunTraced(const std::function<int()> &run,
                     const std::function<STracedFate(const SSystemCall &)> &judge);
// "write", or "call 123" for one that the table lacks.
std::string SystemCallName(long number);
