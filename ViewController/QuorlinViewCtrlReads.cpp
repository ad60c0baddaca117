// Reads beside a test: a page's document goes to the core, and comes back with what was read.
#include "ViewController/QuorlinViewCtrlJobs.h"

void CQuorlinViewCtrl::RequestDlFreq(EPageId page, CHandedDocument document)
{
    RunOnPool("GetPuschTxDlFreqInternal", &CQuorlinViewCtrl::Signal_GetPuschTxDlFreqDone,
              [page, document = std::move(document)](CNrCore &core) mutable {
                  return std::make_tuple(
                      ModelToText(core.GetDlFreqForPuschTx(PageName(page), document.Take())));
              });
}

void CQuorlinViewCtrl::RequestPdValue(EPageId, CHandedDocument document)
{
    RunOnPool("GetSingleToneTxPdValueInternal",
              &CQuorlinViewCtrl::Signal_GetSingleToneTxPdValueDone,
              [document = std::move(document)](CNrCore &core) mutable {
                  return std::make_tuple(ModelToText(core.GetPdValue(document.Take())));
              });
}

void CQuorlinViewCtrl::RsrpResetCounter()
{
    RunOnPool("RsrpResetCounterInternal", &CQuorlinViewCtrl::Signal_RsrpResetCounterDone,
              [](CNrCore &core) { return std::make_tuple(core.ResetMixRxCounter()); });
}

void CQuorlinViewCtrl::RequestClear(CHandedDocument document)
{
    RunOnPool("RsrpClearReportInternal", &CQuorlinViewCtrl::Signal_RsrpClearReportDone,
              [document = std::move(document)](CNrCore &core) mutable {
                  return std::make_tuple(ModelToText(core.ClearMixRxReport(document.Take())));
              });
}

void CQuorlinViewCtrl::RequestGains(CHandedDocument document)
{
    RunOnPool("RssiGainCalculatorInternal", &CQuorlinViewCtrl::Signal_RssiGainCalculatorDone,
              [document = std::move(document)](CNrCore &core) mutable {
                  SEachItemOperationResult result;
                  const QJsonObject response = core.RssiGainCalculate(document.Take(), result);
                  return std::make_tuple(result, ModelToText(response));
              });
}

void CQuorlinViewCtrl::RequestChipName()
{
    RunOnPool("ChipNameInternal", &CQuorlinViewCtrl::Signal_ChipNameDone,
              [](CNrCore &core) { return std::make_tuple(core.GetRfChipName()); });
}
