// Ctrl-C and its kin: the first one is told on the event loop, so that the run can end in its safe
// state; the second one ends the program at once, with a line that RF may be on.
//
// SIGINT, SIGTERM and SIGHUP. One object at a time, on the thread of the event loop; its end gives the
// signals back.
//
//   CEndSignals signals;
//   connect(&signals, &CEndSignals::Signal_Came, &bench, &CBench::Interrupt);
//   ...
//   if (signals.Number() != 0)
//       return 128 + signals.Number();
#pragma once

#include <memory>

#include <QObject>
#include <QSocketNotifier>

class CEndSignals : public QObject
{
    Q_OBJECT

public:
    CEndSignals();
    ~CEndSignals() override;

    // Number of the first signal that came; 0: none.
    int Number() const;
    // "Ctrl-C (SIGINT)"
    QString Name() const;

signals:
    void Signal_Came();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};
