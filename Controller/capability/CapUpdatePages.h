// What each page wants of the capability update: paths, and the steps that write there.
//
// First come the records of the steps, step by step. The updates of the pages stand at the end, one
// row a page. The RSRP pages have drivers of their own (NrDataModelCapUpdaterDrivers.cpp), since
// their bands depend on the mode. Constant data.
#pragma once

#include "Controller/capability/CapUpdatePaths.h"
#include "Controller/capability/CapUpdateSteps.h"

namespace CapUpdatePages {

constexpr char kRequest1[] = "cmdIf.request.group1";
constexpr char kRequest2[] = "cmdIf.request.group2";
constexpr char kRequest3[] = "cmdIf.request.group3";
constexpr char kRequest4[] = "cmdIf.request.group4";
constexpr char kConfig1[] = "calDataIf.config.group1";
constexpr char kConfig2[] = "calDataIf.config.group2";

constexpr SBandFilterV7 kTx{EBandDirection::Tx, false, false};
constexpr SBandFilterV7 kRx{EBandDirection::Rx, false, false};
constexpr SBandFilterV7 kRxMimo{EBandDirection::Rx, false, true};
constexpr SBandFilterV7 kRxFdd{EBandDirection::Rx, true, false};
constexpr SBandFilterV7 kRxFddMimo{EBandDirection::Rx, true, true};

// Bands and frequencies. useRouteRange is true where the frequency follows the route member.
constexpr SBandFreqPathV7 BandFreq(SBandFilterV7 filter, const char *bandGroup,
                                   const char *freqGroup, const char *freq)
{
    return {filter, ValueOf(bandGroup, "band"), DefaultOf(bandGroup, "band"), true,
            ValuePairOf(freqGroup, freq)};
}
constexpr SBandFreqPathV7 kModulatedOrToneFreq = BandFreq(kTx, kRequest1, kRequest1, "ulFrequency");
constexpr SBandFreqPathV7 kContRxFreq = BandFreq(kRx, kRequest1, kRequest1, "dlFrequency");
constexpr SBandFreqPathV7 kRssiFreq = BandFreq(kRx, kRequest1, kRequest2, "dlFrequency");
constexpr SBandFreqPathV7 kAptFreq = BandFreq(kTx, kConfig1, "calDataIf.data.group12", "ulFreq");
constexpr SBandFreqPathV7 kPathLossFreq = BandFreq(kRx, kConfig1, "calDataIf.data.group4", "freq");
constexpr SBandFreqPathV7 kPuschNormalFreq{
    kTx,
    {ValueOf(kRequest1, "band"), ValueOf(kRequest2, "band")},
    {DefaultOf(kRequest1, "band"), DefaultOf(kRequest2, "band")},
    false,
    {ValuePairOf(kRequest1, "ulFrequency"), ValuePairOf(kRequest2, "ulFrequency")}};

// Routes, SCS, bandwidth, VRB, slot format and MIMO of the PUSCH pages.
constexpr SModulationTxCommonPaths PuschForced()
{
    SModulationTxCommonPaths paths;
    paths.routeValuePairPaths = ValuePairOf(kRequest1, "txRoute");
    paths.slotEnablePairPaths = EnablePairOf(kRequest1, "tddSlotConfig");
    paths.scsValuePairPaths = ValuePairOf(kRequest1, "txScs");
    paths.bwValuePairPaths = ValuePairOf(kRequest1, "ulBandwidth");
    paths.vrbStartValuePairPaths = ValuePairOf(kRequest1, "vrbStart");
    paths.vrbLengthValuePairPaths = ValuePairOf(kRequest1, "vrbLength");
    paths.routeDefaultPaths = DefaultOf(kRequest1, "txRoute");
    paths.slotDefaultEnablePaths = DefaultEnableOf(kRequest1, "tddSlotConfig");
    paths.scsDefaultPaths = DefaultOf(kRequest1, "txScs");
    paths.bwDefaultPaths = DefaultOf(kRequest1, "ulBandwidth");
    return paths;
}
constexpr SModulationTxCommonPaths PuschNormal()
{
    const auto both = [](SPath (*of)(const char *, const char *), const char *member) {
        return SPaths(of(kRequest1, member), of(kRequest2, member));
    };
    SModulationTxCommonPaths paths;
    paths.slotEnablePairPaths = both(EnablePairOf, "tddSlotConfig");
    paths.scsValuePairPaths = both(ValuePairOf, "txScs");
    paths.bwValuePairPaths = both(ValuePairOf, "ulBandwidth");
    paths.vrbStartValuePairPaths = both(ValuePairOf, "vrbStart");
    paths.vrbLengthValuePairPaths = both(ValuePairOf, "vrbLength");
    paths.mimoValuePairPaths = both(ValuePairOf, "enableMimo");
    paths.mimoEnablePairPaths = both(EnablePairOf, "enableMimo");
    paths.slotDefaultEnablePaths = DefaultEnableOf(kRequest1, "tddSlotConfig");
    paths.mimoDefaultEnablePaths = DefaultEnableOf(kRequest1, "enableMimo");
    paths.scsDefaultPaths = both(DefaultOf, "txScs");
    paths.bwDefaultPaths = both(DefaultOf, "ulBandwidth");
    return paths;
}
constexpr SModulationTxCommonPaths kPuschForced = PuschForced();
constexpr SModulationTxCommonPaths kPuschNormal = PuschNormal();

// Routes and bandwidth regions of the pages that work on a bare carrier.
constexpr SCWTxCommonPaths kSingleTone{
    ValuePairOf(kRequest1, "txRoute"),       ValuePairOf(kRequest1, "aggBwRegion"),
    ValuePairOf(kRequest1, "aggBwKhzRange"), DefaultOf(kRequest1, "txRoute"),
    DefaultOf(kRequest1, "aggBwRegion"),     DefaultOf(kRequest1, "aggBwKhzRange")};
constexpr SCWTxCommonPaths kAptProfile{
    ValuePairOf(kConfig1, "txRoute"), ValuePairOf(kConfig1, "aggBwRegion"), {},
    DefaultOf(kConfig1, "txRoute"),   DefaultOf(kConfig1, "aggBwRegion"),   {}};

// Common members of the RX pages.
constexpr SRxCommonPaths RxByRouteType(const char *group, const char *route)
{
    SRxCommonPaths paths;
    paths.byRouteType = true;
    paths.routeValuePairPaths = ValuePairOf(group, route);
    paths.routeDefaultPaths = DefaultOf(group, route);
    paths.routeTypeValuePairPaths = ValuePairOf(group, "routeType");
    return paths;
}
constexpr SRxCommonPaths ContRx()
{
    SRxCommonPaths paths = RxByRouteType(kRequest1, "rxRoute");
    paths.mhzBwValuePairPaths = ValuePairOf(kRequest1, "dlBw");
    paths.mhzBwDefaultPaths = DefaultOf(kRequest1, "dlBw");
    return paths;
}
constexpr SRxCommonPaths Rsrp(const char *vrbGroup)
{
    SRxCommonPaths paths;
    paths.scsValuePairPaths = ValuePairOf(kRequest1, "rxScs");
    paths.scsDefaultPaths = DefaultOf(kRequest1, "rxScs");
    paths.rbBwValuePairPaths = ValuePairOf(kRequest1, "dlBandwidth");
    paths.rbBwDefaultPaths = DefaultOf(kRequest1, "dlBandwidth");
    paths.slotEnablePairPaths = EnablePairOf(kRequest1, "tddSlotConfig");
    paths.slotDefaultEnablePaths = DefaultEnableOf(kRequest1, "tddSlotConfig");
    paths.vrbStartValuePairPaths = ValuePairOf(vrbGroup, "vrbStart");
    paths.vrbLengthValuePairPaths = ValuePairOf(vrbGroup, "vrbLength");
    return paths;
}
constexpr SRxCommonPaths RsrpForce()
{
    SRxCommonPaths paths = Rsrp(kRequest3);
    paths.routeValuePairPaths = ValuePairOf(kRequest1, "rxRoute");
    paths.routeDefaultPaths = DefaultOf(kRequest1, "rxRoute");
    return paths;
}
constexpr SRxCommonPaths kContRx = ContRx();
constexpr SRxCommonPaths kRssi = RxByRouteType(kRequest1, "rxRoute");
constexpr SRxCommonPaths kPathLoss = RxByRouteType(kConfig1, "route");
constexpr SRxCommonPaths kRsrpForce = RsrpForce();
constexpr SRxCommonPaths kRsrpNormal = Rsrp(kRequest2);

// Hardware labels.
constexpr SHwLabelPaths HwMembers(SPath (*of)(const char *, const char *), const char *group,
                                  const SHwLabelNames &names)
{
    return {of(group, names.feRoute), of(group, names.port), of(group, names.stx),
            of(group, names.antMask), of(group, names.mimoPair)};
}
constexpr SHwSettingPaths HwSetting(const char *group, const SHwLabelNames &names)
{
    return {HwMembers(ValuePairOf, group, names), HwMembers(DefaultOf, group, names), false, {}};
}
constexpr SHwLabelNames kTxNames{"feRouteNum", "port", "stx", "antMask", "mimoPairNum"};
constexpr SHwLabelNames kRxNames{"feRouteNum", "port", "srx", "antMask", "mimoPairNum"};
constexpr SHwLabelNames kRxPath0Names{"feRouteNumP0", "portP0", "srxP0", "antMaskP0",
                                      "mimoPairNumP0"};
constexpr SHwLabelNames kRxPath1Names{"feRouteNumP1", "portP1", "srxP1", "antMaskP1",
                                      "mimoPairNumP1"};
// The pseudo TX group shows three labels.
constexpr SHwSettingPaths PseudoTxHw()
{
    SHwSettingPaths paths = HwSetting(kRequest4, kTxNames);
    for (SHwLabelPaths *labels : {&paths.valuePairs, &paths.defaults}) {
        labels->antMask = {};
        labels->mimoPair = {};
    }
    return paths;
}
constexpr SHwSettingPaths RssiHw()
{
    SHwSettingPaths paths = HwSetting(kRequest3, kRxPath0Names);
    paths.byRouteType = true;
    paths.path1ValuePairs = HwMembers(ValuePairOf, kRequest4, kRxPath1Names);
    return paths;
}
constexpr SHwSettingPaths kTxHw = HwSetting(kRequest2, kTxNames);
constexpr SHwSettingPaths kAptHw = HwSetting(kConfig2, kTxNames);
constexpr SHwSettingPaths kPseudoTxHw = PseudoTxHw();
constexpr SHwSettingPaths kRsrpForceHw = HwSetting(kRequest2, kRxNames);
constexpr SHwSettingPaths kRssiHw = RssiHw();

constexpr SRxGainInfoPathV7 kRssiGain{
    {ValuePairOf(kRequest1, "path0DivSearch"), ValuePairOf(kRequest1, "path0MainSearch")},
    {ValuePairOf(kRequest1, "path1DivSearch"), ValuePairOf(kRequest1, "path1MainSearch")},
    {},
    {}};

// The pages.
using namespace CapUpdateSteps;
constexpr SPageUpdate kPuschForcedUpdate{
    .freq = kModulatedOrToneFreq,
    .withRangeCheck = false,
    .steps = {ModulationTxCommon<kPuschForced>, TxHwByScsRb<kTxHw>}};
constexpr SPageUpdate kPuschNormalUpdate{.freq = kPuschNormalFreq,
                                         .withRangeCheck = false,
                                         .steps = {ModulationTxCommon<kPuschNormal, true>}};
constexpr SPageUpdate kSingleToneUpdate{.freq = kModulatedOrToneFreq,
                                        .withRangeCheck = false,
                                        .steps = {CwTxCommon<kSingleTone>, TxHwByBwRegion<kTxHw>}};
constexpr SPageUpdate kAptProfileUpdate{.freq = kAptFreq,
                                        .withRangeCheck = true,
                                        .steps = {CwTxCommon<kAptProfile>, TxHwByBwRegion<kAptHw>}};
constexpr SPageUpdate kContRxUpdate{
    .freq = kContRxFreq, .withRangeCheck = false, .steps = {RxCommon<kContRx>}};
constexpr SPageUpdate kRssiUpdate{.freq = kRssiFreq,
                                  .withRangeCheck = false,
                                  .steps = {RxCommon<kRssi>, RssiGain<kRssiGain>, RxHw<kRssiHw>}};
constexpr SPageUpdate kPathLossUpdate{
    .freq = kPathLossFreq, .withRangeCheck = true, .steps = {RxCommon<kPathLoss>, LnaCaptions}};

}  // namespace CapUpdatePages
