#include "Vond/VondCapabilityRecords.h"
#include "tests/trace/records/FilledRecords.h"

namespace {

std::string At(const std::string &name, int index)
{
    return name + "[" + std::to_string(index) + "].";
}

CRecordFiller Sizes()
{
    CRecordFiller filler;
    auto &request = filler.New<SVondCapabilityReq>();
    FILL("", request, capabilitySize);
    FILL("", request, calibrationSize);
    return filler;
}

CRecordFiller Lte()
{
    CRecordFiller filler;
    FILL("", filler.New<SERfCapability>(), rfChipId);
    return filler;
}

CRecordFiller MultiMode()
{
    CRecordFiller filler;
    FILL("", filler.New<SMMRfCapability>(), worldMode);
    return filler;
}

CRecordFiller Nr()
{
    CRecordFiller filler;
    auto &answer = filler.New<SNRfCapability>();
    FILL("", answer, rfChipId);
    FILL("", answer, generation);
    return filler;
}

void FillLimits(CRecordFiller &filler, const std::string &prefix, SRouteFreqRangeHalf &limits)
{
    FILL(prefix, limits, count);
    FILL(prefix, limits, band);
    FILL(prefix, limits, route);
    FILL(prefix, limits, low);
    FILL(prefix, limits, high);
}

void FillRoutes(CRecordFiller &filler, SMMRfRouteTableV7 &routes)
{
    FILL("routes.", routes, txRouteCount);
    FILL("routes.", routes, rxType1RouteCount);
    FILL("routes.", routes, rxType2RouteCount);
    for (int i = 0; i < kVondMaxTxRoutes; ++i) {
        FILL(At("routes.txRoute", i), routes.txRoute[i], band);
        FILL(At("routes.txRoute", i), routes.txRoute[i], route);
        FILL(At("routes.txRoute", i), routes.txRoute[i], bwRegionCount);
        FILL(At("routes.txRoute", i), routes.txRoute[i], bwRegionKhz);
    }
    for (int i = 0; i < kVondMaxRxRoutes; ++i) {
        FILL(At("routes.rxType1Route", i), routes.rxType1Route[i], band);
        FILL(At("routes.rxType1Route", i), routes.rxType1Route[i], route);
        FILL(At("routes.rxType2Route", i), routes.rxType2Route[i], band);
        FILL(At("routes.rxType2Route", i), routes.rxType2Route[i], route);
        FILL(At("routes.rxType2Route", i), routes.rxType2Route[i], gainModeFlag);
    }
}

CRecordFiller RouteConfig()
{
    CRecordFiller filler;
    auto &answer = filler.New<SMMRfRouteConfigV7>();
    FILL("", answer, bandCount);
    for (int i = 0; i < kVondMaxBands; ++i) {
        FILL(At("band", i), answer.band[i], band);
        FILL(At("band", i), answer.band[i], downlinkOnly);
        FILL(At("band", i), answer.band[i], uplinkOnly);
    }
    FillLimits(filler, "freqRange.tx.", answer.freqRange.tx);
    FillLimits(filler, "freqRange.rx.", answer.freqRange.rx);
    FillRoutes(filler, answer.routes);
    for (int i = 0; i < kVondRxPowerModes; ++i) {
        FILL(At("rxGainInfo", i), answer.rxGainInfo[i], t1);
        FILL(At("rxGainInfo", i), answer.rxGainInfo[i], t2);
    }
    return filler;
}

CRecordFiller BandRxInfo()
{
    CRecordFiller filler;
    auto &answer = filler.New<SNRfBandRxInfo>();
    FILL("", answer, count);
    FILL("", answer, band);
    FILL("", answer, ulMimo);
    FILL("", answer, rx4x4);
    return filler;
}

CRecordFiller RxRouteValues()
{
    CRecordFiller filler;
    auto &answer = filler.New<SNRfRxRouteValues>();
    FILL("", answer, count);
    for (int i = 0; i < kVondMaxRxRoutes; ++i) {
        FILL(At("entry", i), answer.entry[i], route);
        FILL(At("entry", i), answer.entry[i], valueCount);
        FILL(At("entry", i), answer.entry[i], value);
    }
    return filler;
}

CRecordFiller DetailRequest()
{
    CRecordFiller filler;
    auto &request = filler.New<SMMRfRouteDetailReqV7>();
    FILL("", request, radioKind);
    FILL("", request, rxType1Count);
    FILL("", request, rxType2Count);
    FILL("", request, txPairCount);
    FILL("", request, rxType1Route);
    FILL("", request, rxType2Route);
    for (int i = 0; i < kVondMaxDetailRoutes; ++i) {
        FILL(At("txPair", i), request.txPair[i], route);
        FILL(At("txPair", i), request.txPair[i], bwRegionKhz);
    }
    return filler;
}

CRecordFiller DetailAnswer()
{
    CRecordFiller filler;
    auto &answer = filler.New<SMMRfRouteDetailCnfV7>();
    for (int i = 0; i < kVondMaxDetailRoutes; ++i) {
        FILL(At("rxType1", i), answer.rxType1[i], antMask);
        FILL(At("rxType1", i), answer.rxType1[i], feRouteNum);
        FILL(At("rxType1", i), answer.rxType1[i], port);
        FILL(At("rxType1", i), answer.rxType1[i], type1.srx);
        FILL(At("rxType1", i), answer.rxType1[i], type1.mimoPairCount);
        FILL(At("rxType1", i), answer.rxType1[i], type1.mimoPair);
        FILL(At("rxType2", i), answer.rxType2[i], antMask);
        FILL(At("rxType2", i), answer.rxType2[i], feRouteNum);
        FILL(At("rxType2", i), answer.rxType2[i], port);
        FILL(At("rxType2", i), answer.rxType2[i], type2.srx);
        FILL(At("rxType2", i), answer.rxType2[i], type2.mimoPairCount);
        FILL(At("rxType2", i), answer.rxType2[i], type2.mimoPair);
        FILL(At("txPair", i), answer.txPair[i], antMask);
        FILL(At("txPair", i), answer.txPair[i], feRouteNum);
        FILL(At("txPair", i), answer.txPair[i], port);
        FILL(At("txPair", i), answer.txPair[i], stx);
        FILL(At("txPair", i), answer.txPair[i], mimoPairCount);
        FILL(At("txPair", i), answer.txPair[i], mimoPair);
    }
    return filler;
}

}  // namespace

std::vector<SFilledRecord> FilledCapabilities()
{
    using F = EFunction;
    return {
        FilledRequest(F::LteCapability, Sizes()),
        FilledRequest(F::MultiModeCapability, Sizes()),
        FilledRequest(F::NrCapability, Sizes()),
        FilledAnswer(F::LteCapability, Lte()),
        FilledAnswer(F::MultiModeCapability, MultiMode()),
        FilledAnswer(F::NrCapability, Nr()),
        FilledAnswer(F::RouteConfig, RouteConfig()),
        FilledAnswer(F::BandRxInfo, BandRxInfo()),
        FilledAnswer(F::RxRouteValues, RxRouteValues()),
        FilledRequest(F::RouteDetail, DetailRequest()),
        FilledAnswer(F::RouteDetail, DetailAnswer()),
    };
}
