#include "Vond/VondCalRecords.h"
#include "tests/trace/records/FilledRecords.h"

namespace {

std::string At(const std::string &name, int index)
{
    return name + "[" + std::to_string(index) + "].";
}

CRecordFiller BlkInfo()
{
    CRecordFiller filler;
    auto &answer = filler.New<SMMCalBlkInfoCnfV7>();
    FILL("", answer, type1Count);
    FILL("", answer, type2Count);
    FILL("", answer, txCount);
    for (int i = 0; i < kVondMaxRxRoutes; ++i) {
        FILL(At("type1", i), answer.type1[i], route);
        FILL(At("type1", i), answer.type1[i], blockTotal);
        FILL(At("type2", i), answer.type2[i], route);
        FILL(At("type2", i), answer.type2[i], blockTotal);
    }
    for (int i = 0; i < kVondMaxTxRoutes; ++i) {
        FILL(At("tx", i), answer.tx[i], route);
        FILL(At("tx", i), answer.tx[i], blockTotal);
        FILL(At("tx", i), answer.tx[i], blockCount);
    }
    return filler;
}

CRecordFiller UploadRequest()
{
    CRecordFiller filler;
    auto &request = filler.New<SMMGetCalDataReqV7>();
    FILL("", request, radioKind);
    FILL("", request, type1Count);
    FILL("", request, type2Count);
    FILL("", request, txCount);
    for (int i = 0; i < kVondCalType1Blocks; ++i) {
        FILL(At("type1", i), request.type1[i], blockCount);
        FILL(At("type1", i), request.type1[i], route);
    }
    for (int i = 0; i < kVondCalType2Blocks; ++i) {
        FILL(At("type2", i), request.type2[i], blockCount);
        FILL(At("type2", i), request.type2[i], route);
    }
    for (int i = 0; i < kVondCalTxBlocks; ++i) {
        FILL(At("tx", i), request.tx[i], blockCount);
        FILL(At("tx", i), request.tx[i], route);
        FILL(At("tx", i), request.tx[i], bandwidth);
        FILL(At("tx", i), request.tx[i], routeAgain);
    }
    return filler;
}

template <class Block>
void FillLossBlock(CRecordFiller &filler, const std::string &prefix, Block &block)
{
    FILL(prefix, block, band);
    FILL(prefix, block, freq);
    FILL(prefix, block, plOffset);
    for (std::size_t subband = 0; subband < std::size(block.loss); ++subband) {
        for (std::size_t pair = 0; pair < std::size(block.loss[subband]); ++pair) {
            const std::string name =
                prefix + "loss[" + std::to_string(subband) + "][" + std::to_string(pair) + "].";
            FILL(name, block.loss[subband][pair], lpm);
            FILL(name, block.loss[subband][pair], hpm);
        }
    }
}

void FillAptBlock(CRecordFiller &filler, const std::string &prefix, SAptBlock &block)
{
    FILL(prefix, block, band);
    FILL(prefix, block, normalTempIndex);
    FILL(prefix, block, paControlLevel);
    FILL(prefix, block, paModeCount);
    for (int i = 0; i < kVondAptLevels; ++i) {
        FILL(At(prefix + "level", i), block.level[i], paMode);
        FILL(At(prefix + "level", i), block.level[i], dc2dcLevel);
        FILL(At(prefix + "level", i), block.level[i], usage256Qam);
        FILL(At(prefix + "level", i), block.level[i], prf);
        FILL(At(prefix + "level", i), block.level[i], paGain);
    }
    FILL(prefix, block, couplerLoss);
    FILL(prefix, block, freq);
    for (int i = 0; i < kVondAptPaModes; ++i) {
        FILL(At(prefix + "pa", i), block.pa[i], prfIndex);
        FILL(At(prefix + "pa", i), block.pa[i], paGain);
        FILL(At(prefix + "pa", i), block.pa[i], paGainTempOffset);
        FILL(At(prefix + "pa", i), block.pa[i], powerDetector);
        FILL(At(prefix + "pa", i), block.pa[i], powerDetectorTempOffset);
    }
}

// What an upload's answer and a download's request share.
template <class Record>
void FillRound(CRecordFiller &filler, Record &record)
{
    FILL("", record, type1Count);
    FILL("", record, type2Count);
    FILL("", record, txCount);
    for (int i = 0; i < kVondCalType1Blocks; ++i) {
        FILL(At("type1", i), record.type1[i], blockCount);
        FILL(At("type1", i), record.type1[i], route);
        FillLossBlock(filler, At("type1Block", i), record.type1Block[i]);
    }
    FILL("", record, type2BlockCount);
    FILL("", record, type2Route);
    for (int i = 0; i < kVondCalType2Blocks; ++i)
        FillLossBlock(filler, At("type2Block", i), record.type2Block[i]);
    for (int i = 0; i < kVondCalTxBlocks; ++i) {
        FILL(At("tx", i), record.tx[i], bandwidth);
        FILL(At("tx", i), record.tx[i], blockCount);
        FILL(At("tx", i), record.tx[i], route);
        FillAptBlock(filler, At("txBlock", i), record.txBlock[i]);
    }
}

void FillVerdict(CRecordFiller &filler, const std::string &prefix, SMMCalVerdictV7 &verdict)
{
    FILL(prefix, verdict, status);
    FILL(prefix, verdict, type1Text);
    FILL(prefix, verdict, type2Text);
    FILL(prefix, verdict, txText);
}

CRecordFiller UploadAnswer()
{
    CRecordFiller filler;
    auto &answer = filler.New<SMMGetCalDataCnfV7>();
    FillVerdict(filler, "verdict.", answer.verdict);
    FillRound(filler, answer);
    return filler;
}

CRecordFiller DownloadRequest()
{
    CRecordFiller filler;
    auto &request = filler.New<SMMSetCalDataReqV7>();
    FILL("", request, radioKind);
    FILL("", request, version);
    FillRound(filler, request);
    return filler;
}

CRecordFiller DownloadAnswer()
{
    CRecordFiller filler;
    FillVerdict(filler, "", filler.New<SMMSetCalDataCnfV7>());
    return filler;
}

}  // namespace

std::vector<SFilledRecord> FilledCalRecords()
{
    using F = EFunction;
    return {
        FilledAnswer(F::GetCalBlkInfo, BlkInfo()),
        FilledRequest(F::GetCalData, UploadRequest()),
        FilledAnswer(F::GetCalData, UploadAnswer()),
        FilledRequest(F::SetCalData, DownloadRequest()),
        FilledAnswer(F::SetCalData, DownloadAnswer()),
    };
}
