// Opens a gate of the simulated DUT when the GUI thread has waited in front of it.
//
// The tool's GUI thread must not wait for the target. If it does while the campaign holds a call,
// nobody is left who could open the gate: this thread does, and remembers it.
//
//   CWatchdog watchdog;
//   watchdog.Guard("VOND_MMRf_ContRxV7_r");
//   watchdog.Feed();        // the GUI thread, often
//   watchdog.HasBitten();   // it did not come for a long time
#pragma once

#include <QByteArray>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

class CWatchdog : public QThread
{
public:
    CWatchdog();
    ~CWatchdog() override;

    // An empty name: no gate.
    void Guard(const QByteArray &function);
    void Feed();
    bool HasBitten();

protected:
    void run() override;

private:
    QMutex m_mutex;
    QWaitCondition m_changed;
    QByteArray m_function;
    bool m_isFed = false;
    bool m_hasBitten = false;
    bool m_isEnding = false;
};
