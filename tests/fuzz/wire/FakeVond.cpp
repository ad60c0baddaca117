// The Vond pair in place of the simulated one: the program's own functions win over the library's.
//
// Answers are those of FuzzAnswers.h. What comes in is held to what the target may rely on, however
// badly it has answered before.
#include <algorithm>

#include "Operations/link/TargetLink.h"
#include "Vond/VondApp.h"
#include "Vond/VondCore.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/BlockJournal.h"
#include "tests/fuzz/wire/CalRequestRules.h"
#include "tests/fuzz/wire/FuzzAnswers.h"

namespace {

void CheckCall(uint32_t timeout)
{
    Require(timeout == kTargetTimeoutMs, "every call has the one timeout");
}

template <typename Record>
int32_t Answer(const char *function, uint32_t timeout, Record *record)
{
    CheckCall(timeout);
    return FuzzAnswers::Give(function, record, sizeof *record);
}

int32_t AnswerResult(const char *function, uint32_t timeout)
{
    CheckCall(timeout);
    return FuzzAnswers::Give(function, nullptr, 0);
}

template <typename Record>
int32_t AnswerCapability(const char *function, uint32_t timeout, uint32_t requestSize, void *result,
                         uint32_t resultSize)
{
    Require(requestSize == sizeof(SVondCapabilityReq) && resultSize == sizeof(Record),
            "records keep their sizes");
    return Answer(function, timeout, static_cast<Record *>(result));
}

// Blocks that the input does not fill, no two alike.
void FillLosses(SMMType1PathlossBlockV7 &block, int16_t number)
{
    block.loss[3][5] = {number, static_cast<int16_t>(-number)};
}
void FillLosses(SMMType2PathlossBlockV7 &block, int16_t number)
{
    block.loss[15][283] = {number, static_cast<int16_t>(-number)};
}
void FillLosses(SAptBlock &block, int16_t number)
{
    block.pa[2].powerDetector[15] = number;
}

template <typename Block>
void FillBlocks(Block *block, int count)
{
    int number = BlockJournal::Count();
    for (int i = 0; i < count; ++i) {
        block[i].band = 78;
        for (int k = 0; k < kVondCalBlockSubbands; ++k)
            block[i].freq[k] = static_cast<uint32_t>(3300000 + 1000 * k);
        FillLosses(block[i], static_cast<int16_t>(++number));
    }
}

template <typename Entries>
int BlocksOf(const Entries &entries, int count)
{
    int blocks = 0;
    for (int i = 0; i < count; ++i)
        blocks += entries[i].blockCount;
    return blocks;
}

// Exactly what was asked for.
void FillAnswer(const SMMGetCalDataReqV7 &request, SMMGetCalDataCnfV7 &answer)
{
    answer.verdict.status = kVondCalSuccess;
    answer.type1Count = request.type1Count;
    answer.type2Count = request.type2Count;
    answer.txCount = request.txCount;
    std::copy(std::begin(request.type1), std::end(request.type1), answer.type1);
    for (int i = 0; i < kVondCalType2Blocks; ++i) {
        answer.type2BlockCount[i] = request.type2[i].blockCount;
        answer.type2Route[i] = request.type2[i].route;
    }
    for (int i = 0; i < kVondCalTxBlocks; ++i)
        answer.tx[i] = {request.tx[i].bandwidth, request.tx[i].blockCount, request.tx[i].route};
    FillBlocks(answer.type1Block, BlocksOf(request.type1, request.type1Count));
    FillBlocks(answer.type2Block, BlocksOf(request.type2, request.type2Count));
    FillBlocks(answer.txBlock, BlocksOf(request.tx, request.txCount));
}

}  // namespace

extern "C" {

VOND_RESULT VOND_QueryFunctionSupported_r(uint32_t, uint32_t t, const char *)
{
    return AnswerResult(__func__, t);
}

const char *VOND_GetErrorString(VOND_RESULT result)
{
    return result % 2 == 0 ? "a text" : nullptr;
}

VOND_RESULT VOND_ERf_GetRfCapability_r(uint32_t, uint32_t t, const void *, uint32_t requestSize,
                                       void *result, uint32_t resultSize)
{
    return AnswerCapability<SERfCapability>(__func__, t, requestSize, result, resultSize);
}

VOND_RESULT VOND_MMRf_GetRfCapability_r(uint32_t, uint32_t t, const void *, uint32_t requestSize,
                                        void *result, uint32_t resultSize)
{
    return AnswerCapability<SMMRfCapability>(__func__, t, requestSize, result, resultSize);
}

VOND_RESULT VOND_NRf_GetRfCapability_r(uint32_t, uint32_t t, const void *, uint32_t requestSize,
                                       void *result, uint32_t resultSize)
{
    return AnswerCapability<SNRfCapability>(__func__, t, requestSize, result, resultSize);
}

VOND_RESULT VOND_MMRf_GetRouteConfigV7_r(uint32_t, uint32_t t, const uint32_t *radioKind,
                                         SMMRfRouteConfigV7 *result)
{
    Require(*radioKind <= 1, "a radio kind is 0 or 1");
    return Answer(__func__, t, result);
}

VOND_RESULT VOND_NRf_GetBandRxInfo_r(uint32_t, uint32_t t, SNRfBandRxInfo *result)
{
    return Answer(__func__, t, result);
}

VOND_RESULT VOND_NRf_GetRxRouteValues_r(uint32_t, uint32_t t, SNRfRxRouteValues *result)
{
    return Answer(__func__, t, result);
}

VOND_RESULT VOND_MMRf_GetRouteDetailV7_r(uint32_t, uint32_t t, const SMMRfRouteDetailReqV7 *request,
                                         SMMRfRouteDetailCnfV7 *result)
{
    Require(request->radioKind == 1, "the detail read is of NR");
    return Answer(__func__, t, result);
}

const char *VOND_ERf_GetChipIdName(uint32_t chipId)
{
    return chipId % 2 == 0 ? "E2" : nullptr;
}

const char *VOND_NRf_GetChipIdName(uint32_t chipId)
{
    return chipId % 2 == 0 ? "N2" : nullptr;
}

VOND_RESULT VOND_NRf_PuschTxV7_r(uint32_t, uint32_t t, const SNrPuschTxCmdV7 *, uint32_t *status)
{
    *status = 0;
    return Answer(__func__, t, status);
}

VOND_RESULT VOND_NRf_RsrpV7_r(uint32_t, uint32_t t, const SNrRsrpCmdV7 *, uint32_t *status)
{
    *status = 0;
    return Answer(__func__, t, status);
}

VOND_RESULT VOND_NRf_GetDlFreqV7_r(uint32_t, uint32_t t, const SNrDlFreqCmdV7 *,
                                   SNrDlFreqCnfV7 *result)
{
    return Answer(__func__, t, result);
}

VOND_RESULT VOND_MMRf_GainSearchV7_r(uint32_t, uint32_t t, const SMMGainSearchCmdV7 *,
                                     SMMGainSearchCnfV7 *result)
{
    return Answer(__func__, t, result);
}

VOND_RESULT VOND_MMRf_RssiV7_r(uint32_t, uint32_t t, const SMMRssiCmdV7 *, SMMRssiCnfV7 *result)
{
    return Answer(__func__, t, result);
}

VOND_RESULT VOND_MMRf_SingleToneTxV7_r(uint32_t, uint32_t t, const SMMSingleToneCmdV7 *)
{
    return AnswerResult(__func__, t);
}

VOND_RESULT VOND_MMRf_ContRxV7_r(uint32_t, uint32_t t, const SMMContRxCmdV7 *)
{
    return AnswerResult(__func__, t);
}

VOND_RESULT VOND_MMRf_GetPdValueV7_r(uint32_t, uint32_t t, uint32_t, int16_t *value)
{
    return Answer(__func__, t, value);
}

VOND_RESULT VOND_NRf_GetMixRxReportV7_r(uint32_t, uint32_t t,
                                        NRfTestResult_GetMixRxReportV7 *report)
{
    return Answer(__func__, t, report);
}

VOND_RESULT VOND_NRf_ResetMixRxReportV7_r(uint32_t, uint32_t t)
{
    return AnswerResult(__func__, t);
}

VOND_RESULT VOND_NRf_TestStop_r(uint32_t, uint32_t t)
{
    return AnswerResult(__func__, t);
}

VOND_RESULT VOND_MMRf_TestStopV7_r(uint32_t, uint32_t t, uint32_t)
{
    return AnswerResult(__func__, t);
}

VOND_RESULT VOND_MMRf_GetCalBlkInfoV7_r(uint32_t, uint32_t t, uint32_t, SMMCalBlkInfoCnfV7 *result)
{
    return Answer(__func__, t, result);
}

VOND_RESULT VOND_MMRf_GetCalDataV7_r(uint32_t, uint32_t t, const SMMGetCalDataReqV7 *request,
                                     SMMGetCalDataCnfV7 *result)
{
    CheckCall(t);
    CheckRequest(*request);
    FillAnswer(*request, *result);
    const int32_t code = FuzzAnswers::GiveOverlay(__func__, result, sizeof *result);
    BlockJournal::Keep(*result);
    return code;
}

VOND_RESULT VOND_MMRf_SetCalDataV7_r(uint32_t, uint32_t t, const SMMSetCalDataReqV7 *request,
                                     SMMSetCalDataCnfV7 *result)
{
    CheckRequest(*request);
    BlockJournal::Check(*request);
    result->status = kVondCalSuccess;
    return Answer(__func__, t, result);
}

int32_t VondConn_GetMdActiveIdx(uint32_t, int32_t *index)
{
    return FuzzAnswers::Give(__func__, index, sizeof *index);
}

int32_t VondConn_GetMdSrv(uint32_t, int32_t, int32_t *serviceType)
{
    return FuzzAnswers::Give(__func__, serviceType, sizeof *serviceType);
}

}  // extern "C"
