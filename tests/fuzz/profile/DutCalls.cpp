#include "tests/fuzz/profile/DutCalls.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>

#include "Vond/VondApp.h"
#include "Vond/VondCore.h"
#include "tests/common/GoodCommands.h"

namespace {

constexpr uint32_t kHandle = 1;
constexpr uint32_t kTimeoutMs = 1;  // a profile may ask for delays
constexpr uint32_t kKinds = 3;      // radio kinds: LTE side, NR, and one that there is not
constexpr uint32_t kNr = 1;
constexpr int kConnections = 3;  // modem indexes to ask for
constexpr uint32_t kKindOfContRx = 1;
constexpr int32_t kNoText = -1;

struct SSizes
{
    uint32_t capability;
    uint32_t calibration;
};

constexpr SSizes kLteSizes{56, 180};
constexpr SSizes kMultiModeSizes{4, 132};
constexpr SSizes kNrSizes{16, 24};

// Makes a call that answers a record, and keeps both.
template <typename Record, typename Call>
std::unique_ptr<Record> Ask(std::vector<SAnswer> &answers, Call call)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    auto record = std::make_unique<Record>();
    std::memset(static_cast<void *>(record.get()), 0, sizeof(Record));
    const int32_t result = call(record.get());
    answers.push_back({result, QByteArray(reinterpret_cast<const char *>(record.get()),
                                          static_cast<int>(sizeof(Record)))});
    return record;
}

using CapabilityRead = VOND_RESULT(uint32_t, uint32_t, const void *, uint32_t, void *, uint32_t);

template <typename Record>
std::unique_ptr<Record> AskCapability(std::vector<SAnswer> &answers, CapabilityRead *read,
                                      const SSizes &sizes)
{
    const SVondCapabilityReq request{sizes.capability, sizes.calibration};
    return Ask<Record>(answers, [&](Record *record) {
        return read(kHandle, kTimeoutMs, &request, sizeof(request), record, sizeof(Record));
    });
}

void KeepText(std::vector<SAnswer> &answers, const char *text)
{
    answers.push_back({text != nullptr ? VOND_SUCCESS : kNoText, QByteArray(text)});
}

// The hardware behind all routes of the table, whose counts a fault of the profile may have
// altered.
void AskDetail(std::vector<SAnswer> &answers, const SMMRfRouteTableV7 &table)
{
    auto request = std::make_unique<SMMRfRouteDetailReqV7>();
    request->radioKind = kNr;
    const int type1 = std::min<int>(table.rxType1RouteCount, kVondMaxRxRoutes);
    for (int i = 0; i < type1; ++i)
        request->rxType1Route[request->rxType1Count++] = table.rxType1Route[i].route;
    const int type2 = std::min<int>(table.rxType2RouteCount, kVondMaxRxRoutes);
    for (int i = 0; i < type2; ++i)
        request->rxType2Route[request->rxType2Count++] = table.rxType2Route[i].route;
    const int tx = std::min<int>(table.txRouteCount, kVondMaxTxRoutes);
    for (int i = 0; i < tx; ++i) {
        const SMMRfTxRouteV7 &row = table.txRoute[i];
        const int regions = std::min<int>(row.bwRegionCount, kVondMaxBwRegions);
        for (int region = 0; region < regions && request->txPairCount < UINT8_MAX; ++region) {
            SMMRfRouteDetailTxPair &pair = request->txPair[request->txPairCount++];
            pair.route = row.route;
            pair.bwRegionKhz = row.bwRegionKhz[region];
        }
    }
    Ask<SMMRfRouteDetailCnfV7>(answers, [&](SMMRfRouteDetailCnfV7 *record) {
        return VOND_MMRf_GetRouteDetailV7_r(kHandle, kTimeoutMs, request.get(), record);
    });
}

// One round: the first routes that the flash has blocks of, as many as a round holds.
void AskCalibration(std::vector<SAnswer> &answers, const SMMRfRouteTableV7 &table)
{
    const auto info = Ask<SMMCalBlkInfoCnfV7>(answers, [](SMMCalBlkInfoCnfV7 *record) {
        return VOND_MMRf_GetCalBlkInfoV7_r(kHandle, kTimeoutMs, kNr, record);
    });
    SMMGetCalDataReqV7 request = {};
    request.radioKind = kNr;
    const SMMCalRxRowV7 &type1 = info->type1[0];
    if (info->type1Count > 0 && type1.blockTotal <= kVondCalType1Blocks)
        request.type1[request.type1Count++] = {type1.blockTotal, type1.route};
    const SMMCalRxRowV7 &type2 = info->type2[0];
    if (info->type2Count > 0 && type2.blockTotal <= kVondCalType2Blocks)
        request.type2[request.type2Count++] = {type2.blockTotal, type2.route};
    const SMMCalTxRowV7 &tx = info->tx[0];
    if (info->txCount > 0 && tx.blockCount[0] <= kVondCalTxBlocks) {
        SMMCalTxRequestEntryV7 &entry = request.tx[request.txCount++];
        entry.blockCount = tx.blockCount[0];
        entry.route = entry.routeAgain = tx.route;
        entry.bandwidth = table.txRoute[0].bwRegionKhz[0];
    }
    Ask<SMMGetCalDataCnfV7>(answers, [&](SMMGetCalDataCnfV7 *record) {
        return VOND_MMRf_GetCalDataV7_r(kHandle, kTimeoutMs, &request, record);
    });
}

void AskConnection(std::vector<SAnswer> &answers)
{
    const auto active = Ask<int32_t>(
        answers, [](int32_t *index) { return VondConn_GetMdActiveIdx(kHandle, index); });
    for (int i = 0; i < kConnections; ++i) {
        Ask<int32_t>(answers, [&](int32_t *service) {
            return VondConn_GetMdSrv(kHandle, i == 0 ? *active : i, service);
        });
    }
}

void AskCapabilities(SAnswers &all)
{
    std::vector<SAnswer> &answers = all.capability;
    AskConnection(answers);
    const auto lte = AskCapability<SERfCapability>(answers, VOND_ERf_GetRfCapability_r, kLteSizes);
    AskCapability<SMMRfCapability>(answers, VOND_MMRf_GetRfCapability_r, kMultiModeSizes);
    const auto nr = AskCapability<SNRfCapability>(answers, VOND_NRf_GetRfCapability_r, kNrSizes);
    for (uint32_t kind = 0; kind < kKinds; ++kind) {
        const auto config = Ask<SMMRfRouteConfigV7>(answers, [&](SMMRfRouteConfigV7 *record) {
            return VOND_MMRf_GetRouteConfigV7_r(kHandle, kTimeoutMs, &kind, record);
        });
        if (kind == kNr) {
            all.config = *config;
            all.isConfigRead = answers.back().result == VOND_SUCCESS;
        }
    }
    Ask<SNRfBandRxInfo>(answers, [](SNRfBandRxInfo *record) {
        return VOND_NRf_GetBandRxInfo_r(kHandle, kTimeoutMs, record);
    });
    Ask<SNRfRxRouteValues>(answers, [](SNRfRxRouteValues *record) {
        return VOND_NRf_GetRxRouteValues_r(kHandle, kTimeoutMs, record);
    });
    AskDetail(answers, all.config.routes);
    AskCalibration(answers, all.config.routes);
    KeepText(answers, VOND_ERf_GetChipIdName(lte->rfChipId));
    KeepText(answers, VOND_NRf_GetChipIdName(nr->rfChipId));
    KeepText(answers, VOND_NRf_GetChipIdName(UINT32_MAX));
    all.firstResult = VOND_GetErrorString(answers.front().result);
}

void RunTests(std::vector<SAnswer> &answers)
{
    const auto keep = [&](VOND_RESULT result) { answers.push_back({result, {}}); };
    const SMMContRxCmdV7 contRx = ContRxCommand();
    keep(VOND_MMRf_ContRxV7_r(kHandle, kTimeoutMs, &contRx));
    keep(VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, kKindOfContRx));
    const SMMRssiCmdV7 rssi = RssiCommand();
    Ask<SMMRssiCnfV7>(answers, [&](SMMRssiCnfV7 *record) {
        return VOND_MMRf_RssiV7_r(kHandle, kTimeoutMs, &rssi, record);
    });
    const SMMGainSearchCmdV7 gainSearch = GainSearchCommand();
    Ask<SMMGainSearchCnfV7>(answers, [&](SMMGainSearchCnfV7 *record) {
        return VOND_MMRf_GainSearchV7_r(kHandle, kTimeoutMs, &gainSearch, record);
    });
    const SNrDlFreqCmdV7 dlFreq = DlFreqCommand();
    Ask<SNrDlFreqCnfV7>(answers, [&](SNrDlFreqCnfV7 *record) {
        return VOND_NRf_GetDlFreqV7_r(kHandle, kTimeoutMs, &dlFreq, record);
    });
    const SMMSingleToneCmdV7 tone = SingleToneCommand();
    keep(VOND_MMRf_SingleToneTxV7_r(kHandle, kTimeoutMs, &tone));
    Ask<int16_t>(answers, [](int16_t *value) {
        return VOND_MMRf_GetPdValueV7_r(kHandle, kTimeoutMs, kNr, value);
    });
    keep(VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, kKindOfContRx));
    for (const SNrPuschTxCmdV7 &pusch : {PuschForcedCommand(), PuschNormalCommand()}) {
        Ask<uint32_t>(answers, [&](uint32_t *status) {
            return VOND_NRf_PuschTxV7_r(kHandle, kTimeoutMs, &pusch, status);
        });
        keep(VOND_NRf_TestStop_r(kHandle, kTimeoutMs));
    }
    for (const SNrRsrpCmdV7 &rsrp : {RsrpForcedCommand(), RsrpNormalCommand()}) {
        Ask<uint32_t>(answers, [&](uint32_t *status) {
            return VOND_NRf_RsrpV7_r(kHandle, kTimeoutMs, &rsrp, status);
        });
        Ask<NRfTestResult_GetMixRxReportV7>(answers, [](NRfTestResult_GetMixRxReportV7 *record) {
            return VOND_NRf_GetMixRxReportV7_r(kHandle, kTimeoutMs, record);
        });
        keep(VOND_NRf_ResetMixRxReportV7_r(kHandle, kTimeoutMs));
        keep(VOND_NRf_TestStop_r(kHandle, kTimeoutMs));
    }
}

}  // namespace

SAnswers CallAll()
{
    SAnswers answers;
    AskCapabilities(answers);
    RunTests(answers.radio);
    return answers;
}
