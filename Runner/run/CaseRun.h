// Carries out one case: inputs, presses, wait, expectations, export, and then the step's "then".
//
//   CCaseRun run(bench, limits, runCase, folder);
//   const SCaseResult result = run.Run();
//   if (run.EndsPlan())
//       ...
#pragma once

#include "Runner/bench/Bench.h"
#include "Runner/bench/BenchPage.h"
#include "Runner/bench/PressGuard.h"
#include "Runner/report/CaseResult.h"
#include "Runner/run/RunPlan.h"

// The case as it stands in the reports before it runs.
SCaseResult CaseBefore(const SRunCase &runCase);

class CCaseRun
{
public:
    // folder: where exported files go.
    CCaseRun(CBench &bench, const SPressLimits &limits, const SRunCase &runCase,
             const QString &folder);

    // hasInputs: the page holds the inputs of the case already.
    SCaseResult Run(bool hasInputs);

    // After Run: the case could not be carried out, so the plan ends.
    bool EndsPlan() const { return m_result.verdict == EVerdict::Error; }
    // After Run: a guard refused a press; the plan is wrong.
    bool IsRefused() const { return m_isRefused; }

private:
    bool CarryOut(bool hasInputs);
    bool TakeInputs(bool hasInputs);
    bool Press(const SPlacedText &button);
    bool Wait();
    bool WaitFor(const SPlanWait &wait);
    bool Export();
    void Look();
    void PressThen();
    void LookForDut();
    bool Fail(const QString &reason);  // always false
    bool Interrupted();
    QString Where(SPlace place) const;
    bool HasUnexpectedBox() const;

    CBench &m_bench;
    SPressLimits m_limits;
    const SRunCase &m_case;
    QString m_folder;
    CBenchPage *m_page = nullptr;
    SCaseResult m_result;
    QVector<SBenchBox> m_boxes;
    bool m_isRefused = false;
};
