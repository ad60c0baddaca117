// The campaign's books: which cases ran and which held, by request, function and kind of fault.
//
// A case holds when nothing is said against it. Print writes the tables and every case that does
// not hold to stdout. Any one thread.
//
//   tally.Book({"RSSI: measure", "VOND_MMRf_RssiV7_r", EFault::Fail, "fail 4"}, problem);
//   tally.Print();
//   return tally.AllHeld() ? 0 : 1;
#pragma once

#include <vector>

#include <QMap>
#include <QString>
#include <QStringList>

#include "tests/campaign/DoorFaults.h"

struct SCase
{
    QString request;
    QString function;
    EFault kind;
    QString fault;  // exactly which one
};

class CTally
{
public:
    // problem: why the case does not hold; empty when it does.
    void Book(const SCase &which, const QString &problem);
    // A scenario under a request: how often the request was made, and failed of these, in the case.
    void BookScenario(const QString &scenario, const QString &request, int made, int failed,
                      const QString &problem);
    // A request reaches a function in a good run.
    void Reach(const QString &request, const QString &function, int calls);
    // Something beside the cases that must hold, too.
    void Complain(const QString &problem);

    QStringList ReachedFunctions() const { return m_reach.keys(); }
    // At least one case, and all of them.
    bool AllHeld() const;
    void Print() const;
    void PrintReach() const;

private:
    struct SCount
    {
        int run = 0;
        int held = 0;
    };
    struct SPlay
    {
        SCount cases;
        int made = 0;
        int failed = 0;
    };
    static QString Text(const SCount &count);
    void PrintScenarios() const;
    void PrintBy(const char *head, const QMap<QString, std::vector<SCount>> &rows) const;

    QMap<QString, std::vector<SCount>> m_byFunction;  // a count for each kind
    QMap<QString, std::vector<SCount>> m_byRequest;
    QMap<QString, SPlay> m_byScenario;
    QMap<QString, QStringList> m_reach;  // function to the requests that reach it
    SCount m_all;
    QStringList m_complaints;
};
