// Stops of the view controller, and what it tells of the tests that run.
#include "ViewController/QuorlinViewCtrlJobs.h"

// Each view controller gets the answer of its own stop; the core's signal tells of all stops.
void CQuorlinViewCtrl::RequestStop(const char *internalName, EStop kind)
{
    RunOnPool(internalName, &CQuorlinViewCtrl::Signal_TestStopDone,
              [kind, page = m_testPage, asked = GetCore().Moment()](CNrCore &core) {
                  return std::make_tuple(core.StopTest(kind, page, asked));
              });
}

void CQuorlinViewCtrl::RfOff()
{
    StartOnPoolAtOnce(PoolJob("RfOffInternal", &CQuorlinViewCtrl::Signal_RfOffDone,
                              [place = GetCore().BeginRfOff()](CNrCore &core) mutable {
                                  return std::make_tuple(core.FinishRfOff(std::move(place)));
                              }));
}

void CQuorlinViewCtrl::StopRunningTests()
{
    GetCore().StopRunningTests();
}

bool CQuorlinViewCtrl::HasRunningTests() const
{
    return GetCore().HasRunningTests();
}

void CQuorlinViewCtrl::WatchTests()
{
    connect(&CCoreAnswers::Get(), &CCoreAnswers::Signal_TestsRun, this,
            &CQuorlinViewCtrl::Signal_TestsRun, Qt::UniqueConnection);
    connect(&CCoreAnswers::Get(), &CCoreAnswers::Signal_NewestTest, this,
            &CQuorlinViewCtrl::Signal_NewestTest, Qt::UniqueConnection);
    emit Signal_NewestTest(GetCore().NewestTest());
    emit Signal_TestsRun(GetCore().HasRunningTests());
}
