#include "Operations/capability/CapabilityCache.h"

#include <algorithm>

#include "Operations/link/TargetLink.h"
#include "Support/Log.h"
#include "Vond/VondCore.h"

namespace {

constexpr SVondCapabilityReq kLteSizes{56, 180};
constexpr SVondCapabilityReq kMmSizes{4, 132};
constexpr SVondCapabilityReq kNrSizes{0, 24};  // the target ignores the first word

bool IsOffered(const char *function)
{
    return VOND_QueryFunctionSupported_r(TargetHandle(), kTargetTimeoutMs, function) ==
           VOND_SUCCESS;
}

bool Succeeded(const char *what, VOND_RESULT result)
{
    if (result != VOND_SUCCESS)
        qCDebug(lcTarget) << what << "failed:" << result;
    return result == VOND_SUCCESS;
}

// The life of one cached read. Gate: may the target be asked at all? Call: asks it.
template <typename Record, typename Gate, typename Call>
bool ReadOnce(SCachedRead<Record> &read, const Gate &gate, const Call &call)
{
    if (read.flags.attempted)
        return true;
    if (!gate()) {
        read.flags.attempted = true;
        return true;
    }
    read.record = {};
    read.flags.supported = true;
    read.flags.succeeded = call(read.record);
    read.flags.attempted = true;
    if (!read.flags.succeeded)
        read.record = {};
    return read.flags.succeeded;
}

template <typename Count>
void CutTo(Count &count, int limit)
{
    count = std::min<Count>(count, static_cast<Count>(limit));
}

void CutCounts(SMMRfRouteConfigV7 &config)
{
    CutTo(config.bandCount, kVondMaxBands);
    CutTo(config.routes.txRouteCount, kVondMaxTxRoutes);
    CutTo(config.routes.rxType1RouteCount, kVondMaxRxRoutes);
    CutTo(config.routes.rxType2RouteCount, kVondMaxRxRoutes);
    for (SMMRfTxRouteV7 &route : config.routes.txRoute)
        CutTo(route.bwRegionCount, kVondMaxBwRegions);
}

void CutCounts(SNrRouteDetail &detail)
{
    CutTo(detail.bandRxInfo.count, kVondMaxBands);
    CutTo(detail.rxRouteValues.count, kVondMaxRxRoutes);
    for (SNRfRxRouteValueEntry &entry : detail.rxRouteValues.entry)
        CutTo(entry.valueCount, kVondMaxRouteValues);
}

bool ReadRouteConfig(ERadioKind kind, SMMRfRouteConfigV7 &config)
{
    const uint32_t radioKind = static_cast<uint32_t>(kind);
    if (!Succeeded(
            "VOND_MMRf_GetRouteConfigV7_r",
            VOND_MMRf_GetRouteConfigV7_r(TargetHandle(), kTargetTimeoutMs, &radioKind, &config)))
        return false;
    CutCounts(config);
    return true;
}

using CapabilityFunction = VOND_RESULT (*)(uint32_t, uint32_t, const void *, uint32_t, void *,
                                           uint32_t);

template <typename Record>
bool ReadCapability(const char *name, CapabilityFunction function, const SVondCapabilityReq &sizes,
                    Record &record)
{
    return Succeeded(name, function(TargetHandle(), kTargetTimeoutMs, &sizes, sizeof sizes, &record,
                                    sizeof record));
}

constexpr auto kNoGate = [] { return true; };

}  // namespace

CapabilityCache &CapabilityCache::Get()
{
    static CapabilityCache cache;
    return cache;
}

void CapabilityCache::ResetIfRequested()
{
    if (!m_resetRequested.exchange(false))
        return;
    lteCapability = {};
    mmCapability = {};
    nrCapability = {};
    lteRoutes = {};
    nrRoutes = {};
    nrDetail = {};
}

bool CapabilityCache::ReadLteCapability()
{
    ResetIfRequested();
    return ReadOnce(
        lteCapability, [] { return IsOffered("VOND_ERf_GetRfCapability_r"); },
        [](SERfCapability &record) {
            if (!ReadCapability("VOND_ERf_GetRfCapability_r", VOND_ERf_GetRfCapability_r, kLteSizes,
                                record))
                return false;
            if (record.rfChipId == 0)
                record.rfChipId = 1;
            return true;
        });
}

bool CapabilityCache::ReadMmCapability()
{
    ResetIfRequested();
    return ReadOnce(
        mmCapability, [] { return IsOffered("VOND_MMRf_GetRfCapability_r"); },
        [](SMMRfCapability &record) {
            return ReadCapability("VOND_MMRf_GetRfCapability_r", VOND_MMRf_GetRfCapability_r,
                                  kMmSizes, record);
        });
}

bool CapabilityCache::ReadNrCapability()
{
    ResetIfRequested();
    return ReadOnce(
        nrCapability,
        [this] {
            ReadMmCapability();
            const uint32_t word = mmCapability.record.worldMode;
            return VondItemValid(word) && (VondItemValue(word) & kVondRatNr) != 0;
        },
        [](SNRfCapability &record) {
            return ReadCapability("VOND_NRf_GetRfCapability_r", VOND_NRf_GetRfCapability_r,
                                  kNrSizes, record);
        });
}

bool CapabilityCache::ReadLteRoutes()
{
    ResetIfRequested();
    if (!lteRoutes.flags.attempted && !ReadLteCapability())
        return false;
    return ReadOnce(lteRoutes, kNoGate, [](SMMRfRouteConfigV7 &record) {
        return ReadRouteConfig(ERadioKind::Lte, record);
    });
}

bool CapabilityCache::ReadNrRoutes()
{
    ResetIfRequested();
    return ReadOnce(nrRoutes, kNoGate, [](SMMRfRouteConfigV7 &record) {
        return ReadRouteConfig(ERadioKind::Nr, record);
    });
}

bool CapabilityCache::ReadNrDetail()
{
    ResetIfRequested();
    if (nrDetail.flags.attempted)
        return true;
    if (!ReadNrRoutes())
        return false;
    nrDetail.flags.attempted = true;
    nrDetail.flags.supported = true;
    nrDetail.record = {};
    SNrRouteDetail &record = nrDetail.record;
    const uint32_t handle = TargetHandle();
    if (!Succeeded("VOND_NRf_GetBandRxInfo_r",
                   VOND_NRf_GetBandRxInfo_r(handle, kTargetTimeoutMs, &record.bandRxInfo)) ||
        !Succeeded("VOND_NRf_GetRxRouteValues_r",
                   VOND_NRf_GetRxRouteValues_r(handle, kTargetTimeoutMs, &record.rxRouteValues)))
        return false;
    const SMMRfRouteDetailReqV7 request = BuildRouteDetailRequest(nrRoutes.record.routes);
    if (!Succeeded(
            "VOND_MMRf_GetRouteDetailV7_r",
            VOND_MMRf_GetRouteDetailV7_r(handle, kTargetTimeoutMs, &request, &record.hardware)))
        return false;
    CutCounts(record);
    nrDetail.flags.succeeded = true;
    return true;
}

SMMRfRouteDetailReqV7 BuildRouteDetailRequest(const SMMRfRouteTableV7 &table)
{
    SMMRfRouteDetailReqV7 request = {};
    request.radioKind = static_cast<uint32_t>(ERadioKind::Nr);
    for (int i = 0; i < table.txRouteCount; ++i) {
        const SMMRfTxRouteV7 &route = table.txRoute[i];
        for (int region = 0; region < route.bwRegionCount; ++region) {
            if (request.txPairCount == kMaxDetailRows)
                break;
            SMMRfRouteDetailTxPair &pair = request.txPair[request.txPairCount++];
            pair.route = route.route;
            pair.bwRegionKhz = route.bwRegionKhz[region];
        }
    }
    for (int i = 0; i < table.rxType1RouteCount; ++i)
        request.rxType1Route[request.rxType1Count++] = table.rxType1Route[i].route;
    for (int i = 0; i < table.rxType2RouteCount; ++i)
        request.rxType2Route[request.rxType2Count++] = table.rxType2Route[i].route;
    return request;
}
