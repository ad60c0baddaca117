#include "Operations/tests/NrPuschTxV7.h"

#include "Operations/link/TargetLink.h"
#include "Vond/VondCore.h"

uint32_t CNrPuschTxV7::RunPuschTx(const SNrPuschTxCmdV7 *command)
{
    uint32_t status = 0;
    const VOND_RESULT result =
        VOND_NRf_PuschTxV7_r(TargetHandle(), kTargetTimeoutMs, command, &status);
    return Finish(status, result);
}

uint32_t CNrPuschTxV7::GetDlFreq(const SNrDlFreqCmdV7 *command, SNrDlFreqCnfV7 *result)
{
    *result = {};
    const VOND_RESULT answer =
        VOND_NRf_GetDlFreqV7_r(TargetHandle(), kTargetTimeoutMs, command, result);
    return Finish(result->status, answer);
}
