#include "Simulator/faults/FaultKinds.h"

bool IsOfTheFlash(EFaultKind kind)
{
    return kind == EFaultKind::PowerCut || kind == EFaultKind::Stuck;
}

bool CanShow(const SFunction &function, EFaultKind kind)
{
    const bool isText = function.kind == EFunctionKind::Library;
    switch (kind) {
    case EFaultKind::Fail:
    case EFaultKind::Noise:
    case EFaultKind::Bytes:
        return !isText;
    case EFaultKind::Status:
        return function.HasStatus();
    case EFaultKind::NullText:
        return isText;
    case EFaultKind::PowerCut:
    case EFaultKind::Stuck:
        return function.id == EFunction::SetCalData;
    case EFaultKind::Delay:
        break;
    }
    return true;
}

void LayInto(SFaultPlan &plan, const SFault &fault, uint32_t firedCount)
{
    switch (fault.kind) {
    case EFaultKind::Fail:
        plan.result = fault.result;
        break;
    case EFaultKind::Status:
        plan.status = fault.status;
        break;
    case EFaultKind::Delay:
        plan.delayMs += fault.delayMs;
        break;
    case EFaultKind::NullText:
        plan.nullText = true;
        break;
    case EFaultKind::Noise:
        plan.noiseSeed = fault.seed + firedCount;
        break;
    case EFaultKind::Bytes:
        plan.patches.push_back(fault.patch);
        break;
    case EFaultKind::PowerCut:
    case EFaultKind::Stuck:
        break;  // see OfFlash
    }
}
