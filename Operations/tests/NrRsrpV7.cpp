#include "Operations/tests/NrRsrpV7.h"

#include "Operations/link/TargetLink.h"
#include "Vond/VondCore.h"

uint32_t CNrRsrpV7::RunRsrp(const SNrRsrpCmdV7 *command)
{
    uint32_t status = 0;
    const VOND_RESULT result =
        VOND_NRf_RsrpV7_r(TargetHandle(), kTargetTimeoutMs, command, &status);
    return Finish(status, result);
}

uint32_t CNrRsrpV7::GetMixRxReport(NRfTestResult_GetMixRxReportV7 *report)
{
    return Finish(VOND_NRf_GetMixRxReportV7_r(TargetHandle(), kTargetTimeoutMs, report));
}

uint32_t CNrRsrpV7::ResetMixRxReport()
{
    return Finish(VOND_NRf_ResetMixRxReportV7_r(TargetHandle(), kTargetTimeoutMs));
}
