// How long events hold the GUI thread.
//
// An event's time is that of its handlers, painting apart; the events of an event loop inside it, as
// a dialog runs one, count on their own. Processor time of the thread, so that other programs don't
// show. GUI thread.
//
//   CTimedApplication application(argc, argv);
//   application.BeginWatch();
//   ... a request, as posted events, until its answer is shown ...
//   application.Longest().seconds;
#pragma once

#include <ctime>
#include <string>
#include <vector>

#include <QApplication>
#include <QEvent>
#include <QThread>

inline double ThreadSeconds()
{
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

struct SLongestEvent
{
    double seconds = 0;
    std::string receiver = {};  // class and kind of event
};

class CTimedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    // Of an event under way, what is left of it counts.
    void BeginWatch()
    {
        m_longest = {};
        for (SFrame &frame : m_frames)
            frame = {.level = frame.level, .start = ThreadSeconds()};
    }
    const SLongestEvent &Longest() const { return m_longest; }

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (QThread::currentThread() != thread())
            return QApplication::notify(receiver, event);
        const int level = thread()->loopLevel();
        const bool isPaint =
            event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest;
        const bool isOwn = m_frames.empty() || m_frames.back().level != level;
        if (!isPaint && !isOwn)
            return QApplication::notify(receiver, event);
        const std::string name =
            std::string(receiver->metaObject()->className()) + " " + std::to_string(event->type());
        m_frames.push_back({.level = level, .start = ThreadSeconds()});
        const bool isTaken = QApplication::notify(receiver, event);
        const double whole = ThreadSeconds() - m_frames.back().start;
        const double seconds = whole - m_frames.back().apart;
        m_frames.pop_back();
        if (!m_frames.empty())
            m_frames.back().apart += whole;
        if (!isPaint && seconds > m_longest.seconds)
            m_longest = {.seconds = seconds, .receiver = name};
        return isTaken;
    }

private:
    struct SFrame
    {
        int level;
        double start;
        double apart = 0;  // seconds of what does not count here
    };
    std::vector<SFrame> m_frames;
    SLongestEvent m_longest;
};
