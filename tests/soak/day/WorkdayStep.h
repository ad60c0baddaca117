// A deed of the working day that has to be possible, and after which the tool is at rest.
#pragma once

#include <stdexcept>

#include "tests/hands/desk/Desk.h"
#include "tests/hands/rules/Rule.h"

constexpr int kLongMs = 60000;  // ends the wait for what does not come

inline void Need(bool holds, const QString &what)
{
    if (!holds)
        throw std::runtime_error(what.toStdString());
}

// Waits until the tool is idle.
inline void Rest(CDesk &desk)
{
    const QString failure = desk.Settle();
    Need(failure.isEmpty(), failure);
}

inline void Do(CDesk &desk, const SDeed &deed)
{
    Need(deed.failure.isEmpty(), deed.words + ": " + deed.failure);
    Rest(desk);
}

inline void MustDo(CDesk &desk, const SDeed &deed)
{
    Need(deed.isDone, deed.words);
    Do(desk, deed);
}

// Lets the tool's clocks run, at its window and its timers.
void PassMs(int ms);
