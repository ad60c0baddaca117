#include "ViewController/QuorlinViewCtrl.h"

#include <QPointer>

#include "Controller/core/NrCore.h"
#include "Support/Threads.h"

void CQuorlinViewCtrl::SetTargetHandle(uint32_t handle)
{
    CNrCore::SetTargetHandle(handle);
}

SRfSupportStatus CQuorlinViewCtrl::GetSupportStatus()
{
    return GetCore().GetSupportStatus();
}

void CQuorlinViewCtrl::ResetTargetCache()
{
    ++m_epoch;
    GetCore().ResetTargetCache();
}

void CQuorlinViewCtrl::ReportIdle()
{
    m_future = StartOnPool([&core = GetCore(), self = QPointer<CQuorlinViewCtrl>(this)] {
        core.WaitForTurn();
        PostToGui([self] {
            if (self)
                emit self->Signal_Idle();
        });
    });
}
