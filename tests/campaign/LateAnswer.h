// Stands beside a request whose answer is late: sees that the event loop turns meanwhile, and opens
// the gate then.
//
// Works from a timer, so that it does so in whatever event loop the request brings about. GUI
// thread.
//
//   Lay(fault, EDelay::Gate);
//   CLateAnswer late(fault, EDelay::Gate, [&] { return IsBusy() ? QString() : "not busy"; });
//   ... press Start, wait for the words ...
//   QCOMPARE(late.Problem(), QString());
#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QTimer>

#include "tests/campaign/DoorFaults.h"

class CLateAnswer
{
public:
    // look: asked once before the gate opens; what is wrong with the tool while it waits.
    CLateAnswer(const SDoorFault &fault, EDelay delay, std::function<QString()> look);

    // When the answer is there. Empty when all was well.
    QString Problem() const;

private:
    void Turn();

    const QByteArray m_function;
    const EDelay m_delay;
    const std::function<QString()> m_look;
    QTimer m_timer;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceTurn;
    qint64 m_longestMs = 0;  // between two turns
    int m_turns = 0;         // while the caller stands at the gate
    bool m_isOpen = false;
    QString m_seen;  // what look said
};
