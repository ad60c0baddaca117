// A press of a button, and its end.
#include "Runner/bench/BenchPage.h"

#include <QAbstractButton>
#include <QElapsedTimer>

namespace {

// Collects what the tool says while a press is under way.
struct SPressWatch : QObject
{
    explicit SPressWatch(CBenchTool &bench)
    {
        connect(&bench, &CBenchTool::Signal_Busy, this, [this](bool isBusy) { wasBusy |= isBusy; });
        connect(&bench, &CBenchTool::Signal_Box, this,
                [this](const SBenchBox &box) { boxes.append(box); });
    }

    bool wasBusy = false;
    QVector<SBenchBox> boxes;
};

EPressEnd EndOf(EBenchWait end)
{
    switch (end) {
    case EBenchWait::Done:
        return EPressEnd::Idle;
    case EBenchWait::Late:
        return EPressEnd::Late;
    case EBenchWait::Interrupted:
        return EPressEnd::Interrupted;
    case EBenchWait::Gone:
        break;
    }
    return EPressEnd::Gone;
}

}  // namespace

// Idle is what stays so for a turn of the event loop: an end may bring a stop that was asked for meanwhile,
// or a box of its own.
SPressEnd CBenchPage::Press(const QString &name, std::chrono::milliseconds bound)
{
    SPressEnd end;
    end.how = EPressEnd::Refused;
    if (const auto refusal = Raise()) {
        end.refusal = *refusal;
        return end;
    }
    QAbstractButton *button = ButtonOf(name, end.refusal);
    SBenchButton read;
    if (!button || FindButton(name, read))
        return end;
    if (!read.isEnabled || !read.isShown) {
        end.refusal = {
            QStringLiteral("The button \"%1\" is %2 now.")
                .arg(read.text, read.isShown ? QStringLiteral("off") : QStringLiteral("hidden"))};
        return end;
    }
    m_bench.NotePress();
    SPressWatch watch(m_bench);
    QElapsedTimer clock;
    clock.start();
    if (button->focusPolicy() & Qt::ClickFocus)
        button->setFocus(Qt::MouseFocusReason);
    button->click();
    EBenchWait waited = EBenchWait::Done;
    bool isStill = false;
    while (waited == EBenchWait::Done && !isStill) {
        waited = m_bench.WaitUntil([this] { return !m_bench.IsBusy(); }, bound);
        bool isTurned = false;
        QMetaObject::invokeMethod(
            &watch, [&isTurned] { isTurned = true; }, Qt::QueuedConnection);
        if (waited == EBenchWait::Done)
            waited = m_bench.WaitUntil([&isTurned] { return isTurned; }, bound);
        isStill = !m_bench.IsBusy();
    }
    end.how = EndOf(waited);
    end.wasBusy = watch.wasBusy;
    end.boxes = watch.boxes;
    end.status = m_bench.Status();
    end.duration = std::chrono::microseconds(clock.nsecsElapsed() / 1000);
    return end;
}
