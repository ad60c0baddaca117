// What a run of plans is told on the command line, and how it ends.
#pragma once

#include <QString>
#include <QStringList>

#include "Runner/bench/Bench.h"
#include "Runner/plan/Defines.h"

struct SRunOptions
{
    QStringList plans;
    SBenchOptions bench;
    QString out;  // folder of the reports; empty: "quorlin-PLAN-TIME"
    DefineMap defines;
    bool mayTransmit = false;
    bool mayWrite = false;
    bool isCheck = false;  // look for errors, start nothing
    bool endsAtFailure = false;
};

// Exit codes of a run. 128 and the signal's number stand beside them.
enum ERunExit : int
{
    eRunGood = 0,         // all expectations hold
    eRunFailed = 1,       // one does not
    eRunWrong = 2,        // the plan or the command line is wrong, or a guard refused
    eRunUnsupported = 3,  // the tool can't run on this DUT
    eRunBroken = 4,       // a step could not be carried out
};

// The code of several: a signal, then 2, 3, 4, 1.
class CRunExit
{
public:
    void Note(int code);
    int Code() const { return m_code; }

private:
    int m_code = eRunGood;
};
