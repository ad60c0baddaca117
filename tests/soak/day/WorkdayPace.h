// How long the engineer stays with a thing, by the process's clocks.
#pragma once

struct SWorkdayPace
{
    int reports = 20;   // of a test that reports
    int testMs = 5000;  // another test runs
    int lookMs = 2000;  // a window or a page of the host is looked at
};

// Of a short run.
constexpr SWorkdayPace kBriefPace = {.reports = 1, .testMs = 10, .lookMs = 10};
