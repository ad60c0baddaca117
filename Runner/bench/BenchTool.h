// What a page needs of the tool that it belongs to: is it busy, what does it say, and waits.
//
// A wait runs the event loop and looks at its condition after every turn. GUI thread. CBench is the tool.
//
//   if (tool.WaitUntil([&] { return page.Rows() >= 20; }, kBenchWait) == EBenchWait::Done) ...
#pragma once

#include <chrono>
#include <functional>

#include <QObject>

#include "Runner/bench/BenchTypes.h"

constexpr std::chrono::milliseconds kBenchWait = std::chrono::seconds(60);

enum class EBenchWait
{
    Done,
    Late,         // the bound has passed
    Interrupted,  // from outside
    Gone,         // the tool's window is gone
};

class CBenchTool : public QObject
{
    Q_OBJECT

public:
    virtual bool IsBusy() const = 0;
    virtual QString Status() const = 0;  // the line in the status bar

    // The wait may stand within another.
    virtual EBenchWait WaitUntil(const std::function<bool()> &condition,
                                 std::chrono::milliseconds bound) = 0;
    EBenchWait WaitIdle(std::chrono::milliseconds bound)
    {
        return WaitUntil([this] { return !IsBusy(); }, bound);
    }

    // From a press on, RF Off belongs to the end.
    virtual void NotePress() = 0;

signals:
    void Signal_Status(const QString &line);
    void Signal_Busy(bool isBusy);
    void Signal_Box(const SBenchBox &box);
};
