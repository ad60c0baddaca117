#include "tests/fuzz/wire/FuzzAnswers.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <string>

#include <dlfcn.h>

#include "Operations/capability/TargetCapability.h"
#include "Simulator/VondSim.h"
#include "Trace/dictionary/Functions.h"
#include "Vond/VondCore.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/wire/BlockJournal.h"

namespace {

using Bytes = std::vector<uint8_t>;
using Answers = std::map<std::string, Bytes>;

struct SOverlay
{
    uint32_t offset;
    QByteArray bytes;
    uint32_t times;
};

std::map<std::string, Answers> s_answers;  // by DUT, then by function
const Answers *s_plugged = nullptr;
std::map<std::string, std::vector<SOverlay>> s_overlays;
std::map<std::string, int32_t> s_results;

// The simulated DUT's function of a name that the program has, too.
template <typename Function>
Function *Real(const char *name)
{
    void *found = dlsym(RTLD_NEXT, name);
    Require(found, "the simulated DUT has every function");
    return reinterpret_cast<Function *>(found);
}

template <typename Record, typename Ask>
void Take(Answers &answers, const char *name, const Ask &ask)
{
    Bytes &bytes = answers[name];
    bytes.assign(sizeof(Record), 0);
    Require(ask(reinterpret_cast<Record *>(bytes.data())) == VOND_SUCCESS,
            "the simulated DUT answers");
}

#define TAKE(Record, name, ...)                                                                    \
    Take<Record>(answers, #name,                                                                   \
                 [&](Record *record) { return Real<decltype(name)>(#name)(__VA_ARGS__); })

// Handle and timeout are of no account.
Answers TakeDut(const char *dut)
{
    constexpr SVondCapabilityReq mmSizes{4, 132};
    constexpr SVondCapabilityReq lteSizes{56, 180};
    constexpr SVondCapabilityReq nrSizes{0, 24};
    constexpr uint32_t kNr = 1;
    Require(VondSim_SetProfile(dut) == 0, "the simulated DUT has the profile");
    Answers answers;
    TAKE(SERfCapability, VOND_ERf_GetRfCapability_r, 0, 1, &lteSizes, sizeof lteSizes, record,
         sizeof *record);
    TAKE(SMMRfCapability, VOND_MMRf_GetRfCapability_r, 0, 1, &mmSizes, sizeof mmSizes, record,
         sizeof *record);
    TAKE(SNRfCapability, VOND_NRf_GetRfCapability_r, 0, 1, &nrSizes, sizeof nrSizes, record,
         sizeof *record);
    SMMRfRouteConfigV7 routes = {};
    TAKE(SMMRfRouteConfigV7, VOND_MMRf_GetRouteConfigV7_r, 0, 1, &kNr, record);
    std::memcpy(&routes, answers["VOND_MMRf_GetRouteConfigV7_r"].data(), sizeof routes);
    TAKE(SNRfBandRxInfo, VOND_NRf_GetBandRxInfo_r, 0, 1, record);
    TAKE(SNRfRxRouteValues, VOND_NRf_GetRxRouteValues_r, 0, 1, record);
    SMMRfRouteDetailReqV7 request = {};
    request.radioKind = kNr;
    for (int i = 0; i < routes.routes.txRouteCount; ++i) {
        for (int region = 0; region < routes.routes.txRoute[i].bwRegionCount; ++region) {
            if (request.txPairCount < 255)
                request.txPair[request.txPairCount++] = {
                    routes.routes.txRoute[i].route,
                    {},
                    routes.routes.txRoute[i].bwRegionKhz[region]};
        }
    }
    for (int i = 0; i < routes.routes.rxType1RouteCount; ++i)
        request.rxType1Route[request.rxType1Count++] = routes.routes.rxType1Route[i].route;
    for (int i = 0; i < routes.routes.rxType2RouteCount; ++i)
        request.rxType2Route[request.rxType2Count++] = routes.routes.rxType2Route[i].route;
    TAKE(SMMRfRouteDetailCnfV7, VOND_MMRf_GetRouteDetailV7_r, 0, 1, &request, record);
    TAKE(SMMCalBlkInfoCnfV7, VOND_MMRf_GetCalBlkInfoV7_r, 0, 1, kNr, record);
    return answers;
}

void LayOver(const char *function, uint8_t *record, std::size_t size)
{
    const auto overlays = s_overlays.find(function);
    if (overlays == s_overlays.end())
        return;
    for (const SOverlay &overlay : overlays->second) {
        const auto length = static_cast<std::size_t>(overlay.bytes.size());
        std::size_t at = overlay.offset;
        for (uint32_t i = 0; i < overlay.times && length > 0 && at < size; ++i, at += length)
            std::memcpy(record + at, overlay.bytes.constData(), std::min(length, size - at));
    }
}

int32_t ResultOf(const char *function)
{
    const auto result = s_results.find(function);
    return result == s_results.end() ? VOND_SUCCESS : result->second;
}

}  // namespace

const std::vector<SFuzzAnswer> &FuzzAnswerTable()
{
    static const std::vector<SFuzzAnswer> table = [] {
        std::vector<SFuzzAnswer> rows;
        for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
            const SFunction &function = FunctionOf(static_cast<EFunction>(id));
            if (function.kind == EFunctionKind::Library)
                continue;
            std::size_t size = function.answer != nullptr ? function.answer->size : 0;
            if (function.status == EStatusPlace::Argument)
                size = sizeof(uint32_t);
            rows.push_back({function.name.data(), size});
        }
        return rows;
    }();
    return table;
}

void FuzzAnswers::TakeAll()
{
    for (const char *dut : kDuts)
        s_answers[dut] = TakeDut(dut);
    VondSim_Reset();
    Plug(kDuts[0]);
}

void FuzzAnswers::CutRoutes()
{
    for (auto &dut : s_answers) {
        auto &routes = reinterpret_cast<SMMRfRouteConfigV7 *>(
                           dut.second["VOND_MMRf_GetRouteConfigV7_r"].data())
                           ->routes;
        routes.txRouteCount = 4;
        routes.rxType1RouteCount = 3;
        routes.rxType2RouteCount = 1;
    }
}

void FuzzAnswers::Plug(const QByteArray &dut)
{
    const auto found = s_answers.find(dut.toStdString());
    s_plugged = found == s_answers.end() ? &s_answers[kDuts[0]] : &found->second;
    s_overlays.clear();
    s_results.clear();
    BlockJournal::Clear();
    CTargetCapability::Reset();
}

void FuzzAnswers::Overlay(const QByteArray &function, uint32_t offset, const QByteArray &bytes,
                          uint32_t times)
{
    s_overlays[function.toStdString()].push_back({offset, bytes, times});
}

void FuzzAnswers::Fail(const QByteArray &function, int32_t result)
{
    s_results[function.toStdString()] = result;
}

int32_t FuzzAnswers::Give(const char *function, void *record, std::size_t size)
{
    const auto base = s_plugged->find(function);
    if (base != s_plugged->end()) {
        Require(base->second.size() == size, "records keep their sizes");
        std::memcpy(record, base->second.data(), size);
    }
    return GiveOverlay(function, record, size);
}

// A call that fails may have written before.
int32_t FuzzAnswers::GiveOverlay(const char *function, void *record, std::size_t size)
{
    LayOver(function, static_cast<uint8_t *>(record), size);
    return ResultOf(function);
}
