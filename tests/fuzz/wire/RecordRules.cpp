#include "tests/fuzz/wire/RecordRules.h"

#include <cstring>
#include <memory>

#include "Operations/calibration/CalComparison.h"
#include "Operations/calibration/CalResult.h"
#include "Operations/calibration/MultiRatAptProfileV7.h"
#include "Operations/calibration/MultiRatPathLossV7.h"
#include "Operations/capability/TargetCapability.h"
#include "Operations/tests/MultiRatContRxV7.h"
#include "Operations/tests/MultiRatRssiV7.h"
#include "Operations/tests/MultiRatSingleToneTxV7.h"
#include "Operations/tests/NrPuschTxV7.h"
#include "Operations/tests/NrRsrpV7.h"
#include "Operations/tests/TestStop.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

bool IsCode(uint32_t code)
{
    return code == kCalSuccess || code == kCalLibraryFailed || code == kCalTargetFailed;
}

void CheckBands(const CTargetCapability &target, EBandDirection direction)
{
    std::vector<SBandCapEntry> bands, again;
    const bool isRead = target.GetBandList(direction, bands);
    Require(isRead || bands.empty(), "a list that could not be read is empty");
    Require(target.GetBandList(direction, again) == isRead && again.size() == bands.size(),
            "a question asked twice has one answer");
    Require(bands.size() <= kVondMaxBands, "there are no more bands than room");
    for (const SBandCapEntry &entry : bands)
        Require(entry.supplementary <= 1, "a band is supplementary or not");
}

void CheckRoutes(const CTargetCapability &target, const SMMRfRouteTableV7 *table)
{
    const int tx = table ? table->txRouteCount : 0;
    const int rx = table ? table->rxType1RouteCount + table->rxType2RouteCount : 0;
    Require(tx <= kVondMaxTxRoutes && rx <= 2 * kVondMaxRxRoutes, "routes are within their tables");
    for (const bool withHardware : {false, true}) {
        std::vector<STxRouteInfoV7> txRoutes;
        const bool isTxRead = target.GetTxCommonPathV7(txRoutes, withHardware);
        Require(static_cast<int>(txRoutes.size()) == (isTxRead ? tx : 0),
                "a list is whole or empty");
        for (const STxRouteInfoV7 &route : txRoutes)
            Require(route.bwRegionCount <= kVondMaxBwRegions && route.hwValid <= 1,
                    "regions are within their table");
        std::vector<SRxRouteInfoV7> rxRoutes;
        const bool isRxRead = target.GetRxCommonPathV7(rxRoutes, withHardware);
        Require(static_cast<int>(rxRoutes.size()) == (isRxRead ? rx : 0),
                "a list is whole or empty");
        for (const SRxRouteInfoV7 &route : rxRoutes) {
            Require(route.routeType == 1 || route.routeType == 2, "a route type is 1 or 2");
            Require(route.routeType == 1 || route.txRoutes.isEmpty(), "type 1 alone has pairs");
            target.GetType2RouteGainFlag(route.route);
        }
    }
}

void RunRssi()
{
    CMultiRatRssiV7 operation;
    const auto gains = std::make_unique<SMMGainSearchCnfV7>();
    Require(IsCode(operation.RunGainSearch({}, gains.get())), "a search has a code of the table");
    const auto result = std::make_unique<SMMRssiCnfV7>();
    Require(IsCode(operation.RunRssi({}, result.get())), "a test has a code of the table");
}

void RunContRx()
{
    const SMMContRxCmdV7 command = {};
    CMultiRatContRxV7 operation;
    Require(IsCode(operation.RunContRx(&command)), "a test has a code of the table");
}

void RunSingleTone()
{
    const SMMSingleToneCmdV7 command = {};
    CMultiRatSingleToneTxV7 operation;
    Require(IsCode(operation.RunSingleTone(&command)), "a test has a code of the table");
    int16_t value = 0;
    Require(IsCode(operation.GetPdValue(1, &value)), "a read has a code of the table");
}

void RunPusch()
{
    const SNrPuschTxCmdV7 command = {};
    CNrPuschTxV7 operation;
    Require(IsCode(operation.RunPuschTx(&command)), "a test has a code of the table");
    const SNrDlFreqCmdV7 question = {};
    SNrDlFreqCnfV7 frequency = {};
    Require(IsCode(operation.GetDlFreq(&question, &frequency)), "a read has a code of the table");
}

void RunRsrp()
{
    const SNrRsrpCmdV7 command = {};
    CNrRsrpV7 operation;
    Require(IsCode(operation.RunRsrp(&command)), "a test has a code of the table");
    const auto report = std::make_unique<NRfTestResult_GetMixRxReportV7>();
    Require(IsCode(operation.GetMixRxReport(report.get())), "a report has a code of the table");
    Require(IsCode(operation.ResetMixRxReport()), "a reset has a code of the table");
}

bool IsSame(const SCalImage &left, const SCalImage &right)
{
    return left.records.size() == right.records.size() && CCalComparison(left, right).Count() == 0;
}

template <typename Item>
void MoveRecords()
{
    Item item(ERadioKind::Nr);
    item.KeepBlocks();
    const uint32_t read = item.UploadFromFlash();
    const SCalImage image = item.Image();
    Require(item.HasData() || image.records.empty(), "an image has valid records alone");
    Require(IsSame(image, item.Arrived()), "what is there has come up");
    const SCalImage joined = JoinedImage(item.Blocks());
    Require(read != kCalSuccess || IsSame(image, joined), "blocks make the records");
    Require(item.TakeImage(image) == 0 && IsSame(item.Image(), image),
            "an image that is given back is the same");
    // The faked DUT looks at what comes.
    const uint32_t written = item.DownloadToFlash();
    Require(written != kCalNotRun || image.records.empty() || read != kCalSuccess ||
                !item.Remarks().leftOut.empty(),
            "what came up goes down, or is said to be left out");
    Require(IsSame(item.Image(), image), "a download changes nothing here");
}

}  // namespace

void CheckCapability()
{
    const CTargetCapability target;
    target.GetRfChipIdLte();
    target.GetRfChipIdNr();
    target.GetRfChipNameNr();
    Require(target.IsRatInfoValid() || target.GetRatMask() == 0, "no information names no RAT");
    target.GetNrGeneration();
    target.GetRouteTableLte();
    for (const ERadioKind kind : {ERadioKind::Lte, ERadioKind::Nr}) {
        for (const uint32_t mode : {0u, 1u, 2u})
            Require(mode < 2 || !target.GetSupportRxGainInfoV7(kind, mode),
                    "there are two power modes");
    }
    const auto range = std::make_unique<SRouteFreqRangeV7>();
    target.GetFreqRangeBlock(*range);
    CheckBands(target, EBandDirection::Rx);
    CheckBands(target, EBandDirection::Tx);
    CheckRoutes(target, target.GetRouteTableNr());
}

void CheckOperations(EPageId page)
{
    struct SUse
    {
        EPageId page;
        void (*run)();
    };
    static constexpr SUse kUses[] = {
        {EPageId::Rssi, RunRssi},
        {EPageId::ContRx, RunContRx},
        {EPageId::SingleToneTx, RunSingleTone},
        {EPageId::PuschTxForce, RunPusch},
        {EPageId::PuschTxNormal, RunPusch},
        {EPageId::RsrpForce, RunRsrp},
        {EPageId::RsrpNormal, RunRsrp},
        {EPageId::AptProfile, MoveRecords<CMultiRatAptProfileV7>},
        {EPageId::RxPathLoss, MoveRecords<CMultiRatPathLossV7>},
    };
    for (const SUse &use : kUses) {
        if (use.page == page)
            use.run();
    }
    CNrTestStop nr;
    CMultiRatTestStopV7 multiRat;
    Require(IsCode(nr.Stop()) && IsCode(multiRat.Stop(1)), "a stop has a code of the table");
}
