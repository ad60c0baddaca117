#include "Simulator/faults/FaultSet.h"

#include <algorithm>
#include <utility>

namespace {

// Noise in every function passes by those that answer nothing: it would be spent without a trace.
bool IsMeant(const SFault &fault, const SFunction &function)
{
    if (fault.function != nullptr)
        return fault.function->id == function.id;
    const bool answers = function.answer != nullptr || function.HasStatus();
    return CanShow(function, fault.kind) && (fault.kind != EFaultKind::Noise || answers);
}

}  // namespace

void CFaultSet::SetProfileFaults(const std::vector<SFault> &faults)
{
    RemoveOf(EFaultSource::Profile);
    for (const SFault &fault : faults)
        Append(fault, EFaultSource::Profile);
}

void CFaultSet::Add(const SFault &fault, EFaultSource source, std::optional<CTrigger> trigger)
{
    SState &state = Append(fault, source);
    if (trigger)
        state.row.when = trigger->When();
    state.trigger = std::move(trigger);
}

void CFaultSet::AddOnce(const SFault &fault)
{
    Append(fault, EFaultSource::Added).isOnce = true;
}

void CFaultSet::Clear()
{
    m_states.clear();
}

void CFaultSet::RemoveOf(EFaultSource source)
{
    m_states.erase(std::remove_if(m_states.begin(), m_states.end(),
                                  [&](const SState &state) { return state.row.source == source; }),
                   m_states.end());
}

SFaultRow CFaultSet::Row(std::size_t index) const
{
    const SState &state = m_states[index];
    SFaultRow row = state.row;
    row.isOver = IsOver(state);
    return row;
}

bool CFaultSet::Replace(uint32_t id, const SFault &fault)
{
    SState *state = Find(id);
    if (state == nullptr)
        return false;
    Begin(*state, fault);
    if (state->row.source == EFaultSource::Profile)
        state->row.source = EFaultSource::Added;
    return true;
}

bool CFaultSet::Switch(uint32_t id, bool isOn)
{
    SState *state = Find(id);
    if (state != nullptr)
        state->row.isOn = isOn;
    return state != nullptr;
}

bool CFaultSet::Remove(uint32_t id)
{
    const auto found = std::find_if(m_states.begin(), m_states.end(),
                                    [&](const SState &state) { return state.row.id == id; });
    if (found == m_states.end())
        return false;
    m_states.erase(found);
    return true;
}

SFaultPlan CFaultSet::Plan(const SFunction &function)
{
    SFaultPlan plan;
    for (SState &state : m_states) {
        if (!state.row.isOn)
            continue;
        if (state.trigger && state.trigger->Meets(function))
            Arm(state);
        const SFault &fault = state.row.fault;
        if (!IsMeant(fault, function))
            continue;
        ++state.row.callCount;
        if (IsOfTheFlash(fault.kind) || !Fires(state))
            continue;
        ++state.row.firedCount;
        LayInto(plan, fault, state.row.firedCount);
    }
    m_states.erase(std::remove_if(m_states.begin(), m_states.end(),
                                  [](const SState &state) {
                                      return state.isOnce && state.row.firedCount > 0;
                                  }),
                   m_states.end());
    return plan;
}

SFlashFaults CFaultSet::OfFlash() const
{
    SFlashFaults faults;
    for (const SState &state : m_states) {
        const SFault &fault = state.row.fault;
        if (!IsInForce(state))
            continue;
        if (fault.kind == EFaultKind::Stuck)
            faults.stuck.push_back(fault.stuck);
        if (fault.kind == EFaultKind::PowerCut &&
            (!faults.cut || state.blocksLeft < faults.cut->blocksBefore))
            faults.cut = SPowerCut{.blocksBefore = state.blocksLeft, .isTorn = fault.cut.isTorn};
    }
    return faults;
}

void CFaultSet::CountBlocks(uint32_t blocks, bool isCut)
{
    for (SState &state : m_states) {
        if (!IsInForce(state))
            continue;
        if (state.row.fault.kind == EFaultKind::Stuck && blocks > 0)
            ++state.row.firedCount;
        if (state.row.fault.kind != EFaultKind::PowerCut)
            continue;
        state.blocksLeft -= std::min(blocks, state.blocksLeft);
        if (isCut && state.blocksLeft == 0) {
            state.isCutDone = true;
            ++state.row.firedCount;
        }
    }
}

// Counts and chance from the start.
void CFaultSet::Begin(SState &state, const SFault &fault)
{
    state.row.fault = fault;
    state.row.callCount = 0;
    state.row.firedCount = 0;
    state.isArmed = false;
    state.isCutDone = false;
    state.blocksLeft = fault.cut.blocksBefore;
    state.draw.seed(fault.seed);
}

// A cut that has been may come again.
void CFaultSet::Arm(SState &state)
{
    state.isArmed = true;
    if (state.isCutDone) {
        state.isCutDone = false;
        state.blocksLeft = state.row.fault.cut.blocksBefore;
    }
}

bool CFaultSet::Fires(SState &state)
{
    if (state.trigger)
        return std::exchange(state.isArmed, false);
    const SFault &fault = state.row.fault;
    if (fault.nth != 0)
        return state.row.callCount == fault.nth;
    return !fault.probability || IsWithin(state.draw, *fault.probability);
}

bool CFaultSet::IsOver(const SState &state)
{
    if (state.isCutDone)
        return !state.trigger || state.trigger->IsOver();
    const uint32_t nth = state.row.fault.nth;
    if (nth != 0 && state.row.callCount >= nth)
        return true;
    const bool isForGood = IsOfTheFlash(state.row.fault.kind);
    return state.trigger && state.trigger->IsOver() && !state.isArmed && !isForGood;
}

// Of the flash's.
bool CFaultSet::IsInForce(const SState &state)
{
    return state.row.isOn && !state.isCutDone && (!state.trigger || state.isArmed);
}

CFaultSet::SState &CFaultSet::Append(const SFault &fault, EFaultSource source)
{
    SState &state = m_states.emplace_back();
    state.row.id = ++m_lastId;
    state.row.source = source;
    Begin(state, fault);
    return state;
}

CFaultSet::SState *CFaultSet::Find(uint32_t id)
{
    for (SState &state : m_states) {
        if (state.row.id == id)
            return &state;
    }
    return nullptr;
}
