// What the kinds of faults go with, and do. Used by this folder alone.
#pragma once

#include "Simulator/faults/Faults.h"

bool IsOfTheFlash(EFaultKind kind);
// A function that returns a text can show a null text or a delay, and no other fault.
bool CanShow(const SFunction &function, EFaultKind kind);
// What one fault does to a call on which it fires.
void LayInto(SFaultPlan &plan, const SFault &fault, uint32_t firedCount);
