#include "ViewController/QuorlinViewCtrl.h"

#include "Controller/core/PageTable.h"
#include "ViewController/QuorlinViewCtrlJobs.h"

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

void CQuorlinViewCtrl::GetInitPageList()
{
    RunOnPool("GetInitPageListInternal", &CQuorlinViewCtrl::Signal_GetInitPageListDone,
              [](CNrCore &core) { return std::make_tuple(core.GetAllSupportPage()); });
}

void CQuorlinViewCtrl::RequestDataModel(const char *internalName, EPageId page,
                                        DocumentSignal answer)
{
    RunOnPool(internalName, answer,
              [page](CNrCore &core) { return std::make_tuple(core.GetDataModel(PageName(page))); });
}

void CQuorlinViewCtrl::GetPuschTxForceDataModel()
{
    RequestDataModel("GetPuschTxForceDataModelInternal", EPageId::PuschTxForce,
                     &CQuorlinViewCtrl::Signal_GetPuschTxForceDataModelDone);
}

void CQuorlinViewCtrl::GetPuschTxNormalDataModel()
{
    RequestDataModel("GetPuschTxNormalDataModelInternal", EPageId::PuschTxNormal,
                     &CQuorlinViewCtrl::Signal_GetPuschTxNormalDataModelDone);
}

void CQuorlinViewCtrl::GetSingleToneTxDataModel()
{
    RequestDataModel("GetSingleToneTxDataModelInternal", EPageId::SingleToneTx,
                     &CQuorlinViewCtrl::Signal_GetSingleToneTxDataModelDone);
}

void CQuorlinViewCtrl::GetRsrpForceDataModel()
{
    RequestDataModel("GetRsrpForceDataModelInternal", EPageId::RsrpForce,
                     &CQuorlinViewCtrl::Signal_GetRsrpForceDataModelDone);
}

void CQuorlinViewCtrl::GetRsrpNormalDataModel()
{
    RequestDataModel("GetRsrpNormalDataModelInternal", EPageId::RsrpNormal,
                     &CQuorlinViewCtrl::Signal_GetRsrpNormalDataModelDone);
}

void CQuorlinViewCtrl::GetContRxDataModel()
{
    RequestDataModel("GetContRxDataModelInternal", EPageId::ContRx,
                     &CQuorlinViewCtrl::Signal_GetContRxDataModelDone);
}

void CQuorlinViewCtrl::GetRssiDataModel()
{
    RequestDataModel("GetRssiDataModelInternal", EPageId::Rssi,
                     &CQuorlinViewCtrl::Signal_GetRssiDataModelDone);
}

void CQuorlinViewCtrl::GetAptDataModel()
{
    RequestDataModel("GetAptDataModelInternal", EPageId::AptProfile,
                     &CQuorlinViewCtrl::Signal_GetAptDataModelDone);
}

void CQuorlinViewCtrl::GetPathLossDataModel()
{
    RequestDataModel("GetPathLossDataModelInternal", EPageId::RxPathLoss,
                     &CQuorlinViewCtrl::Signal_GetPathLossDataModelDone);
}
