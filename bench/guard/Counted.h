// What the regression guard counts: the instructions of a path of the product, and of a floor, work that
// the path can't do without or that is of its kind, in the same process.
//
// Both are run once uncounted, so that what is made at the first use is there. Then each is run under
// GuardCounted, at whose entry and end scripts/guard.sh turns the counting on and off, the path first.
// The name goes to standard output, a line each, which is how the script knows which count is which.
// A path starts no thread, reads no clock, and does the same in each run.
//
//   CountPath("documentText", [&] { ModelToText(ModelFromText(text)); }, [&] { QtText(text); });
#pragma once

#include <cstdio>

// Calls work(context). A function of its own in the program's symbols.
extern "C" void GuardCounted(void (*work)(void *), void *context);

template <typename Work>
void Count(Work &work)
{
    GuardCounted([](void *context) { (*static_cast<Work *>(context))(); }, &work);
}

template <typename Path, typename Floor>
void CountPath(const char *name, Path path, Floor floor)
{
    path();
    floor();
    Count(path);
    Count(floor);
    std::puts(name);
}
