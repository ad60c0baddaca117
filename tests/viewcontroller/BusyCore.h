// When the jobs of the pool run, wait and end, in the hands of a test.
//
//   {
//       const CBusyCore busy;
//       ctrl.NrTestStop();  // waits for its turn
//   }
//   Settle();               // answered
#pragma once

#include <QCoreApplication>

#include "Controller/core/NrCore.h"
#include "Simulator/VondSim.h"
#include "Support/Threads.h"
#include "tests/common/PoolJobs.h"

inline void EndJobs()
{
    EndPoolJobs();
}

// Lets all jobs end and their answers arrive.
inline void Settle()
{
    EndJobs();
    QCoreApplication::processEvents();
}

// Keeps the core at the target as long as it lives, with a call that no page has asked for; all
// requests wait behind it.
class CBusyCore
{
public:
    CBusyCore()
    {
        VondSim_Hold(kHeld);
        StartOnPool([] { GetCore().ResetMixRxCounter(); });
        VondSim_WaitUntilHeld(kHeld, 20000);  // ends a broken test; never waited for in a good one
    }
    ~CBusyCore() { VondSim_Release(kHeld); }
    CBusyCore(const CBusyCore &) = delete;
    CBusyCore &operator=(const CBusyCore &) = delete;

private:
    static constexpr char kHeld[] = "VOND_NRf_ResetMixRxReportV7_r";
};
