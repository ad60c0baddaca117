// The tests that the tool has started on the target and not stopped yet.
//
// A test is entered when its start goes to the target. A failed start does not take it out: a start
// that timed out, or whose answer was noise, may well run. A stop that went well takes out all
// tests of its kind and handle. Calling off forbids all starts that are still on their way to go to
// the target; the moment at which a start was asked for tells whether it is one of them.
//
// Any thread. onAny is called, on the thread that changed it, when the first test comes or the last
// goes; onNewest each time that another test is the newest, with an empty text when the last is gone.
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
#include "Model/RunningTest.h"

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
    SRunningTestInfo info = {};
};

class CRunningTests
{
public:
    using OnAny = std::function<void(bool isAny)>;
    using OnNewest = std::function<void(const SRunningTestInfo &newest)>;

    explicit CRunningTests(
        OnAny onAny, OnNewest onNewest = [](const SRunningTestInfo &) {});

    // The present moment, for a start that is asked for now.
    uint64_t Moment() const;
    // No start that was asked for up to now may begin any more. True when a test runs.
    bool CallOff();
    bool IsCalledOff(uint64_t asked) const;

    // Enters a test that goes to the target now. False: it was called off and may not go.
    bool Begin(const SRunningTest &test, uint64_t asked);
    void End(const STargetStop &stop);

    bool IsAny() const;
    SRunningTestInfo Newest() const;
    // Of the page's last test of that kind; without a page, of the last of any page.
    std::optional<uint32_t> HandleOf(EStop kind, std::optional<EPageId> page) const;
    // Each once, in the order of the starts.
    std::vector<STargetStop> Stops() const;

private:
    mutable std::mutex m_mutex;
    const OnAny m_onAny;
    const OnNewest m_onNewest;
    std::vector<SRunningTest> m_tests;
    uint64_t m_callOffs = 0;
};
