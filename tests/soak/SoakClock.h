// What a fetch costs: the time from the report timer's tick to the rows on the table, and the time
// that the GUI thread works for it.
//
// The GUI thread works while it delivers an event; CSoakApplication takes the processor time of
// that, which is the same on a machine that others use as well. Between two ticks of a running test
// nothing happens but for the fetch, so all work in between is its own: asking, taking the answer,
// layout and paint. What a person does between them would spoil both times, so that fetch is left
// out (Disturb).
//
// GUI thread. All times are ms.
//
//   CSoakClock clock;
//   clock.Watch(page);
//   ... run ...
//   const SFetchCost cost = clock.TakeCost();
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QObject>
#include <QString>

// Time that passed, and processor time of the thread in it.
struct SStretch
{
    double passed;
    double worked;
};

// An application that knows how long its thread works.
class CSoakApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;
    static CSoakApplication *Instance() { return static_cast<CSoakApplication *>(qApp); }

    double Worked() const { return m_worked; }  // processor time in events
    // The longest single event since the last call, by each time: for so long the window stood
    // still.
    SStretch TakeLongest();

private:
    int m_depth = 0;
    double m_worked = 0;
    SStretch m_longest = {};
};

// Mean and worst of some times.
struct SSpread
{
    int count = 0;
    double sum = 0;
    double worst = 0;

    void Add(double value);
    double Mean() const { return count > 0 ? sum / count : 0; }
};

struct SFetchCost
{
    SSpread toRows;  // from a tick to its rows
    SSpread gui;     // processor time of the GUI thread
};

class CSoakClock : public QObject
{
    Q_OBJECT

public:
    // Watches the report timer and the status lines of an RSRP page. False when it has no timer.
    bool Watch(QObject *page);
    // Leaves out the fetch under way, if any.
    void Disturb();
    // Rows that come from now on are the first ones of an empty table.
    void TableIsCleared() { m_answersInTable = 0; }

    int Answers() const { return m_answers; }                // good ones, since Watch
    int AnswersInTable() const { return m_answersInTable; }  // good ones, since the last clear
    int Skipped() const { return m_skipped; }                // ticks that an answer was late for
    const QString &Failure() const { return m_failure; }     // status line of a failed fetch
    // The costs since the last call.
    SFetchCost TakeCost();

    bool eventFilter(QObject *receiver, QEvent *event) override;

private slots:
    void OnStatus(QString text);

private:
    void OnTick();

    QElapsedTimer m_sinceTick;
    bool m_isAsked = false;     // the answer to a tick is on its way
    bool m_isAnswered = false;  // its rows are there; the next tick ends its account
    double m_workedAtTick = 0;
    int m_answers = 0;
    int m_answersInTable = 0;
    int m_skipped = 0;
    QString m_failure;
    SFetchCost m_cost;
};
