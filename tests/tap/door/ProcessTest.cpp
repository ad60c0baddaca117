// Recordings of hosts with many threads and processes, and of hosts that end or leave their calls in odd
// ways.
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <map>
#include <set>

#include "tests/tap/door/TapRun.h"

namespace {

class ProcessTest : public CTapRun
{
protected:
    static std::size_t OpenCalls(const STrace &trace)
    {
        return static_cast<std::size_t>(
            std::count_if(trace.calls.begin(), trace.calls.end(),
                          [](const auto &call) { return !call.isEnded; }));
    }
};

TEST_F(ProcessTest, SixteenThreadsAreToldApart)
{
    const SRan ran = Record("TapHost", {"threads"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors;
    const STrace trace = Trace();
    EXPECT_EQ(trace.calls.size(), 16u * 50 * 2);
    std::map<uint64_t, std::set<uint32_t>> timeouts;  // each thread calls with its own
    for (const STraceCall &call : trace.calls)
        timeouts[call.thread].insert(call.timeoutMs);
    EXPECT_EQ(timeouts.size(), 16u);
    for (const auto &[thread, of] : timeouts)
        EXPECT_EQ(of.size(), 1u) << thread;
}

TEST_F(ProcessTest, ForkedProcessesWriteOneTrace)
{
    const SRan ran = Record("TapHost", {"forks"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors;
    EXPECT_EQ(ran.errors, "");
    const STrace trace = Trace();
    EXPECT_EQ(trace.calls.size(), 1u + 5 * 25 * 2);
    std::map<uint64_t, std::size_t> calls;
    std::set<uint64_t> numbers;
    for (const STraceCall &call : trace.calls) {
        ++calls[call.process];
        numbers.insert(call.index);
    }
    EXPECT_EQ(calls.size(), 5u);
    EXPECT_EQ(calls[static_cast<uint64_t>(ran.process)], 51u);
    EXPECT_EQ(numbers.size(), trace.calls.size());
}

TEST_F(ProcessTest, ProcessesForkedBeforeTheFirstCallLeaveEachOtherAlone)
{
    const SRan ran = Record("TapHost", {"early"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors;
    std::size_t calls = 0;
    for (const auto &file : std::filesystem::directory_iterator(Folder())) {
        const std::string path = file.path();
        if (path.find("run.jsonl") != std::string::npos)
            calls += ReadTrace(path, ECutLine::Refused).calls.size();
    }
    // A process that ends before the next one opens the file leaves it to that one.
    EXPECT_TRUE(calls == 50u || calls == 100u || calls == 150u) << calls;
    EXPECT_EQ(Trace().calls.size(), 50u);
}

TEST_F(ProcessTest, ProcessMayEndWhileThreadsAreInCalls)
{
    const SRan ran = Record("TapHost", {"exit"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors;
    EXPECT_EQ(ran.errors, "");
    const STrace trace = Trace();
    EXPECT_GE(trace.calls.size(), 100u);
    EXPECT_LE(OpenCalls(trace), 4u);
}

TEST_F(ProcessTest, CallThatDidNotComeBackIsOpen)
{
    const SRan ran = Record("TapHost", {"stuck"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors;
    const STrace trace = Trace();
    ASSERT_EQ(OpenCalls(trace), 1u);
    EXPECT_EQ(trace.calls[2].function, &FunctionOf(EFunction::MultiModeTestStop));
    EXPECT_FALSE(trace.calls[2].isEnded);
    EXPECT_EQ(trace.calls.size(), 5u);
}

TEST_F(ProcessTest, CancelledThreadsLeaveTheTraceWriting)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "The address sanitizer knows no stack that a cancelled thread leaves.";
#endif
    const SRan ran = Record("TapHost", {"cancel"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors;
    const STrace trace = Trace();
    EXPECT_TRUE(trace.calls.back().isEnded);
    EXPECT_EQ(trace.calls.size() - OpenCalls(trace), 6u);
}

TEST_F(ProcessTest, SignalHandlersMayJumpOutOfACall)
{
    // Who jumps out of a call leaves what the call had taken.
    const SRan ran = Record("TapHost", {"jump"}, {"ASAN_OPTIONS=detect_leaks=0"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors;
    const STrace trace = Trace();
    EXPECT_EQ(OpenCalls(trace), 3u);
    EXPECT_EQ(trace.calls.size(), 9u);
}

TEST_F(ProcessTest, SignalsInterruptNoLine)
{
    const SRan ran = Record("TapHost", {"signals"});
    EXPECT_EQ(ran.exitCode, 0) << ran.errors;
    EXPECT_EQ(ran.errors, "");
    EXPECT_EQ(Trace().calls.size(), 400u);
}

}  // namespace
