// What a run says while it goes: a line that is written over on a terminal, and a line a case that has ended.
//
// The remaining time is that of the cases which are left, at the pace of those that have ended; waits of the
// plan for a time are known beforehand and counted as they are.
//
//   CProgress progress(cases);
//   progress.Begin(3);       // [4/40] gains [band=n41], 2 min left
//   progress.End(result);    // fail  gains [band=n41]: ...
#pragma once

#include <chrono>
#include <vector>

#include <QElapsedTimer>

#include "Runner/report/CaseResult.h"
#include "Runner/run/RunPlan.h"

class CProgress
{
public:
    explicit CProgress(std::vector<SRunCase> cases);
    ~CProgress();

    void Begin(std::size_t index);
    void End(const SCaseResult &result);

private:
    std::chrono::milliseconds Left(std::size_t index) const;
    void Clear();

    std::vector<SRunCase> m_cases;
    QElapsedTimer m_clock;
    std::chrono::milliseconds m_waited{0};  // of the cases that have ended, by their plan
    std::size_t m_ended = 0;
    bool m_isTerminal = false;
};

// "45 s", "12 min", "3 h 20 min"
QString LeftText(std::chrono::milliseconds left);
