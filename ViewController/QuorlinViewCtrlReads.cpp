// Reads beside a test: a page's document goes to the core, and comes back with what was read.
#include "ViewController/QuorlinViewCtrlJobs.h"

void CQuorlinViewCtrl::RequestDlFreq(EPageId page, std::string document)
{
    RunOnPool("GetPuschTxDlFreqInternal", &CQuorlinViewCtrl::Signal_GetPuschTxDlFreqDone,
              [page, document = std::move(document)](CNrCore &core) mutable {
                  return std::make_tuple(
                      core.GetDlFreqForPuschTx(PageName(page), std::move(document)));
              });
}

void CQuorlinViewCtrl::GetSingleToneTxPdValue(std::string document)
{
    RunOnPool("GetSingleToneTxPdValueInternal",
              &CQuorlinViewCtrl::Signal_GetSingleToneTxPdValueDone,
              [document = std::move(document)](CNrCore &core) mutable {
                  return std::make_tuple(core.GetPdValue(std::move(document)));
              });
}

void CQuorlinViewCtrl::RsrpResetCounter()
{
    RunOnPool("RsrpResetCounterInternal", &CQuorlinViewCtrl::Signal_RsrpResetCounterDone,
              [](CNrCore &core) { return std::make_tuple(core.ResetMixRxCounter()); });
}

void CQuorlinViewCtrl::RsrpClearReport(std::string document)
{
    RunOnPool("RsrpClearReportInternal", &CQuorlinViewCtrl::Signal_RsrpClearReportDone,
              [document = std::move(document)](CNrCore &core) mutable {
                  return std::make_tuple(core.ClearMixRxReport(std::move(document)));
              });
}

void CQuorlinViewCtrl::RssiGainCalculator(std::string document)
{
    RunOnPool("RssiGainCalculatorInternal", &CQuorlinViewCtrl::Signal_RssiGainCalculatorDone,
              [document = std::move(document)](CNrCore &core) mutable {
                  SEachItemOperationResult result;
                  std::string response = core.RssiGainCalculate(std::move(document), result);
                  return std::make_tuple(result, std::move(response));
              });
}
