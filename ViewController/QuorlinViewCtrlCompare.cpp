// Comparisons and guarded writes of the view controller: jobs with an answer of their own, which tell
// how far they are.
#include "ViewController/QuorlinViewCtrlJobs.h"

namespace {

constexpr char kEndedEarly[] = "The job ended early. Look at the log.";

}  // namespace

template <>
inline SCalCompared AnswerOfNothing()
{
    return {.result = {QString(), eStatusNotExecuted, QLatin1String(kEndedEarly)}};
}
template <>
inline SCalSecondRead AnswerOfNothing()
{
    return {.result = {QString(), eStatusNotExecuted, QLatin1String(kEndedEarly)}};
}
template <>
inline SGuardedPlan AnswerOfNothing()
{
    return {.refusal = QLatin1String(kEndedEarly)};
}
template <>
inline SGuardedReport AnswerOfNothing()
{
    return {.text = QLatin1String(kEndedEarly)};
}

void CQuorlinViewCtrl::AwaitWork(ECalItem item)
{
    AwaitAnswer(&CCoreAnswers::Signal_CalWork,
                [own = CalItemName(item)](CQuorlinViewCtrl *self, const QString &name,
                                          const QString &step, int routesDone, int routesInAll) {
                    if (name == own)
                        emit self->Signal_CalWork(step, routesDone, routesInAll);
                });
}

// What the core tells of the work comes before its answer; both go by the GUI thread's queue.
template <typename Job, typename... Answers>
void CQuorlinViewCtrl::RunWork(ECalItem item, const char *internalName,
                               void (CQuorlinViewCtrl::*signal)(Answers...), Job job)
{
    AwaitWork(item);
    RunOnPool(internalName, signal, std::move(job));
}

void CQuorlinViewCtrl::RequestComparison(ECalItem item, CHandedDocument document,
                                         SComparedSide left, SComparedSide right)
{
    RunWork(item, "CompareInternal", &CQuorlinViewCtrl::Signal_ComparisonDone,
            [item, document = std::move(document), left = std::move(left),
             right = std::move(right)](CNrCore &core) mutable {
                core.SetCalibrationData(item, document.Take());
                return std::make_tuple(core.CompareCal(item, left, right));
            });
}

void CQuorlinViewCtrl::RequestSecondImage(ECalItem item, CHandedDocument document,
                                          SComparedSide side)
{
    RunWork(item, "SecondImageInternal", &CQuorlinViewCtrl::Signal_SecondImageDone,
            [item, document = std::move(document), side = std::move(side)](CNrCore &core) mutable {
                core.SetCalibrationData(item, document.Take());
                return std::make_tuple(core.ReadSecondImage(item, side));
            });
}

void CQuorlinViewCtrl::RequestGuardedPlan(ECalItem item, CHandedDocument document)
{
    RunWork(item, "GuardedPlanInternal", &CQuorlinViewCtrl::Signal_GuardedPlanDone,
            [item, document = std::move(document)](CNrCore &core) mutable {
                core.SetCalibrationData(item, document.Take());
                return std::make_tuple(core.PlanGuardedWrite(item));
            });
}

void CQuorlinViewCtrl::RequestGuardedWrite(ECalItem item, SGuardedPlan plan)
{
    RunWork(item, "GuardedWriteInternal", &CQuorlinViewCtrl::Signal_GuardedWriteDone,
            [plan = std::move(plan)](CNrCore &core) {
                return std::make_tuple(core.CarryGuardedWrite(plan));
            });
}
