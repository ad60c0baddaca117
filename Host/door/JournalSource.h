// The journal of the simulated DUT as a source of calls. It keeps the last 64 MiB.
//
//     CJournalSource source(dut);
#pragma once

#include <unordered_set>

#include "Host/SimulatedDut.h"
#include "Host/door/DoorSource.h"

class CJournalSource : public IDoorSource
{
public:
    // The DUT must be there, and outlive the source.
    explicit CJournalSource(CSimulatedDut &dut) : m_dut(dut) {}

    void Poll(SDoorNews &news, DoorClock::time_point until) override;
    uint64_t FirstPlace() override;
    std::optional<STraceCall> Read(const SDoorCall &call) const override;
    STraceHeader Header() const override;
    QString About() const override;

private:
    // Has the journal been cleared since the last look?
    bool IsAnother(uint32_t count) const;
    void TakeEnded(SDoorNews &news, uint32_t count, DoorClock::time_point until);
    void TakeOpen(SDoorNews &news, const std::vector<SVondSimOpenCall> &open);
    std::vector<SVondSimOpenCall> OpenCalls() const;
    void TakeCall(SDoorNews &news, uint32_t index, const SVondSimCall &row,
                  const SVondSimCallTime &time);
    // The first call from there on that the journal still has.
    uint32_t FirstFrom(uint32_t index, uint32_t count) const;

    CSimulatedDut &m_dut;
    uint32_t m_first = 0;  // the oldest call that was there at the last look
    uint32_t m_next = 0;   // the first one that was not read
    uint64_t m_lastNumber = 0;
    std::unordered_set<uint64_t> m_toldOpen;
};
