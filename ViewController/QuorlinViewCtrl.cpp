#include "ViewController/QuorlinViewCtrl.h"

#include <QPointer>

#include "Controller/core/NrCore.h"
#include "Model/ModelText.h"
#include "Support/Threads.h"

void CQuorlinViewCtrl::SetTargetHandle(uint32_t handle)
{
    CNrCore::SetTargetHandle(handle);
}

SRfSupportStatus CQuorlinViewCtrl::GetSupportStatus()
{
    return GetCore().GetSupportStatus();
}

QString CQuorlinViewCtrl::GetRfChipName()
{
    return GetCore().GetRfChipName();
}

void CQuorlinViewCtrl::ResetTargetCache()
{
    ++m_epoch;
    GetCore().ResetTargetCache();
}

QJsonObject CQuorlinViewCtrl::DocumentOf(const std::string &text) const
{
    return m_answered.isEmpty() && !text.empty() ? ModelFromText(text) : m_answered;
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
