// Reads beside a test: a page's document goes to the core, and comes back with what was read.
#include "Controller/core/PageTable.h"
#include "ViewController/QuorlinViewCtrlJobs.h"

void CQuorlinViewCtrl::RequestDlFreq(EPageId page, std::string document)
{
    RunOnPool("GetPuschTxDlFreqInternal", &CQuorlinViewCtrl::Signal_GetPuschTxDlFreqDone,
              [page, document = std::move(document)](CNrCore &core) mutable {
                  return std::make_tuple(
                      core.GetDlFreqForPuschTx(PageName(page), std::move(document)));
              });
}

void CQuorlinViewCtrl::GetPuschTxForceDlFreq(std::string document)
{
    RequestDlFreq(EPageId::PuschTxForce, std::move(document));
}

void CQuorlinViewCtrl::GetPuschTxNormalDlFreq(std::string document)
{
    RequestDlFreq(EPageId::PuschTxNormal, std::move(document));
}

void CQuorlinViewCtrl::GetSingleToneTxPdValue(std::string document)
{
    RunOnPool("GetSingleToneTxPdValueInternal",
              &CQuorlinViewCtrl::Signal_GetSingleToneTxPdValueDone,
              [document = std::move(document)](CNrCore &core) mutable {
                  return std::make_tuple(core.GetPdValue(std::move(document)));
              });
}

void CQuorlinViewCtrl::RequestReport(const char *internalName, EPageId page, std::string document,
                                     ResponseSignal answer)
{
    RunOnPool(internalName, answer, [page, document = std::move(document)](CNrCore &core) mutable {
        SEachItemOperationResult result;
        std::string response = core.FetchMixRxReport(PageName(page), std::move(document), result);
        return std::make_tuple(result, std::move(response));
    });
}

void CQuorlinViewCtrl::RsrpForceFetchReport(std::string document)
{
    RequestReport("RsrpForceFetchReportInternal", EPageId::RsrpForce, std::move(document),
                  &CQuorlinViewCtrl::Signal_RsrpForceFetchReportDone);
}

void CQuorlinViewCtrl::RsrpNormalFetchReport(std::string document)
{
    RequestReport("RsrpNormalFetchReportInternal", EPageId::RsrpNormal, std::move(document),
                  &CQuorlinViewCtrl::Signal_RsrpNormalFetchReportDone);
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
