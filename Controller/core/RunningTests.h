// The tests that the tool has started on the target and not stopped yet.
//
// A start counts from the moment at which it goes to the target. A refusal does not take it out:
// a start that timed out, or whose answer was noise, may well run. A stop that went well takes out
// all tests of its kind at its handle. Calling off tells all starts that are still on their way
// that they may not go to the target any more; they know by the moment at which they were asked
// for.
//
// Any thread. onChange is called, on the thread that changed it, when the first test comes or the
// last goes.
//
//   const uint64_t asked = tests.Moment();
//   if (!tests.Begin({EPageId::ContRx, {EStop::MultiRat, handle}}, asked))
//       return kTerminated;
//   ...
//   for (const STargetStop &stop : tests.Stops())
//       Send(stop);
#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

#include "Controller/core/PageId.h"

struct STargetStop
{
    EStop kind;
    uint32_t handle;  // of the target

    friend bool operator==(const STargetStop &a, const STargetStop &b)
    {
        return a.kind == b.kind && a.handle == b.handle;
    }
};

struct SRunningTest
{
    EPageId page;
    STargetStop stop;  // that ends it
};

class CRunningTests
{
public:
    explicit CRunningTests(std::function<void(bool isAny)> onChange);

    // Stands for what is asked for now.
    uint64_t Moment() const;
    // All that was asked for up to now may not begin any more. Is there a test that has?
    bool CallOff();
    bool IsCalledOff(uint64_t asked) const;

    // The test goes to the target. False: it may not, it was called off.
    bool Begin(const SRunningTest &test, uint64_t asked);
    void End(const STargetStop &stop);

    bool IsAny() const;
    // Of the page's last test of that kind; without a page, of the last of any page.
    std::optional<uint32_t> HandleOf(EStop kind, std::optional<EPageId> page) const;
    // Each once, in the order of the starts.
    std::vector<STargetStop> Stops() const;

private:
    mutable std::mutex m_mutex;
    const std::function<void(bool)> m_onChange;
    std::vector<SRunningTest> m_tests;
    uint64_t m_callOffs = 0;
};
